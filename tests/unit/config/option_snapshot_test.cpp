// Taking all options and giving them back.
#include "config/option_snapshot.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "config/option_text.h"
#include "config/settings_file.h"

namespace {

std::vector<std::string> AllTexts() {
  std::vector<std::string> texts;
  for (int i = 0; i < kOptionCount; ++i) {
    const OptionRow& row = kOptionTable[i];
    if (row.store != nullptr) texts.push_back(std::string(row.key) + "=" + OptionText(row).Text());
  }
  return texts;
}

// To something that the row does not hold now.
void ChangeOption(const OptionRow& row) {
  const std::string before = OptionText(row).Text();
  for (const char* text : {"on", "off", "7", "24", "12", "rtime", "unix", "info", "1 2 3"}) {
    SetOption(row, text);
    if (before != OptionText(row).Text()) return;
  }
  ADD_FAILURE() << row.key << " can't be changed";
}

class OptionSnapshotTest : public testing::Test {
 protected:
  OptionSnapshotTest() { SetDefaultOptions(); }
  ~OptionSnapshotTest() override { SetDefaultOptions(); }
};

}  // namespace

TEST_F(OptionSnapshotTest, EveryOptionComesBack) {
  const std::vector<std::string> before = AllTexts();
  const OptionSnapshot snapshot;
  for (int i = 0; i < kOptionCount; ++i)
    if (kOptionTable[i].store != nullptr) ChangeOption(kOptionTable[i]);
  const std::vector<std::string> changed = AllTexts();
  for (size_t i = 0; i < before.size(); ++i) EXPECT_NE(changed[i], before[i]);
  snapshot.Restore();
  EXPECT_EQ(AllTexts(), before);
}

// The settings file would give back other ones.
TEST_F(OptionSnapshotTest, ValuesThatTheFileCannotHoldComeBackToo) {
  Options::LeftStyle = 5;  // a tree is read as a full listing
  Options::LeftSort = 42;
  Options::TimeMode = 13;
  Options::ScrollDelay = INT_MIN;
  Options::CmdChar = 0;
  Options::Viewer = L" a\nb ";
  const OptionSnapshot snapshot;
  SetDefaultOptions();
  snapshot.Restore();
  EXPECT_EQ(Options::LeftStyle, 5);
  EXPECT_EQ(Options::LeftSort, 42);
  EXPECT_EQ(Options::TimeMode, 13);
  EXPECT_EQ(Options::ScrollDelay, INT_MIN);
  EXPECT_EQ(Options::CmdChar, 0);
  EXPECT_TRUE(Options::Viewer == L" a\nb ");
}

TEST_F(OptionSnapshotTest, AllColoursComeBack) {
  for (int i = 0; i < kColourCount; ++i) Options::Colours[i] = static_cast<uint8_t>(255 - i);
  const OptionSnapshot snapshot;
  SetDefaultOptions();
  snapshot.Restore();
  for (int i = 0; i < kColourCount; ++i) EXPECT_EQ(Options::Colours[i], 255 - i) << i;
}

TEST_F(OptionSnapshotTest, IsACopyThatLaterChangesDoNotReach) {
  Options::Editor = L"first";
  const OptionSnapshot snapshot;
  Options::Editor[0] = L'F';
  Options::Editor = L"second";
  snapshot.Restore();
  EXPECT_TRUE(Options::Editor == L"first");
  Options::Editor = L"third";
  snapshot.Restore();
  EXPECT_TRUE(Options::Editor == L"first");
}
