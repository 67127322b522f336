// The window that shows one page of help.
#include "dialogs/help_window.h"

#include <algorithm>
#include <utility>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"

namespace {

constexpr int kColumns = 74;
constexpr int kRowsBeside = 5;  // of the screen, above and below the window together
constexpr int kTitleColumn = 3, kExitColumn = 58;
constexpr int kMiddleColumns = -1, kMiddleRows = -2;  // where Win puts it
constexpr wchar_t kMoreAbove = 0x25B2, kMoreBelow = 0x25BC, kFrameSide = 0x2551;
constexpr int kWheelLines = 3;
constexpr int kLeftLines = 1, kRightLines = 2;

// How far a key moves: so many lines, windows full and whole pages.
struct ScrollKey {
  Key key;
  int lines, windows, pages;
};

constexpr ScrollKey kScrollKeys[] = {
    {kUp, -1, 0, 0},       //
    {kDown, 1, 0, 0},      //
    {kPageUp, 0, -1, 0},   //
    {kPageDown, 0, 1, 0},  //
    {kHome, 0, 0, -1},     //
    {kEnd, 0, 0, 1},
};

bool IsPress(const TMouseEvent& mouse) {
  return mouse.kind == kMouseLeftPress || mouse.kind == kMouseLeftDouble || mouse.kind == kMouseRightPress;
}

bool IsRelease(const TMouseEvent& mouse) {
  return mouse.kind == kMouseLeftRelease || mouse.kind == kMouseRightRelease;
}

}  // namespace

HelpWindow::HelpWindow(std::vector<Westring> text)
    : Win(kMiddleColumns, kMiddleRows, kColumns, ScreenRows - kRowsBeside, Options::Colours[kColourMessages],
          Options::Colours[kColourMessages]),
      lines(std::move(text)) {
  // The titles stand on the frame, around the inside.
  Print(kTitleColumn - 1, -1, L" Help ");
  PrintCentred(0, L" Orvane 2.40-dev ");
  Print(kExitColumn - 1, InnerHeight(), L" Esc to Exit ");
  DrawPage();
}

void HelpWindow::DrawPage() {
  const int count = static_cast<int>(lines.size());
  Console->BeginUpdate();
  for (int row = 0; row < TextRows(); ++row) {
    const int line = topLine + row;
    Print(0, 1 + row, LJust(line < count ? lines[static_cast<size_t>(line)] : Westring(), InnerWidth()));
  }
  const wchar_t above[] = {topLine > 0 ? kMoreAbove : kFrameSide, 0};
  const wchar_t below[] = {topLine + TextRows() < count ? kMoreBelow : kFrameSide, 0};
  Print(InnerWidth(), 0, above);
  Print(InnerWidth(), InnerHeight() - 1, below);
  Console->EndUpdate();
}

bool HelpWindow::ScrollBy(int count) {
  const int last = std::max(static_cast<int>(lines.size()) - TextRows(), 0);
  const int wanted = std::clamp(topLine + count, 0, last);
  if (wanted == topLine) return false;
  topLine = wanted;
  DrawPage();
  return true;
}

int HelpWindow::Zone(int screenY) const {
  const int third = (bottom - top + 1) / 3;
  return screenY < top + third ? -1 : screenY > bottom - third ? 1 : 0;
}

void HelpWindow::HandleKey(Key key) {
  for (const ScrollKey& row : kScrollKeys) {
    if (row.key != key) continue;
    ScrollBy(row.lines + row.windows * TextRows() + row.pages * static_cast<int>(lines.size()));
  }
}

bool HelpWindow::HandleMouse(const TMouseEvent& mouse) {
  const bool outside = !CellRect{left, top, right, bottom}.Contains(mouse.x, mouse.y);
  const bool clickedOutside = IsRelease(mouse) && pressedOutside && outside;
  pressedOutside = IsPress(mouse) && outside;
  if (IsRelease(mouse) || pressedOutside) {
    heldLines = 0;
  } else if (IsPress(mouse)) {
    heldLines = mouse.kind == kMouseRightPress ? kRightLines : kLeftLines;
  }
  step = heldLines * Zone(mouse.y);
  if (IsPress(mouse)) ScrollBy(step);
  if (mouse.kind == kMouseWheel) ScrollBy(mouse.delta > 0 ? -kWheelLines : kWheelLines);
  return clickedOutside;
}

Key HelpWindow::Run() {
  for (;;) {
    bool timedOut = false;
    TMouseEvent mouse;
    const Key key = ReadKey(timedOut, &mouse, step != 0 ? std::max(Options::ScrollDelay, 0) : -1);
    if (key == kEscape || key == FKey(1)) return key;
    if (key == kMouseKey) {
      if (HandleMouse(mouse)) return kEscape;
    } else if (key != 0) {
      HandleKey(key);
    } else if (!ScrollBy(step)) {
      step = 0;  // at the end of the text: no more waking up
    }
  }
}
