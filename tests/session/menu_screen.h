// The menus alone on a console: what was done before a test is RunMenu.
#pragma once

#include <vector>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "foundation/code_pages.h"
#include "panels/panel.h"
#include "shell/menu.h"
#include "support/console_fixture.h"
#include "support/expected_menus.h"

class MenuScreen : public ConsoleFixture {
 protected:
  MenuScreen() {
    Panels = panels;
    BuildCaseTables();  // which the marks' character waits for
    Options::Clock = false;
    Options::Shadows = true;
    for (int i = 0; i < kColourCount; ++i) Options::Colours[i] = kDefaultColours[i];
    for (int y = 0; y < kRows; ++y) Console->PutRepeated(0, y, kColumns, {'a' + y, 0x1B});
  }
  ~MenuScreen() override { Panels = nullptr; }

  Key Run(int side = 0) { return RunMenu(place, side, false); }
  Key Resume() { return RunMenu(place, 0, true); }

  // The drop-down's place on 80 columns by 25 rows.
  static constexpr int kLefts[] = {2, 10, 19, 31, 42};
  static constexpr int kWidths[] = {23, 29, 32, 27, 23};

  // The title in the colour of the highlight.
  std::string Title() const {
    int first = 0;
    while (first < kColumns && Attribute(first, 0) != 0x0F) ++first;
    int end = first;
    while (end < kColumns && Attribute(end, 0) == 0x0F) ++end;
    return Text(first, 0, end - first).Trimmed();
  }

  bool IsOpen() const { return Text(kLefts[place.menu], 1, 1) == "╔"; }

  // The text of the selected item, the mark left out.
  std::string Item() const {
    if (!IsOpen()) return "(closed)";
    const int left = kLefts[place.menu];
    for (int y = 2; y < kRows; ++y)
      if (Attribute(left + 1, y) == 0x0F) return Text(left + 2, y, kWidths[place.menu] - 3).Trimmed();
    return "(none)";
  }

  // Looks which title and which item are selected.
  void ThenAt(const std::string& title, const std::string& item) {
    Then([=, this] {
      EXPECT_EQ(Title(), title);
      EXPECT_EQ(Item(), item);
    });
  }

  MenuPlace place;
  TPanel panels[2];
};
