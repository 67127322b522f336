// What each key does. A movement says whether it went anywhere.
#include "viewer/viewer_keys.h"

#include "config/values/options.h"
#include "dialogs/help.h"
#include "viewer/code_page_list.h"
#include "viewer/format_dialog.h"
#include "viewer/search_settings.h"
#include "viewer/view_files.h"
#include "viewer/viewer_goto.h"
#include "viewer/viewer_search.h"

namespace {

enum : Key {
  kAltE = 0x10012,
  kAltT = 0x10014,
  kAltO = 0x10018,
  kAltF = 0x10021,
  kAltH = 0x10023,
  kAltL = 0x10026,
  kAltC = 0x1002E,
  kAlt1 = 0x10078,  // the other digits follow
};

constexpr int kHelpViewer = 2;
constexpr int kSideStep = 4, kWideStep = 40;  // cells

// ---- what is shown

void DrawBar(Viewing& viewing) {
  viewing.follow.SetHidden(true);
  viewing.viewer.DrawKeyBar();
  viewing.follow.SetHidden(false);
}

void AlignAndRepaint(CViewer& viewer) {
  viewer.SetTop(viewer.TopOffset != 0 ? viewer.LineStart(viewer.TopOffset) : 0);
  viewer.Repaint();
}

bool ToggleWrap(Viewing& viewing, Key) {
  CViewer& viewer = viewing.viewer;
  if (viewer.HexMode) return true;
  Options::ViewerWrap = !Options::ViewerWrap;
  viewer.LeftCol = 0;
  DrawBar(viewing);
  AlignAndRepaint(viewer);
  return true;
}

// Only bytes may begin in the middle of a line.
void LeaveHex(CViewer& viewer) {
  const int before = viewer.TopOffset > 0 ? viewer.ByteAt(viewer.TopOffset - 1) : -1;
  if (before != '\r' && before != '\n') viewer.SetTop(viewer.PrevLine(viewer.TopOffset));
}

bool ToggleHex(Viewing& viewing, Key) {
  CViewer& viewer = viewing.viewer;
  viewer.HexMode = !viewer.HexMode;
  if (!viewer.HexMode) LeaveHex(viewer);
  DrawBar(viewing);
  AlignAndRepaint(viewer);
  return true;
}

bool SetTabWidth(Viewing& viewing, Key key) {
  Options::TabWidth = static_cast<int>(key - kAlt1) + 1;
  viewing.viewer.ReadAnew();
  return true;
}

bool ToggleHighlighting(Viewing& viewing, Key) {
  CViewer& viewer = viewing.viewer;
  viewer.SetHighlighting(!viewer.Highlighter.Active);
  viewer.ReadAnew();
  return true;
}

bool RepaintAll(Viewing& viewing, Key) {
  viewing.viewer.Repaint();
  return true;
}

bool ShowHelpPage(Viewing&, Key) {
  ShowHelp(kHelpViewer);
  return true;
}

// ---- the encoding

bool AskForEncoding(int& encoding, int& codePage, bool hasMark) {
  CFormatSelectDlg dialog("Select File Encoding", encoding, codePage, hasMark);
  return dialog.Execute() == static_cast<int>(kEnter);
}

// The mark of what is on the disk stays as it is.
bool ChooseEncoding(Viewing& viewing, Key) {
  CViewer& viewer = viewing.viewer;
  int encoding = viewer.Encoding, codePage = viewer.CodePage;
  if (!AskForEncoding(encoding, codePage, viewer.HasBOM)) return true;
  viewer.SetEncoding(encoding, codePage);
  viewer.ReadAnew();
  return true;
}

bool StepPage(Viewing& viewing, Key) {
  CViewer& viewer = viewing.viewer;
  if (viewer.Encoding != kCodePageText) return true;
  viewer.SetEncoding(kCodePageText, StepCodePage());
  viewer.ReadAnew();
  return true;
}

bool ChooseCodePages(Viewing& viewing, Key key) {
  if (CodePageDialog() != 0) return true;
  viewing.viewer.SetEncoding(kCodePageText, viewing.viewer.CodePage);
  return StepPage(viewing, key);
}

// ---- moving

bool GoHome(Viewing& viewing, Key) {
  viewing.viewer.GoHome();
  return true;
}

bool GoEnd(Viewing& viewing, Key) { return viewing.viewer.GoEnd(); }
bool GoUp(Viewing& viewing, Key) { return viewing.viewer.ScrollUp(); }
bool GoDown(Viewing& viewing, Key) { return viewing.viewer.ScrollDown(); }
bool GoPageUp(Viewing& viewing, Key) { return viewing.viewer.PageUp(); }
bool GoPageDown(Viewing& viewing, Key) { return viewing.viewer.PageDown(); }

template <int direction>
bool GoSide(Viewing& viewing, Key) {
  return viewing.viewer.MoveSideways(direction * (viewing.viewer.HexMode ? 1 : kSideStep));
}

template <int direction>
bool GoFarSide(Viewing& viewing, Key) {
  return viewing.viewer.MoveSideways(direction * kWideStep);
}

bool AskForLine(Viewing& viewing, Key) {
  GotoLine(viewing.viewer);
  return true;
}

bool AskForOffset(Viewing& viewing, Key) {
  GotoOffset(viewing.viewer);
  return true;
}

// ---- searching

bool AskAndSearch(Viewing& viewing, Key key) {
  if (key == '/' || key == '?') Reverse = key == '?';
  SearchAndShow(viewing.viewer, true);
  return true;
}

bool SearchOn(Viewing& viewing, Key) {
  SearchAndShow(viewing.viewer, false);
  return true;
}

bool SearchBack(Viewing& viewing, Key) {
  Reverse = !Reverse;
  SearchAndShow(viewing.viewer, false);
  Reverse = !Reverse;
  return true;
}

// ---- following and leaving

bool Follow(Viewing& viewing, Key) {
  viewing.follow.Start();
  return true;
}

bool Leave(Viewing& viewing, Key) {
  viewing.end = kEscape;
  return true;
}

bool LeaveFollowOrAll(Viewing& viewing, Key key) {
  if (!viewing.follow.IsOn()) return Leave(viewing, key);
  viewing.follow.Stop();
  return true;
}

bool LeaveWithKey(Viewing& viewing, Key key) {
  viewing.end = key;
  return true;
}

bool LeaveForEditor(Viewing& viewing, Key key) {
  if (!EditInsteadOfViewing) return true;
  viewing.goesToEditor = true;
  viewing.follow.Stop();  // the editor has a last row of its own
  return Leave(viewing, key);
}

struct KeyRow {
  Key key;
  bool (*run)(Viewing& viewing, Key key);
};

constexpr KeyRow kRows[] = {
    {FKey(1), ShowHelpPage},
    {FKey(2), ToggleWrap},
    {kEscape, LeaveFollowOrAll},
    {FKey(3), Leave},
    {FKey(10), Leave},
    {FKey(4), ToggleHex},
    {ShiftFKey(4), LeaveForEditor},
    {FKey(7), AskAndSearch},
    {'/', AskAndSearch},
    {'?', AskAndSearch},
    {ShiftFKey(7), SearchOn},
    {AltFKey(7), SearchBack},
    {FKey(8), GoHome},
    {kHome, GoHome},
    {kCtrlPageUp, GoHome},
    {FKey(9), GoEnd},
    {kEnd, GoEnd},
    {kCtrlPageDown, GoEnd},
    {kUp, GoUp},
    {kDown, GoDown},
    {kPageUp, GoPageUp},
    {kPageDown, GoPageDown},
    {' ', GoPageDown},
    {kLeft, GoSide<-1>},
    {CtrlDigit(4), GoSide<-1>},
    {CtrlPadDigit(4), GoSide<-1>},
    {CtrlShiftDigit(4), GoSide<-1>},
    {CtrlShiftPadDigit(4), GoSide<-1>},
    {kRight, GoSide<1>},
    {CtrlDigit(6), GoSide<1>},
    {CtrlPadDigit(6), GoSide<1>},
    {CtrlShiftDigit(6), GoSide<1>},
    {CtrlShiftPadDigit(6), GoSide<1>},
    {kCtrlLeft, GoFarSide<-1>},
    {kCtrlRight, GoFarSide<1>},
    {kAlt1, SetTabWidth},
    {kAlt1 + 1, SetTabWidth},
    {kAlt1 + 2, SetTabWidth},
    {kAlt1 + 3, SetTabWidth},
    {kAlt1 + 4, SetTabWidth},
    {kAlt1 + 5, SetTabWidth},
    {kAlt1 + 6, SetTabWidth},
    {kAlt1 + 7, SetTabWidth},
    {kAltL, AskForLine},
    {kAltO, AskForOffset},
    {kAltC, ChooseCodePages},
    {kAltT, StepPage},
    {kAltE, ChooseEncoding},
    {kAltF, Follow},
    {kAltH, ToggleHighlighting},
    {CtrlLetter('l'), RepaintAll},
    {kAltUp, LeaveWithKey},
    {kAltDown, LeaveWithKey},
};

}  // namespace

bool RunViewerKey(Viewing& viewing, Key key) {
  for (const KeyRow& row : kRows)
    if (row.key == key) return row.run(viewing, key);
  return true;
}
