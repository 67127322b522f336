// The lines of "descript.ion".
#include "fileops/descriptions.h"

#include "console/input.h"
#include "unit/fileops/copy_fixture.h"

namespace {

class DescriptionsTest : public CopyFixture {
 protected:
  DescriptionsTest() {
    files.MakeDirectory("left");
    files.MakeDirectory("right");
  }

  void Left(const std::string& lines) { files.Write("left/descript.ion", lines); }
  void Right(const std::string& lines) { files.Write("right/descript.ion", lines); }
  std::string Left() const { return files.Content("left/descript.ion"); }
  std::string Right() const { return files.Content("right/descript.ion"); }

  // From left to right; without a name for the target, under the same one.
  void CopyLine(const std::string& name, const std::string& target = "") {
    CopyDescription(nullptr, Wide("left/" + name), Wide("right/" + (target.empty() ? name : target)));
  }
  void MoveLine(const std::string& name) {
    MoveDescription(nullptr, Wide("left/" + name), Wide("right/" + name));
  }
  std::string Found(const std::string& name) {
    Descriptions descriptions;
    std::string text = "(none)";
    if (descriptions.Open(Wide("left"), false, false) == 0) descriptions.Find(name, text);
    return text;
  }
};

TEST_F(DescriptionsTest, TheFilesNameIsKnownInAnyCase) {
  EXPECT_TRUE(IsDescriptionsName("descript.ion"));
  EXPECT_TRUE(IsDescriptionsName("DESCRIPT.ION"));
  EXPECT_FALSE(IsDescriptionsName("descript.ions"));
}

TEST_F(DescriptionsTest, ALineIsFoundByItsWholeName) {
  Left("ab Wrong\na Right  text \n\"with blank\" Quoted\nend");
  EXPECT_EQ(Found("a"), "Right  text ");
  EXPECT_EQ(Found("with blank"), "Quoted");
  EXPECT_EQ(Found("end"), "");
  EXPECT_EQ(Found("with"), "(none)");
  EXPECT_EQ(Found("A"), "(none)");
  EXPECT_EQ(Found(""), "(none)");
}

TEST_F(DescriptionsTest, DamagedLinesFindNothing) {
  Left("\"open quote\n\n\"\"\n \n\"x\"");
  EXPECT_EQ(Found("open quote"), "(none)");
  EXPECT_EQ(Found("open"), "(none)");
  EXPECT_EQ(Found("x"), "");
}

TEST_F(DescriptionsTest, ACopyTakesTheLineToANewFile) {
  Left("b Other\na Text\n");
  CopyLine("a");
  EXPECT_EQ(Right(), "a Text\n");
  EXPECT_EQ(Left(), "b Other\na Text\n");
}

TEST_F(DescriptionsTest, ANewNameWithBlanksIsQuoted) {
  Left("a Text\n");
  CopyLine("a", "b c");
  EXPECT_EQ(Right(), "\"b c\" Text\n");
}

TEST_F(DescriptionsTest, TheNewLineTakesThePlaceOfAllOldOnes) {
  Left("a New\n");
  Right("a Old\nb Stays\na Older");
  CopyLine("a");
  EXPECT_EQ(Right(), "b Stays\na New\n");
}

TEST_F(DescriptionsTest, ALastLineWithoutAnEndGetsOne) {
  Left("a Text");
  Right("b Stays");
  CopyLine("a");
  EXPECT_EQ(Right(), "b Stays\na Text\n");
}

TEST_F(DescriptionsTest, WithoutALineNothingHappens) {
  Left("b Other\n");
  Right("a Stays\n");
  CopyLine("a");
  EXPECT_EQ(Right(), "a Stays\n");
  MoveLine("a");
  EXPECT_EQ(Right(), "a Stays\n");
  unlink(files.Path("left/descript.ion").c_str());
  unlink(files.Path("right/descript.ion").c_str());
  CopyLine("a");
  EXPECT_FALSE(files.Exists("right/descript.ion"));
}

TEST_F(DescriptionsTest, AMoveShiftsTheRestUp) {
  Left("a First\nb Second\nc Third\n");
  MoveLine("b");
  EXPECT_EQ(Left(), "a First\nc Third\n");
  EXPECT_EQ(Right(), "b Second\n");
}

TEST_F(DescriptionsTest, AFileLeftEmptyGoes) {
  Left("a Only\n");
  MoveLine("a");
  EXPECT_FALSE(files.Exists("left/descript.ion"));
  EXPECT_EQ(Right(), "a Only\n");
}

TEST_F(DescriptionsTest, ANewNameInTheSameDirectoryTakesTheLine) {
  Left("a Text\nb Old\nc Other\n");
  MoveDescription(nullptr, Wide("left/a"), Wide("left/b"));
  EXPECT_EQ(Left(), "c Other\nb Text\n");
}

TEST_F(DescriptionsTest, AnOpenFileSeesWhatOthersWrite) {
  Left("a First\nb Second\n");
  Descriptions open;
  ASSERT_EQ(open.Open(Wide("left"), true, false), 0);
  RemoveDescription(Wide("left/a"));
  EXPECT_EQ(Left(), "b Second\n");
  MoveDescription(&open, Wide("left/b"), Wide("right/b"));
  EXPECT_FALSE(open.IsOpen()) << "its file was left empty";
  EXPECT_EQ(Right(), "b Second\n");
  MoveDescription(&open, Wide("left/b"), Wide("right/b"));
}

TEST_F(DescriptionsTest, RemovingTakesTheLine) {
  Left("a First\n\"b c\" Second\n");
  RemoveDescription(Wide("left/b c"));
  EXPECT_EQ(Left(), "a First\n");
  RemoveDescription(Wide("left/absent"));
  EXPECT_EQ(Left(), "a First\n");
  RemoveDescription(Wide("left/a"));
  EXPECT_FALSE(files.Exists("left/descript.ion"));
  RemoveDescription(Wide("left/a"));
}

TEST_F(DescriptionsTest, OnlyASlashDividesPaths) {
  Left("b Wrong\na\\b Right\n");
  CopyLine("a\\b");
  EXPECT_EQ(Right(), "a\\b Right\n");
}

TEST_F(DescriptionsTest, TextsOfAnyEncodingStayAsTheyAre) {
  Left("a \xE9\x82\x04 x\t\r\n");
  CopyLine("a");
  EXPECT_EQ(Right(), "a \xE9\x82\x04 x\t\r\n");
}

TEST_F(DescriptionsTest, NamesThatNoLineCanHoldGetNone) {
  Left("a Text\n");
  for (const char* name : {"new\nline", "\"quote", "two\" parts"}) {
    CopyLine("a", name);
    EXPECT_FALSE(files.Exists("right/descript.ion")) << name;
  }
  CopyLine("a", "in\"side");
  EXPECT_EQ(Right(), "in\"side Text\n");
}

TEST_F(DescriptionsTest, WhatOnlyHasTheNameIsLeftAlone) {
  ASSERT_EQ(mkfifo(files.Path("left/descript.ion").c_str(), 0644), 0);
  Descriptions descriptions;
  EXPECT_NE(descriptions.Open(Wide("left"), false, false), 0);
  EXPECT_FALSE(descriptions.IsOpen());
  files.MakeDirectory("right/descript.ion");
  EXPECT_NE(descriptions.Open(Wide("right"), false, false), 0);
  EXPECT_EQ(descriptions.Open(Wide("absent"), false, false), ENOENT);
}

TEST_F(DescriptionsTest, AFullDiskCostsOnlyTheNewLine) {
  Left("a New\n");
  Right("x Stays\na Old\ny Stays\n");
  Fault full(kCallWrite, About("right/descript.ion", 2, ENOSPC));
  CopyLine("a");
  EXPECT_EQ(full.Calls(), 2);
  EXPECT_EQ(Right(), "x Stays\ny Stays\n");
}

TEST_F(DescriptionsTest, AFullDiskLeavesNoEmptyFile) {
  Left("a New\n");
  Fault full(kCallWrite, About("right/descript.ion", 1, ENOSPC));
  CopyLine("a");
  EXPECT_FALSE(files.Exists("right/descript.ion"));
  MoveLine("a");
  EXPECT_EQ(Right(), "a New\n");
}

TEST_F(DescriptionsTest, ALineThatCouldNotBeWrittenStaysWhereItWas) {
  Left("a Text\n");
  Fault full(kCallWrite, About("right/descript.ion", 1, ENOSPC));
  MoveLine("a");
  EXPECT_EQ(Left(), "a Text\n");
}

// ---- denied access --------------------------------------------------------------

TEST_F(DescriptionsTest, DeniedAccessIsTriedForAWhile) {
  Left("a Text\n");
  Fault denied(kCallOpen, {.path = files.Path("left"), .times = 3, .code = EACCES});
  Fault sleeps(kCallSleep, {.times = kEveryCall, .code = EINTR});
  EXPECT_EQ(Found("a"), "Text");
  EXPECT_EQ(denied.Calls(), 4);
  EXPECT_EQ(sleeps.Calls(), 3);
}

TEST_F(DescriptionsTest, AfterAHundredTriesTheDirectoryIsNotWaitedForAgain) {
  Left("a Text\n");
  Fault sleeps(kCallSleep, {.times = kEveryCall, .code = EINTR});
  {
    Fault denied(kCallOpen, {.path = files.Path("left"), .times = kEveryCall, .code = EACCES});
    EXPECT_EQ(Found("a"), "(none)");
    EXPECT_EQ(denied.Calls(), 101);
    EXPECT_EQ(sleeps.Calls(), 100);
    EXPECT_EQ(Found("a"), "(none)");
    EXPECT_EQ(denied.Calls(), 102);
  }
  EXPECT_EQ(Found("a"), "Text");
}

TEST_F(DescriptionsTest, WaitingEndsWithACancelThatTheCommandSees) {
  Left("a Text\n");
  BreakScope command;
  Fault denied(kCallOpen, {.path = files.Path("left"), .times = kEveryCall, .code = EACCES});
  Fault sleeps(kCallSleep,
               {.path = "", .at = 2, .times = 1, .code = EINTR, .before = [] { RequestBreak(); }});
  EXPECT_EQ(Found("a"), "(none)");
  EXPECT_EQ(sleeps.Calls(), 2);
  EXPECT_TRUE(command.Stopped());
}

}  // namespace
