// The clipboard between a field of a dialog and other programs, by real keys.
#include <gtest/gtest.h>

#include "support/desktop.h"

namespace {

// The field of the left panel's filter, by way of the menu.
bool OpensField(Desktop& d) {
  d.Keys("F9 Enter l");
  return d.EventuallyShows("Filter for left panel");
}

}  // namespace

TEST(FieldClipboard, WhatIsCutInAFieldReachesOtherPrograms) {
  Desktop d;
  ASSERT_TRUE(OpensField(d));
  d.Keys("'*.c *.h' Ctrl-Shift-Left Shift-Left Shift-Left Ctrl-X");
  EXPECT_TRUE(d.Eventually([&] { return d.Clipboard() == "*.h"; })) << d.Clipboard();
  EXPECT_TRUE(d.Eventually([&] { return d.Screen().find("*.c") != std::string::npos; }));
  EXPECT_EQ(d.Screen().find("*.h"), std::string::npos);
}

TEST(FieldClipboard, TextOfOtherProgramsIsPastedAsOneLine) {
  Desktop d;
  d.SetClipboard("\none\ntwo\n");
  ASSERT_TRUE(OpensField(d));
  d.Keys("Shift-Ins");
  EXPECT_TRUE(d.EventuallyShows("one two"));
}

TEST(FieldClipboard, WhatIsCutComesBack) {
  Desktop d;
  ASSERT_TRUE(OpensField(d));
  d.Keys("'there' Shift-Home Ctrl-X");
  EXPECT_TRUE(d.Eventually([&] { return d.Clipboard() == "there"; }));
  d.Keys("'and ' Ctrl-V");
  EXPECT_TRUE(d.EventuallyShows("and there"));
}

TEST(FieldClipboard, WithTheOptionOffOtherProgramsAreLeftAlone) {
  Desktop d({}, "[General Options]\nPMClip=off\n");
  d.SetClipboard("kept");
  ASSERT_TRUE(OpensField(d));
  d.Keys("'there' Shift-Home Ctrl-X 'and ' Ctrl-V");
  EXPECT_TRUE(d.EventuallyShows("and there"));
  EXPECT_EQ(d.Clipboard(), "kept");
}
