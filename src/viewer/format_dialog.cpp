// Asking for the encoding of a text; see format_dialog.h.
#include "viewer/format_dialog.h"

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog_history.h"
#include "viewer/text_file.h"

namespace {

constexpr int kWidth = 60, kHeight = 9;
constexpr int kLabelColumn = 1, kFormatColumn = 14;
constexpr int kDetailColumn = 34, kPageColumn = 45, kPageWidth = 5;

// By the order in which the elements are made; the last one is that of a name.
constexpr char kHotLetters[] = "c863pben";
constexpr int kOwnElements = sizeof kHotLetters - 2;

struct FormatRow {
  const char* label;
  int encoding, bigEndian;  // TextEncoding
};
constexpr FormatRow kFormats[] = {
    {"Code Page", kCodePageText, kCodePageText},
    {"UTF-8", kUtf8, kUtf8},
    {"UTF-16", kUtf16Little, kUtf16Big},
    {"UTF-32", kUtf32Little, kUtf32Big},
};
constexpr int kFormatCount = sizeof kFormats / sizeof *kFormats;
constexpr int kFormatUtf8 = 1, kFormatUtf16 = 2;  // rows; the wide ones are the last

int FormatOf(int encoding) {
  for (int i = 0; i < kFormatCount; ++i)
    if (encoding == kFormats[i].encoding || encoding == kFormats[i].bigEndian) return i;
  return kFormatUtf8;
}

}  // namespace

CFormatSelectDlg::CFormatSelectDlg(const char* title, int& encoding, int& codePage, bool& hasBOM,
                                   int extraRows)
    : Dialog(-1, -3, kWidth, kHeight + extraRows, Options::Colours[kColourMessages]),
      encoding(encoding),
      codePage(codePage),
      hasBOM(hasBOM),
      format(FormatOf(encoding)),
      page(codePage != 0 ? codePage : TextPage()),
      mark(hasBOM),
      bigEndian(encoding == kUtf16Big || encoding == kUtf32Big),
      formatShown(format),
      formatAtOpening(format),
      markAtOpening(hasBOM) {
  PrintCentred(-1, Westring(" ") + Westring(title) + L" ");
  AddFormats(extraRows);
  AddDetails(extraRows);
}

void CFormatSelectDlg::AddFormats(int y) {
  PrintBytes(kLabelColumn, y, "File Format:");
  for (int i = 0; i < kFormatCount; ++i)
    AddRadioButton(kFormatColumn, y + i, i == 0, &format, i, kFormats[i].label);
}

void CFormatSelectDlg::AddDetails(int y) {
  PrintHighlighted(kDetailColumn, y, "Code Page:", "p", Colour(kDialogText));
  AddIntegerField(kPageColumn, y, true, &page, kPageWidth, false, kNoHistory);
  AddCheckBox(kDetailColumn, y + 1, true, &mark, "Byte Order Mark", true);
  AddCheckBox(kDetailColumn, y + 2, false, &bigEndian, "Big-Endian", true);
}

// The buttons come last, behind what a derived dialog has added.
int CFormatSelectDlg::Execute() {
  if (!hasButtons) {
    SetHotLetters(kHotLetters, Count() > kOwnElements ? kOwnElements + 1 : kOwnElements);
    AddOkCancel(-1, -1, true);
    hasButtons = true;
  }
  const int key = Run();
  if (key != static_cast<int>(kEscape)) Store();
  return key;
}

void CFormatSelectDlg::Store() {
  encoding = bigEndian ? kFormats[format].bigEndian : kFormats[format].encoding;
  codePage = page;
  hasBOM = mark;
}

// The wide formats are hard to tell without a mark, so they get one.
void CFormatSelectDlg::FocusChanged() {
  if (format == formatShown) return;
  formatShown = format;
  if (format == formatAtOpening)
    mark = markAtOpening;
  else if (format >= kFormatUtf16)
    mark = true;
  else
    return;
  Redraw(-1);
}
