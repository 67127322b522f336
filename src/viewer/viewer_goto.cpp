// The dialogs "Goto Line" and "Goto Offset", and the way there.
#include "viewer/viewer_goto.h"

#include <algorithm>
#include <cinttypes>
#include <cwchar>

#include "config/values/colours.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/prompt.h"

namespace {

constexpr int kMostLooks = 4096;  // for what has come since, and a file may never end

constexpr int kHeight = 5, kColumn = 1, kRow = 1;

constexpr int kLineWidth = 27, kLineField = 8;
constexpr char kLineLabel[] = "Line to go to:";

constexpr int kOffsetWidth = 35, kOffsetField = 12, kLongestOffset = 16;
constexpr char kOffsetLabel[] = "Offset to go to: 0x";

void TellOnly(int64_t number, const char* what) {
  Prompt(Westring(Estring::Format("Only %" PRId64 " %s in this file", number, what)), L"", kPromptOk);
}

class GotoDialog : public Dialog {
 public:
  GotoDialog(const wchar_t* title, int width, const char* label)
      : Dialog(-1, -3, width, kHeight, Options::Colours[kColourMessages]) {
    PrintCentred(-1, title);
    PrintBytes(kColumn, kRow, label);
  }

  bool Ask() { return Run() == static_cast<int>(kEnter); }
};

bool AskForLine(int32_t& number) {
  GotoDialog dialog(L" Goto Line ", kLineWidth, kLineLabel);
  const int x = kColumn + static_cast<int>(sizeof kLineLabel);
  dialog.AddIntegerField(x, kRow, true, &number, kLineField, false, kNoHistory);
  return dialog.Ask();
}

bool AskForOffset(Westring& digits) {
  GotoDialog dialog(L" Goto Offset ", kOffsetWidth, kOffsetLabel);
  const int x = kColumn + static_cast<int>(sizeof kOffsetLabel) - 1;  // behind the "0x"
  dialog.AddStringField(x, kRow, true, &digits, kOffsetField, kLongestOffset, kNoHistory);
  return dialog.Ask();
}

// Without a digit it is 0; sixteen of them are all that fit.
uint64_t HexNumber(const Westring& digits) {
  uint64_t number = 0;
  for (const wchar_t* p = digits.Text(); *p != 0 && wcschr(L"0123456789abcdefABCDEF", *p); ++p) {
    const bool isDecimal = *p <= L'9';
    number = number << 4 | static_cast<uint64_t>(isDecimal ? *p - L'0' : (*p & 7) + 9);
  }
  return number;
}

}  // namespace

// A file that tells no size has that of what was read of it.
bool Reaches(CViewer& viewer, int64_t offset) {
  for (int look = 0; look < kMostLooks && offset >= viewer.FileSize; ++look) {
    if (viewer.ByteAt(viewer.FileSize) < 0) return false;
    viewer.FileSize = std::max(viewer.FileSize, viewer.Size());
  }
  return offset < viewer.FileSize;
}

void ShowOffset(CViewer& viewer, int64_t offset, int cells) {
  const int64_t start = viewer.LineStart(offset);
  viewer.SearchPos = start;
  viewer.ShowAt(start, offset - start, cells);
}

LineWalk WalkLines(CViewer& viewer, int64_t lines) {
  BreakScope cancel;
  LineWalk walk{LineWalk::kArrived, viewer.HexMode ? 0 : viewer.DataStart, 0};
  for (; walk.lines < lines && viewer.ByteAt(walk.offset) >= 0; ++walk.lines) {
    if (cancel.Stopped()) {
      walk.end = LineWalk::kStopped;
      return walk;
    }
    walk.offset = viewer.NextLine(walk.offset);
  }
  if (lines > 0 && viewer.ByteAt(walk.offset) < 0) walk.end = LineWalk::kFileEnded;
  return walk;
}

void GotoLine(CViewer& viewer) {
  int32_t number = 0;
  if (!AskForLine(number)) return;
  const LineWalk walk = WalkLines(viewer, int64_t{number} - 1);
  if (walk.end == LineWalk::kFileEnded) TellOnly(walk.lines, "lines");
  if (walk.end != LineWalk::kArrived) return;
  viewer.SearchPos = -1;
  viewer.SetTop(walk.offset);
  viewer.Repaint();
}

void GotoOffset(CViewer& viewer) {
  Westring digits;
  if (!AskForOffset(digits)) return;
  const uint64_t number = HexNumber(digits);
  const auto offset = static_cast<int64_t>(std::min<uint64_t>(number, INT64_MAX));
  if (!Reaches(viewer, offset)) return TellOnly(viewer.FileSize, "bytes");
  if (!viewer.HexMode) return ShowOffset(viewer, offset, 1);
  viewer.SearchPos = -1;
  viewer.SetTop(offset);
  viewer.Repaint();
}
