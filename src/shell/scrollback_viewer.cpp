// The viewer of the scrollback: a window without a frame over the whole screen.
#include "shell/scrollback_viewer.h"

#include <algorithm>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "console/scrollback.h"
#include "dialogs/dialog.h"
#include "shell/clock.h"
#include "shell/screen.h"

namespace {

constexpr int kRowsKept = 2;  // that a page has in common with the next one
constexpr int kOwnRows = 2;   // command line and function-key bar: no console text

// The rows on the screen, put behind those that scrolled off for as long as it
// lives.
class ScreenInScrollBack {
 public:
  ScreenInScrollBack() : added(std::max(ScreenRows - kOwnRows, 0)) {
    for (int y = 0; y < added; ++y)
      ScrollBack.Append(Console->SaveBlock(0, y, ScreenColumns, 1).get(), ScreenColumns);
  }
  ~ScreenInScrollBack() { ScrollBack.RemoveLast(added); }
  ScreenInScrollBack(const ScreenInScrollBack&) = delete;
  ScreenInScrollBack& operator=(const ScreenInScrollBack&) = delete;

 private:
  int added;
};

class CScrollBackViewer : public Win {
 public:
  CScrollBackViewer()
      : Win(0, 0, ScreenColumns - 1, ScreenRows - 1, Options::Colours[kColourCommandLine]),
        columns(ScreenColumns),
        rows(ScreenRows),
        top(LastTop()) {
    Draw();
  }

  void Handle(Key key);

 private:
  int LastTop() const { return std::max(0, ScrollBack.Count() - rows); }
  void Draw();
  void PrintRow(int y);
  void GoTo(int newTop);
  void StepUp();
  void StepDown();

  CellString scratch;
  int columns, rows;
  int top;  // the row shown first
};

void CScrollBackViewer::PrintRow(int y) {
  scratch.SetLength(0);
  if (top + y < ScrollBack.Count()) {
    int length = 0;
    const Cell* const cells = ScrollBack.Row(top + y, length);
    scratch.Append(cells, std::min(length, columns));
  }
  const Cell blank{' ', Attribute()};
  while (scratch.Length() < columns) scratch.Append(blank);
  Console->RestoreBlock(0, y, columns, 1, scratch.Cells());
}

void CScrollBackViewer::Draw() {
  Console->BeginUpdate();
  for (int y = 0; y < rows; ++y) PrintRow(y);
  Console->EndUpdate();
}

void CScrollBackViewer::GoTo(int newTop) {
  newTop = std::clamp(newTop, 0, LastTop());
  if (newTop == top) return;
  top = newTop;
  Draw();
}

void CScrollBackViewer::StepUp() {
  if (top == 0) return;
  --top;
  Scroll(0, 0, columns, rows, -1);
  PrintRow(0);
}

void CScrollBackViewer::StepDown() {
  if (top >= LastTop()) return;
  ++top;
  Scroll(0, 0, columns, rows, 1);
  PrintRow(rows - 1);
}

void CScrollBackViewer::Handle(Key key) {
  struct Row {
    Key key;
    void (*run)(CScrollBackViewer&);
  };
  static constexpr Row kRows[] = {
      {kUp, [](CScrollBackViewer& v) { v.StepUp(); }},
      {kDown, [](CScrollBackViewer& v) { v.StepDown(); }},
      {kPageUp, [](CScrollBackViewer& v) { v.GoTo(v.top - (v.rows - kRowsKept)); }},
      {kPageDown, [](CScrollBackViewer& v) { v.GoTo(v.top + v.rows - kRowsKept); }},
      {kHome, [](CScrollBackViewer& v) { v.GoTo(0); }},
      {kEnd, [](CScrollBackViewer& v) { v.GoTo(v.LastTop()); }},
  };
  for (const Row& row : kRows)
    if (row.key == key) row.run(*this);
}

}  // namespace

void ShowScrollBack() {
  const ScreenInScrollBack screen;
  CScrollBackViewer viewer;
  const WholeScreenSelectable selectable;
  DialogEvent event;
  do {
    GetDialogEvent(event, Dialog::kNoTimeLimit);
    if (event.type == kDialogKey) viewer.Handle(static_cast<Key>(event.code));
  } while (event.type != kDialogKey || event.code != kEscape);
}

int RunScrollBack(Shell& shell) {
  if (!Options::ConsoleScrollback) return kRedrawNothing;
  ShowPanels(false);
  RemoveClock();
  ShowScrollBack();
  shell.cursorDirty = true;
  return kRedrawAll;
}
