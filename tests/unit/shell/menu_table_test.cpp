// The menus' items, titles and quick keys.
#include "shell/menu_table.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <string>

#include "dialogs/help.h"
#include "shell/dispatch.h"
#include "support/expected_menus.h"

TEST(MenuTable, HasTheItemsOfTheFiveMenus) {
  for (int m = 0; m < 5; ++m) {
    const auto& expected = kExpectedMenus[m];
    ASSERT_EQ(kMenus[m].count, static_cast<int>(expected.size())) << m;
    for (int i = 0; i < kMenus[m].count; ++i) {
      const TMenuItem& item = kMenus[m].items[i];
      ASSERT_EQ(item.IsSeparator(), expected[i].text == nullptr) << m << ' ' << i;
      if (item.IsSeparator()) continue;
      EXPECT_STREQ(item.text, expected[i].text);
      EXPECT_EQ(item.hotIndex, expected[i].hotIndex) << item.text;
      EXPECT_EQ(item.command, expected[i].command) << item.text;
      EXPECT_EQ(item.mark, ' ') << item.text;
    }
  }
}

TEST(MenuTable, ADropDownIsAsWideAsItsLongestTextAsks) {
  const int widths[] = {23, 29, 32, 27, 23};
  for (int m = 0; m < 5; ++m) EXPECT_EQ(kMenus[m].width, widths[m]) << m;
}

TEST(MenuTable, EveryItemHasAQuickKeyOfItsOwn) {
  for (const TMenu& menu : kMenus) {
    std::set<int> keys;
    for (int i = 0; i < menu.count; ++i) {
      const TMenuItem& item = menu.items[i];
      if (item.IsSeparator()) continue;
      EXPECT_TRUE(keys.insert(toupper(item.text[item.hotIndex])).second) << item.text;
      EXPECT_NE(item.text[item.hotIndex], ' ') << item.text;
    }
  }
}

TEST(MenuTable, EveryCommandIsKnownToTheMainLoop) {
  for (const TMenu& menu : kMenus)
    for (int i = 0; i < menu.count; ++i)
      if (!menu.items[i].IsSeparator()) {
        EXPECT_NE(FindCommand(menu.items[i].command), nullptr) << menu.items[i].text;
      }
}

TEST(MenuTable, TitlesStandInTheBarWhereTheirColumnsSay) {
  const int columns[] = {2, 10, 19, 31, 42};
  const char* const titles[] = {"  Left  ", "  Files  ", "  Commands  ", "  Options  ", "  Right  "};
  const std::string bar = "    Left    Files    Commands    Options    Right  ";
  EXPECT_EQ(kMenuBarLine, bar);
  for (int m = 0; m < 5; ++m) {
    EXPECT_EQ(kMenuTitles[m].column, columns[m]);
    EXPECT_STREQ(kMenuTitles[m].text, titles[m]);
    EXPECT_EQ(bar.substr(static_cast<size_t>(columns[m]), std::string(titles[m]).size()), titles[m]);
  }
}

TEST(MenuTable, TheNextColumnsTellWhichTitleIsUnderThePointer) {
  const std::map<int, int> titles = {{0, 0},  {2, 0},  {9, 0},  {10, 1}, {18, 1},  {19, 2},  {30, 2},
                                     {31, 3}, {41, 3}, {42, 4}, {50, 4}, {51, -1}, {79, -1}, {131, -1}};
  for (const auto& [x, menu] : titles) EXPECT_EQ(TitleAt(x), menu) << x;
}

TEST(MenuTable, TitlesAreFoundByTheirQuickKeysInAnyCase) {
  const std::map<char, int> keys = {{'l', 0}, {'F', 1}, {'c', 2}, {'O', 3}, {'r', 4}, {'x', -1}, {' ', -1}};
  for (const auto& [key, menu] : keys) EXPECT_EQ(TitleWithKey(static_cast<Key>(key)), menu) << key;
}

TEST(MenuTable, ItemsAreFoundByTheirQuickKeysInAnyCase) {
  const TMenu& files = kMenus[kFilesMenu];
  EXPECT_EQ(ItemWithKey(files, 'l'), 0);
  EXPECT_EQ(ItemWithKey(files, 'L'), 0);
  EXPECT_EQ(ItemWithKey(files, 'q'), 19);
  EXPECT_EQ(ItemWithKey(files, 'w'), -1);
  EXPECT_EQ(ItemWithKey(files, ' '), -1);
  EXPECT_EQ(ItemWithKey(files, 0x10000 + 'q'), -1);
}

TEST(MenuTable, TheNextItemIsNeverASeparatorAndGoesRoundTheEnds) {
  const TMenu& files = kMenus[kFilesMenu];
  EXPECT_EQ(NextItem(files, 7, 1), 9);
  EXPECT_EQ(NextItem(files, 9, -1), 7);
  EXPECT_EQ(NextItem(files, 19, 1), 0);
  EXPECT_EQ(NextItem(files, 0, -1), 19);
}

TEST(MenuTable, HelpHasAPageForEachMenuAndOneForBothPanels) {
  const int pages[] = {100, 101, 102, 103, 100};
  for (int m = 0; m < 5; ++m) EXPECT_EQ(kMenuTitles[m].helpPage, pages[m]) << m;
}
