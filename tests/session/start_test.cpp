// The program comes up, shows its panels and goes when it is told to.
#include <gtest/gtest.h>

#include "support/session.h"

TEST(Start, ShowsBothPanelsCommandLineAndFunctionKeys) {
  Session s({{"left/a.txt", "one"}, {"right/b.txt", "two"}});
  EXPECT_EQ(s.Columns(), 80);
  EXPECT_EQ(s.Rows(), 25);
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("right"));
  EXPECT_TRUE(s.Row(23).StartsWith(s.Path("left") + ">"));
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
}
