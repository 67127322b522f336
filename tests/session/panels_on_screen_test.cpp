// What the program shows in its panels.
#include <gtest/gtest.h>

#include "support/session.h"

TEST(PanelsOnScreen, ShowFilesOfBothDirectories) {
  Session s({{"left/a.txt", "one"}, {"left/dir/", ""}, {"right/", ""}});
  EXPECT_TRUE(s.Row(1).StartsWith("║..           │►UP-DIR◄│"));
  EXPECT_TRUE(s.Row(2).StartsWith("║dir          │►SUBDIR◄│"));
  EXPECT_TRUE(s.Row(3).StartsWith("║a.txt        │       3│"));
  EXPECT_EQ(s.Attribute(1, 1), 0x20);
  EXPECT_EQ(s.Attribute(1, 2), 0x1A);
  EXPECT_EQ(s.Attribute(1, 3), 0x1B);
  EXPECT_EQ(s.Text(0, 20, 40), "╟─────────────┴────────┴────────┴──────╢");
  EXPECT_TRUE(s.Row(21).StartsWith("║..  "));
  s.Keys("End");
  EXPECT_EQ(s.Attribute(1, 3), 0x30);
  EXPECT_TRUE(s.Row(21).StartsWith("║a.txt  "));
}

TEST(PanelsOnScreen, ColourRulesOfTheSettingsCount) {
  Session s({{"left/a.c", ""}, {"left/a.h", ""}, {"left/src/", ""}, {"right/", ""}},
            {.settings = "[Colours]\r\n*.c: bright red\r\n[Directory Colours]\r\nsrc: yellow on black\r\n"});
  EXPECT_EQ(s.Attribute(1, 2), 0x06);
  EXPECT_EQ(s.Attribute(1, 3), 0x1C);
  EXPECT_EQ(s.Attribute(1, 4), 0x1B);
}
