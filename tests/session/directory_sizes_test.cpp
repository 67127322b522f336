// Ctrl-Q: directory sizes in the panel, and the box of the count.
#include <gtest/gtest.h>

#include "panels/directory_sizes.h"
#include "panels/panel.h"
#include "session/main_screen.h"

namespace {

const FileList kFiles = {{"left/big/x", std::string(3000, 'x')},
                         {"left/big/deep/y", std::string(50, 'y')},
                         {"left/small/z", "1234"},
                         {"left/file", "12"}};

const char kPause[] = "SizeCountPause=on\n";

const entry& Named(const std::string& name) {
  const TPanel& panel = Panels[kLeftSide];
  for (int i = 0; i < panel.count; ++i)
    if (name == ToUtf8(panel.entries[i]->name).Text()) return *panel.entries[i];
  ADD_FAILURE() << name;
  return *panel.entries[0];
}

}  // namespace

TEST(DirectorySizes, TheOneUnderTheCursorGetsItsSize) {
  Session s(kFiles);
  s.Keys("Down Ctrl-Q");
  EXPECT_EQ(s.Under(kLeftSide), "big");
  EXPECT_EQ(Named("big").size, 3050);
  EXPECT_TRUE(Named("big").sizeKnown);
  EXPECT_FALSE(Named("small").sizeKnown);
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("3050"));
  EXPECT_TRUE(PanelRow(s, kLeftSide, 3).Contains("SUBDIR"));
  EXPECT_EQ(BarRow(s, kLeftSide), 2);
}

TEST(DirectorySizes, TaggedOnesAreCountedAndTheSumIsCorrected) {
  Session s(kFiles);
  s.Keys("Down Ins Ins Ins Ctrl-Q");
  EXPECT_EQ(Panels[0].taggedBytes, 3056u);
  EXPECT_TRUE(s.Row(21).Contains("bytes in 3 selected files"));
  EXPECT_EQ(Named("small").size, 4);
  s.Write("left/small/more", "56");
  s.Keys("Ctrl-Q");
  EXPECT_EQ(Panels[0].taggedBytes, 3058u);
  s.Keys("Ctrl-Grey-");
  EXPECT_EQ(Panels[0].taggedBytes, 0u);
}

TEST(DirectorySizes, F3OnADirectoryDoesTheSame) {
  Session s(kFiles);
  s.Keys("Down F3");
  EXPECT_EQ(Named("big").size, 3050);
  s.Keys("Down Alt-F3");
  EXPECT_EQ(Named("small").size, 4);
}

TEST(DirectorySizes, NothingHappensWithoutARealDirectory) {
  Session s(kFiles, {.settings = kPause, .prepare = [](const Sandbox& files) {
                       ASSERT_EQ(symlink("big", files.Path("left/link").c_str()), 0);
                     }});
  const std::string before = s.Screen();
  s.Keys("Ctrl-Q");  // on ".."
  EXPECT_EQ(s.Screen(), before);
  s.Keys("Down Down Ctrl-Q");
  EXPECT_EQ(s.Under(kLeftSide), "link");
  EXPECT_FALSE(s.FindRow("Reading Directories"));
  s.Keys("End Ctrl-Q");
  EXPECT_EQ(s.Under(kLeftSide), "file");
  EXPECT_FALSE(s.FindRow("Reading Directories"));
  s.Keys("Ins Home Down Down Ins Up Up Ctrl-Q");  // a file and a link are tagged
  EXPECT_EQ(s.Under(kLeftSide), "big");
  EXPECT_FALSE(s.FindRow("Reading Directories"));
  EXPECT_FALSE(Named("big").sizeKnown);
  EXPECT_FALSE(Named("link").sizeKnown);
}

TEST(DirectorySizes, NothingHappensWhileThePanelIsOff) {
  Session s(kFiles, {.settings = kPause});
  s.Keys("Down Ctrl-O Ctrl-Q");
  EXPECT_FALSE(s.FindRow("Reading Directories"));
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Under(kLeftSide), "big");
  EXPECT_FALSE(Named("big").sizeKnown);
}

TEST(DirectorySizes, ThePauseKeepsTheBoxUntilItIsAnswered) {
  Session s(kFiles, {.settings = kPause});
  s.Keys("Down Ctrl-Q");
  const auto top = s.FindRow(" Reading Directories ");
  ASSERT_TRUE(top);
  EXPECT_EQ(*top, (s.Rows() - 8) / 3);
  EXPECT_EQ(s.Character(13, *top), U'╔');
  EXPECT_EQ(s.Character(66, *top + 7), U'╝');
  EXPECT_TRUE(s.Row(*top + 2).Contains("Directories: 2   Files: 2"));
  EXPECT_TRUE(s.Row(*top + 3).Contains("Total Size: 3,050"));
  EXPECT_EQ(s.Text(14, *top + 5, 52).Trimmed(), "");
  EXPECT_EQ(s.Text(14 + 23, *top + 6, 6), "[ OK ]");
  s.Keys("Enter");
  EXPECT_FALSE(s.FindRow("Reading Directories"));
  EXPECT_EQ(Named("big").size, 3050);
}

TEST(DirectorySizes, AListBySizeIsSortedAgainUnderTheCursor) {
  Session s(kFiles, {.settings = "LeftSort=size\n"});
  ASSERT_EQ(s.Names(kLeftSide), (std::vector<std::string>{"..", "big", "small", "file"}));
  s.Keys("Down Down Ctrl-Q");
  EXPECT_EQ(s.Names(kLeftSide), (std::vector<std::string>{"..", "small", "big", "file"}));
  EXPECT_EQ(s.Under(kLeftSide), "small");
  s.Keys("Ctrl-F8 Home Down Down");
  EXPECT_EQ(s.Names(kLeftSide), (std::vector<std::string>{"..", "big", "small", "file"}));
}

TEST(DirectorySizes, EscEndsTheCountAndChangesNothing) {
  Session s(kFiles, {.settings = kPause});
  s.Keys("Down");
  s.KeysTypedAhead("Ctrl-Q Esc");
  EXPECT_TRUE(s.FindRow("Reading Directories"));  // how far it came
  s.Keys("Enter");
  EXPECT_FALSE(s.FindRow("Reading Directories"));
  EXPECT_FALSE(Named("big").sizeKnown);
  EXPECT_EQ(Named("big").size, 0);
}

TEST(DirectorySizes, WhatWasCountedBeforeAStopIsKept) {
  Session s(kFiles, {.settings = kPause});
  s.Keys("Down Ins Ins");
  KeepDirectorySize = [](const Westring& path, uint64_t) {
    if (NamePart(path) == L"small") RequestBreak();
  };
  s.Keys("Ctrl-Q Enter");
  KeepDirectorySize = nullptr;
  EXPECT_FALSE(s.FindRow("Reading Directories"));
  EXPECT_TRUE(Named("big").sizeKnown);
  EXPECT_FALSE(Named("small").sizeKnown);
  EXPECT_EQ(Panels[0].taggedBytes, 3050u);
}
