// A dialog of a test with a list that notes what it draws.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "config/values/colours.h"
#include "dialogs/list_box.h"
#include "support/dialog_probe.h"

// A list of wide strings that notes the rows it draws and the texts it is asked
// for.
class WatchedList : public ListBoxWestring {
 public:
  using ListBoxWestring::ListBoxWestring;

  void DrawItem(int shownRow, int index, uint8_t attribute) override {
    drawn.push_back(shownRow);
    if (const auto look = whenDrawn) look(index);
    ListBoxWestring::DrawItem(shownRow, index, attribute);
  }
  Westring GetItemText(int index) override {
    ++asked;
    return ListBoxWestring::GetItemText(index);
  }
  // The rows drawn since the last call.
  std::vector<int> TakeDrawn() { return std::exchange(drawn, {}); }
  bool HasSearchBox() const { return searchBox != nullptr; }

  std::vector<int> drawn;
  int asked = 0;
  std::function<void(int index)> whenDrawn;
};

// The list stands at (2, 1) of the dialog, which is (23, 7) of the screen.
class ListTest : public DialogTest {
 protected:
  static constexpr int kX = 23, kY = 7;
  static constexpr int kBottomFrame = 14, kRightFrame = 59;  // of the dialog

  void Fill(int count) {
    for (int i = 0; i < count; ++i) items.Add(Westring(Estring::Format("item %d", i)));
  }

  WatchedList* AddList(int width, int height, int exitMode = kListDefault) {
    const int index = dialog->Count();
    list = new WatchedList(*dialog, index, 2, 1, true, width, height, &items, &selection, exitMode);
    dialog->Add(list);
    return list;
  }

  std::string ListRow(int row, int width = 10) const { return Text(kX, kY + row, width).String(); }

  // The row in the colour of the cursor, or -1.
  int BarRow(int height = 8) const {
    for (int row = 0; row < height; ++row) {
      if (Attribute(kX, kY + row) == Options::Colours[kColourMenuHighlight]) return row;
    }
    return -1;
  }

  // Everything a list could be asked, then the end.
  void EveryKeyThenEscape() {
    Keys("Up Down PgUp PgDn Home End Left Right 'xa ' Backspace F5 Alt-a Ctrl-a Del");
    for (int y = 4; y <= 16; ++y) {
      Mouse(kEventPress, 1, kX, y);
      Mouse(kEventDoubleClick, 1, kX + 1, y);
      Mouse(kEventMotion, 1, kX, y);
      Mouse(kEventRelease, 1, kX, y);
    }
    Keys("Esc");
  }

  WestringStore items;
  int32_t selection = 0;
  WatchedList* list = nullptr;
};
