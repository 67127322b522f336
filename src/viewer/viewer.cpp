// The life of a viewing: opening, the place to begin at, the keys, and what is
// remembered.
#include "viewer/viewer.h"

#include <algorithm>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "panels/panel_path.h"
#include "viewer/code_page_list.h"
#include "viewer/file_status.h"
#include "viewer/view_files.h"
#include "viewer/viewer_goto.h"
#include "viewer/viewer_keys.h"
#include "viewer/viewer_mouse.h"

void (*EditInsteadOfViewing)(const Westring& path, int64_t offset) = nullptr;

namespace {

// While it lives there is no cursor, and the mouse selects no text: its buttons
// scroll.
class ScreenForReading {
 public:
  ScreenForReading() : cursorSize(Console->CursorSize()) {
    Console->GetSelectableRegion(selectable);
    Console->SetSelectableRegion(0, 0, 0, 0);
    Console->SetCursorSize(0);
  }
  ~ScreenForReading() {
    Console->SetSelectableRegion(selectable);
    Console->SetCursorSize(cursorSize);
  }
  ScreenForReading(const ScreenForReading&) = delete;
  ScreenForReading& operator=(const ScreenForReading&) = delete;

 private:
  int cursorSize;
  CellRect selectable;
};

class KeyLoop {
 public:
  explicit KeyLoop(CViewer& shown) : viewing{shown, {}}, mouse(viewing) {}

  // Until the user leaves.
  Viewing& Run() {
    while (viewing.end == 0) {
      viewing.viewer.DrawStatus();
      Act();
    }
    return viewing;
  }

 private:
  static constexpr int kFollowPeriod = 200;  // milliseconds between two looks for new data

  int WaitTime() const {
    if (mouse.IsRepeating()) return mouse.WaitTime();
    return viewing.follow.IsOn() ? kFollowPeriod : -1;
  }

  void Act() {
    TMouseEvent event;
    bool timedOut = false;
    const Key key = ReadKey(timedOut, &event, WaitTime());
    if (key == kMouseKey) {
      mouse.Handle(event);
    } else if (key == 0) {
      Tick();
    } else if (key != kModifierKey) {
      mouse.Stop();
      RunViewerKey(viewing, key);
    }
  }

  // The wait was over, or the event meant nothing.
  void Tick() {
    if (mouse.IsRepeating())
      mouse.Repeat();
    else if (viewing.follow.IsOn())
      RunViewerKey(viewing, kEnd);
  }

  Viewing viewing;
  ViewerMouse mouse;
};

}  // namespace

CViewer::CViewer() {
  const int right = ScreenColumns - 1, last = ScreenRows - 1;
  status = std::make_unique<Win>(0, 0, right, 0, Options::Colours[kColourMenu]);
  screen = std::make_unique<Win>(0, 1, right, std::max(last - 1, 1), Options::Colours[kColourFileViewer]);
  keyBar = std::make_unique<Win>(0, last, right, last, Options::Colours[kColourCommandLine]);
  ScreenWidth = screen->InnerWidth();
  ScreenHeight = screen->InnerHeight();
}

CViewer::~CViewer() = default;

void CViewer::SetHidden(bool hide) {
  for (Win* const window : {screen.get(), status.get(), keyBar.get()}) window->SetHidden(hide);
}

void CViewer::SetTop(int64_t offset) {
  TopOffset = offset;
  TopWrapCol = 0;
  ForgetTop();
}

void CViewer::ReadAnew() {
  ForgetTop();
  Repaint();
}

void CViewer::SetEncoding(int encoding, int codePage) {
  Encoding = encoding;
  if (encoding == kCodePageText) CodePage = codePage;
}

void CViewer::SetHighlighting(bool on) {
  StateStore.Reset();
  Highlighter.Clear();
  if (on)
    Highlighter.Load(FindSyntaxFile(), LastComponent(FullName.Text()));
  else
    Highlighter.Active = false;
}

void CViewer::Reset() {
  SetTop(0);
  SearchPos = -1;
  LeftCol = 0;
  HexMode = false;
  Encoding = kUnknownEncoding;
  KeepNul = false;
  LongLineStart = LongLinePos = 0;
  BottomOffset = -1;
  StateStore.Reset();  // before the elements that it knows of go
  Highlighter.Clear();
  Highlighter.Definition.Clear();
}

void CViewer::TakeEncoding(const HISTREC* known) {
  CodePage = LastCodePage != 0 ? LastCodePage : TextPage();
  if (known && known->Encoding != kUnknownEncoding) SetEncoding(known->Encoding, known->CodePage);
}

void CViewer::Start(int64_t offset, const HISTREC* known) {
  const bool isAsked = offset >= 0;
  if (!isAsked && known) offset = known->ViewerPos;
  SetTop(DataStart);
  if (offset >= 0 && Reaches(*this, offset)) {
    SetTop(LineStart(offset));
    if (isAsked) return ShowOffset(*this, offset, kWholeSearchString);
  } else if (offset < 0 && known) {
    const LineWalk walk = WalkLines(*this, known->TopLine);
    if (walk.end == LineWalk::kArrived) SetTop(walk.offset);
  }
  Repaint();
}

void CViewer::KeepStatus() {
  HISTREC& record = FileStatuses.Record(FullName);
  record.ViewerPos = TopOffset;
  record.Encoding = Encoding;
  record.CodePage = CodePage;
}

Key CViewer::Run(const Westring& file, int64_t offset) {
  const ScreenForReading forReading;
  Reset();
  DrawKeyBar();
  if (const int error = Open(file)) {
    Prompt(SystemError(error).Text(), file, kPromptOk);
    return kEscape;
  }
  RereadTail = true;
  if (!NormalisePath(file, CurrentDirectory(), FullName, kLongestPath)) FullName = file;
  SetHighlighting(true);
  const HISTREC* const known = FileStatuses.Find(&FullName);
  TakeEncoding(known);
  Start(offset, known);

  KeyLoop loop(*this);
  const Viewing& left = loop.Run();
  KeepStatus();
  StateStore.Reset();
  Close();
  // The place is remembered by now: what the editor remembers then is newer.
  if (left.goesToEditor) EditInsteadOfViewing(FullName, TopOffset);
  return left.end;
}
