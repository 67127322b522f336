// The viewer in the real window.
#include <gtest/gtest.h>

#include "support/desktop.h"

namespace {

std::string ManyLines() {
  std::string text;
  for (int i = 1; i <= 1000; ++i) text += "Line " + std::to_string(i) + "\n";
  return text;
}

constexpr int kBlue = 1;

}  // namespace

TEST(Viewer, F3ShowsAFileAndEscBringsThePanelsBack) {
  Desktop d({{"left/file.txt", ManyLines()}});
  d.Keys("Down");
  ASSERT_TRUE(d.Eventually([&] { return d.Background(5, 2) != kBlue; }));  // the bar is on the file
  const std::string title = d.Title();
  const auto rows = [&] {
    std::string text;
    for (int y = 1; y < 23; ++y) text += d.Row(y) + "\n";
    return text;
  };
  const std::string before = rows();

  d.Keys("F3");
  ASSERT_TRUE(
      d.Eventually([&] { return d.Row(1).starts_with("Line 1 ") && d.Row(23).starts_with("Line 23 "); }));
  EXPECT_TRUE(d.Row(0).starts_with("View: "));
  EXPECT_TRUE(d.Eventually([&] { return d.Title() == "Orvane: file.txt"; }));
  d.Keys("PgDn Down");
  EXPECT_TRUE(
      d.Eventually([&] { return d.Row(1).starts_with("Line 24 ") && d.Row(23).starts_with("Line 46 "); }));
  d.Keys("End");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(23).starts_with("Line 1000 "); }));

  d.Keys("Esc");
  EXPECT_TRUE(d.Eventually([&] { return rows() == before; }));
  EXPECT_TRUE(d.Eventually([&] { return d.Title() == title; }));
}

TEST(Viewer, TheTitleNamesTheFileThatTheWalkHasComeTo) {
  Desktop d({{"left/a.txt", "one\n"}, {"left/b.txt", "two\n"}});
  d.Keys("Down F3");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(1).starts_with("one "); }));
  d.Keys("Alt-Down");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(1).starts_with("two "); }));
  EXPECT_TRUE(d.Eventually([&] { return d.Title() == "Orvane: b.txt"; }));
}

TEST(Viewer, AHeldButtonScrollsAndTheKeyBarIsClicked) {
  Desktop d({{"left/file.txt", ManyLines()}});
  d.Keys("Down F3");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(1).starts_with("Line 1 "); }));
  d.MovePointer(40, 20);
  d.Press(1);
  EXPECT_TRUE(d.Eventually([&] { return !d.Row(1).starts_with("Line 1 ") && d.Row(1) > "Line 3"; }));
  d.Release(1);
  d.Click(1, 57, 24);
  EXPECT_TRUE(d.Eventually([&] { return d.Row(1).starts_with("Line 1 "); }));
  d.Click(4, 40, 10);
  d.Click(5, 40, 10);
  EXPECT_TRUE(d.Eventually([&] { return d.Row(1).starts_with("Line 4 "); }));
  d.Keys("Esc");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1Help   2Menu"); }));
}
