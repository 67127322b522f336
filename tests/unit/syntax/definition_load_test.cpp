// Sections, lines and included files of a syntax file.
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "syntax/highlighter.h"
#include "unit/scratch_directory.h"

namespace {

class DefinitionLoad : public testing::Test {
 protected:
  Westring Path(const std::string& name) const { return Westring(scratch.Path(name).c_str()); }

  bool LoadWritten(const char* fileName = "a.c") {
    const auto ask = [this](const Westring& text, const Westring& detail, int) {
      complaints.push_back(std::string(ToUtf8(text).Text()) + ": " + ToUtf8(detail).Text());
      return answer;
    };
    return definition.Load(Path("syntax.ini"), Westring(fileName), ask);
  }
  bool Load(const std::string& syntax, const char* fileName = "a.c") {
    scratch.Write("syntax.ini", syntax);
    return LoadWritten(fileName);
  }

  // The comment starts that were defined, each with a blank behind.
  std::string Comments() {
    std::string all;
    for (int i = 0; i < definition.Elements.Count(); ++i)
      all += std::string(dynamic_cast<CSyntaxLineComment&>(*definition.Elements.Peek(i)).Start.Text()) + " ";
    return all;
  }
  std::string Complaint(const char* text, const std::string& name) {
    return text + (": " + scratch.Path(name));
  }

  ScratchDirectory scratch;
  CSyntaxDefinition definition;
  std::vector<std::string> complaints;
  int answer = 'y';
};

// ---- sections --------------------------------------------------------------

TEST_F(DefinitionLoad, ASectionAppliesToNamesThatMatch) {
  EXPECT_TRUE(Load("[C:*.c]\nlinecomment:red://\n"));
  EXPECT_EQ(Comments(), "// ");
}

TEST_F(DefinitionLoad, ASectionForOtherNamesIsPassedOver) {
  EXPECT_FALSE(Load("[C:*.c]\nlinecomment:red://\n", "a.txt"));
  EXPECT_EQ(Comments(), "");
}

TEST_F(DefinitionLoad, WithoutAMatchingSectionTheHighlighterIsNotActive) {
  scratch.Write("syntax.ini", "[C:*.c]\nlinecomment:red://\n");
  CSyntaxHighlighter highlighter;
  highlighter.Load(Path("syntax.ini"), L"a.txt");
  EXPECT_FALSE(highlighter.Active);
  highlighter.Load(Path("syntax.ini"), L"a.c");
  EXPECT_TRUE(highlighter.Active);
}

TEST_F(DefinitionLoad, PatternsAreListedWithSemicolons) {
  const std::string syntax = "[C:*.c; *.h;Make*]\n";
  EXPECT_TRUE(Load(syntax, "a.c"));
  EXPECT_TRUE(Load(syntax, "a.h"));
  EXPECT_TRUE(Load(syntax, "makefile"));
  EXPECT_FALSE(Load(syntax, "a.cc"));
  EXPECT_FALSE(Load(syntax, ""));
}

TEST_F(DefinitionLoad, PatternsHaveSetsAndAlternatives) {
  const std::string syntax = "[C:*.[ch];*.{cpp,hpp};[a;b]x;{1;2,3}]\n";
  EXPECT_TRUE(Load(syntax, "A.H"));
  EXPECT_TRUE(Load(syntax, "a.hpp"));
  EXPECT_TRUE(Load(syntax, ";x"));
  EXPECT_TRUE(Load(syntax, "1;2"));
  EXPECT_FALSE(Load(syntax, "2"));
}

TEST_F(DefinitionLoad, OnlyTheBaseNameOfTheFileCounts) {
  EXPECT_TRUE(Load("[C:a.c]\n", "/x/y.d/a.c"));
  EXPECT_FALSE(Load("[C:*y.d*]\n", "/x/y.d/a.c"));
}

TEST_F(DefinitionLoad, TheHeadSplitsAtItsFirstColon) {
  EXPECT_TRUE(Load("[C:x:*.c]\n", "x:b.c"));
  EXPECT_FALSE(Load("[C:x:*.c]\n", "b.c"));
}

TEST_F(DefinitionLoad, AHeadWithoutAColonAcceptsNothing) {
  EXPECT_FALSE(Load("[*.c]\nlinecomment:red://\n"));
}

TEST_F(DefinitionLoad, BlanksInsideOfAHeadDoNotCount) { EXPECT_TRUE(Load("  [  C : *.c  ]  \n")); }

TEST_F(DefinitionLoad, SeveralSectionsAddToOneDefinition) {
  EXPECT_TRUE(Load("[C:*.c]\nlinecomment:red:1\n[D:*.d]\nlinecomment:red:2\n[All:*]\nlinecomment:red:3\n"));
  EXPECT_EQ(Comments(), "1 3 ");
}

TEST_F(DefinitionLoad, ALineWithAnOpeningBracketEndsTheSection) {
  EXPECT_TRUE(Load("[C:*.c;*.h]\nlinecomment:red:1\n[X\nlinecomment:red:2\n"));
  EXPECT_EQ(Comments(), "1 ");
}

TEST_F(DefinitionLoad, ABracketThatIsNotClosedAcceptsNothing) {
  EXPECT_FALSE(Load("[C:*.c\nlinecomment:red:1\n"));
}

TEST_F(DefinitionLoad, LinesOutsideOfSectionsHaveNoEffect) {
  EXPECT_TRUE(Load("linecomment:red:1\n; text\n[C:*.c]\n;linecomment:red:2\n# x\nlinecomment:red:3\n"));
  EXPECT_EQ(Comments(), "3 ");
}

TEST_F(DefinitionLoad, AnotherLoadAddsToTheFirst) {
  Load("[C:*.c]\nlinecomment:red:1\n");
  EXPECT_TRUE(Load("[C:*.c]\nlinecomment:red:2\n"));
  EXPECT_EQ(Comments(), "1 2 ");
}

TEST_F(DefinitionLoad, TheHighlighterAddsForTheSameFileAndStartsAnewForAnother) {
  scratch.Write("syntax.ini", "[C:*]\nlinecomment:red:1\nwordchars:_\n");
  CSyntaxHighlighter highlighter;
  highlighter.Load(Path("syntax.ini"), L"a.c");
  highlighter.Load(Path("syntax.ini"), L"a.c");
  EXPECT_EQ(highlighter.Definition.Elements.Count(), 2);
  highlighter.Push(highlighter.Definition.Elements.First());
  scratch.Write("syntax.ini", "[C:*]\nlinecomment:red:1\n");
  highlighter.Load(Path("syntax.ini"), L"b.c");
  EXPECT_EQ(highlighter.Definition.Elements.Count(), 1);
  EXPECT_FALSE(highlighter.Definition.WordChars['_']);
  EXPECT_EQ(highlighter.Top(), nullptr);
}

// ---- colour classes --------------------------------------------------------

TEST_F(DefinitionLoad, ColourClassesNameColours) {
  Load("[Colour Classes]\ncomment:green\n[C:*.c]\nlinecomment:Comment:1\n");
  EXPECT_EQ(definition.Elements.First()->Colour, 0x12);
}

TEST_F(DefinitionLoad, TheColourSectionCountsWithoutRegardToCaseAndBlanks) {
  Load("[ COLOUR classes ]\n a : green \n[C:*.c]\nlinecomment:a:1\n");
  EXPECT_EQ(definition.Elements.First()->Colour, 0x12);
}

TEST_F(DefinitionLoad, ColourClassesAloneAcceptNothing) { EXPECT_FALSE(Load("[Colour Classes]\na:green\n")); }

TEST_F(DefinitionLoad, AClassMayHaveTheNameOfAKeyOrNoColour) {
  Load(
      "[Colour "
      "Classes]\nlinecomment:green:x\nnothing\nempty:\n[C:*.c]\nlinecomment:linecomment:1\nlinecomment:empty:"
      "2\n");
  EXPECT_EQ(definition.Elements.Peek(0)->Colour, 0x12);  // "green:x" begins as "green" does
  EXPECT_EQ(definition.Elements.Peek(1)->Colour, 0x1B);
  EXPECT_EQ(definition.ColourClasses.Count(), 2);
}

TEST_F(DefinitionLoad, AClassBeforeItsDefinitionIsNotFound) {
  Load("[C:*.c]\nlinecomment:comment:1\n[Colour Classes]\ncomment:green\n[C:*.c]\nlinecomment:comment:2\n");
  EXPECT_EQ(definition.Elements.Peek(0)->Colour, 0x1B);
  EXPECT_EQ(definition.Elements.Peek(1)->Colour, 0x12);
}

TEST_F(DefinitionLoad, SeveralColourSectionsAddUpAndTheFirstOfANameStays) {
  Load(
      "[Colour Classes]\na:green\n[Colour "
      "Classes]\na:red\nb:red\n[C:*.c]\nlinecomment:a:1\nlinecomment:b:2\n");
  EXPECT_EQ(definition.Elements.Peek(0)->Colour, 0x12);
  EXPECT_EQ(definition.Elements.Peek(1)->Colour, 0x14);
}

// ---- lines -----------------------------------------------------------------

TEST_F(DefinitionLoad, LinesEndWithOrWithoutCarriageReturns) {
  EXPECT_TRUE(Load("[C:*.c]\r\n\tlinecomment:red:1 \r\nlinecomment:red:2"));
  EXPECT_EQ(Comments(), "1 2 ");
}

TEST_F(DefinitionLoad, ABackslashContinuesTheLine) {
  EXPECT_TRUE(Load("[C:*.c;\\\n*.h]\nline\\  \ncomment:\\\nred:1\n"));
  EXPECT_EQ(Comments(), "1 ");
  EXPECT_TRUE(Load("[D:*.x;\\\r\n*.d]\n", "a.d"));
}

TEST_F(DefinitionLoad, WhatContinuesALineIsTakenAsItStands) {
  Load("[C:*.c]\nwords:red:one\\\n  two\nlinecomment:red:\\\n  #  \n");
  EXPECT_EQ(definition.WordLists.First()->Count(), 2);
  EXPECT_EQ(Comments(), "  #   ");
}

TEST_F(DefinitionLoad, ABackslashInTheLastLineStays) {
  Load("[C:*.c]\nlinecomment:red:1\\");
  EXPECT_EQ(Comments(), "1\\ ");
}

TEST_F(DefinitionLoad, TheLastLineOfAnIncludedFileDoesNotContinueIntoTheOther) {
  scratch.Write("one.ini", "linecomment:red:1\\");
  Load("[C:*.c]\n!include one.ini\nlinecomment:red:2\n");
  EXPECT_EQ(Comments(), "1\\ 2 ");
}

TEST_F(DefinitionLoad, APhysicalLineIsCutAt1023Bytes) {
  const std::string head = "linecomment:red:";
  const std::string exact = head + std::string(1023 - head.size(), 'x');
  Load("[C:*.c]\n" + exact + "\n" + exact + "yyy\nlinecomment:red:1\n" + exact + "\r\nlinecomment:red:2\n");
  const std::string x = std::string(1023 - head.size(), 'x') + " ";
  EXPECT_EQ(Comments(), x + x + "1 " + x + "2 ");
}

TEST_F(DefinitionLoad, TheRestOfACutLineIsNoLine) {
  Load("[C:*.c]\n" + std::string(1023, 'x') + "linecomment:red:1\n" + std::string(1000000, 'y') +
       "\nlinecomment:red:2\n");
  EXPECT_EQ(Comments(), "2 ");
}

TEST_F(DefinitionLoad, LongerLinesAreMadeOfContinuations) {
  std::string words = "words:red:";
  for (int i = 0; i < 1000; ++i) words += "word" + std::to_string(i) + " \\\n";
  Load("[C:*.c]\n" + words + "last\n");
  EXPECT_EQ(definition.WordLists.First()->Count(), 1001);
}

TEST_F(DefinitionLoad, ContinuationsWithoutEndAreBounded) {
  const std::string part = std::string(1000, 'x') + "\\\n";
  std::string endless = "linecomment:red:";
  for (int i = 0; i < 1000; ++i) endless += part;
  Load("[C:*.c]\n" + endless + "\nlinecomment:red:1\n");
  ASSERT_EQ(definition.Elements.Count(), 2);
  EXPECT_LE(Comments().size(), size_t{SyntaxReader::kLongestLine} + 10);
}

TEST_F(DefinitionLoad, AByteOrderMarkIsNoPartOfTheFirstLine) { EXPECT_TRUE(Load("\xEF\xBB\xBF[C:*.c]\n")); }

TEST_F(DefinitionLoad, AZeroByteEndsItsLine) {
  EXPECT_TRUE(Load(std::string("[C:*.c]\nlinecomment:red:1\0x\nlinecomment:red:2\n", 45)));
  EXPECT_EQ(Comments(), "1 2 ");
}

// ---- includes --------------------------------------------------------------

TEST_F(DefinitionLoad, AnIncludedFileIsReadInPlace) {
  scratch.Write("one.ini", "linecomment:red:2\n");
  EXPECT_TRUE(Load("[C:*.c]\nlinecomment:red:1\n!include one.ini\nlinecomment:red:3\n"));
  EXPECT_EQ(Comments(), "1 2 3 ");
  EXPECT_TRUE(complaints.empty());
}

TEST_F(DefinitionLoad, IncludesTakeEffectAnywhere) {
  scratch.Write("one.ini", "[C:*.c]\nlinecomment:red:1\n");
  scratch.Write("two.ini", "linecomment:red:2\n[C:*.c]\nlinecomment:red:3\n");
  scratch.Write("three.ini", "linecomment:red:4\n");
  EXPECT_TRUE(
      Load("!include one.ini\n[Colour Classes]\n!INCLUDE\ttwo.ini\n[Other:*.x]\n!Include three.ini\n"));
  EXPECT_EQ(Comments(), "1 3 ");
}

TEST_F(DefinitionLoad, ASectionBegunInAnIncludedFileGoesOnBehindIt) {
  scratch.Write("one.ini", "[C:*.c]\n");
  Load("!include one.ini\nlinecomment:red:1\n");
  EXPECT_EQ(Comments(), "1 ");
}

TEST_F(DefinitionLoad, PathsAreTrimmedAndRelativeToTheFirstFile) {
  scratch.MakeDirectory("sub");
  scratch.Write("sub/one.ini", "!include sub/two.ini\n");
  scratch.Write("sub/two.ini", "linecomment:red:2\n");
  Load("[C:*.c]\n!include   sub/../sub/./one.ini  \n!include " + scratch.Path("sub/two.ini") + "\n");
  EXPECT_TRUE(complaints.empty());
  EXPECT_EQ(Comments(), "2 2 ");
}

TEST_F(DefinitionLoad, PathsMayHoldAnyCharacters) {
  scratch.Write("\xC3\xBC \\x.ini", "linecomment:red:1\n");
  Load("[C:*.c]\n!include \xC3\xBC \\x.ini\n");
  EXPECT_EQ(Comments(), "1 ");
}

TEST_F(DefinitionLoad, TheKeywordNeedsABlankAndAPath) {
  EXPECT_TRUE(Load("[C:*.c]\n!include\n!include \n!includeone.ini\n!includes one.ini\n"));
  EXPECT_TRUE(complaints.empty());
}

TEST_F(DefinitionLoad, AMissingFirstFileIsNoConcern) {
  EXPECT_FALSE(LoadWritten());
  EXPECT_TRUE(complaints.empty());
}

TEST_F(DefinitionLoad, AFirstFileThatCannotBeReadIsTold) {
  scratch.MakeDirectory("syntax.ini");
  EXPECT_FALSE(LoadWritten());
  EXPECT_EQ(complaints, std::vector{Complaint("Is a directory", "syntax.ini")});
}

TEST_F(DefinitionLoad, AMissingIncludedFileIsToldAndTheRestIsRead) {
  EXPECT_TRUE(Load("!include none.ini\n[C:*.c]\nlinecomment:red:1\n"));
  EXPECT_EQ(complaints, std::vector{Complaint("No such file or directory", "none.ini")});
  EXPECT_EQ(Comments(), "1 ");
}

TEST_F(DefinitionLoad, EscSparesTheOtherComplaintsOfALoad) {
  const std::string syntax = "!include 1.ini\n!include 2.ini\n[C:*.c]\nlinecomment:red:1\n";
  Load(syntax);
  EXPECT_EQ(complaints.size(), 2u);
  answer = kEscape;
  EXPECT_TRUE(Load(syntax));
  EXPECT_EQ(complaints.size(), 3u);
  EXPECT_EQ(Comments(), "1 1 ");
}

TEST_F(DefinitionLoad, AnIncludedPipeIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(scratch.Path("pipe").c_str(), 0600), 0);
  EXPECT_TRUE(Load("!include pipe\n!include /dev/zero\n[C:*.c]\n"));
  EXPECT_EQ(complaints,
            (std::vector{Complaint("Invalid argument", "pipe"), std::string("Invalid argument: /dev/zero")}));
}

TEST_F(DefinitionLoad, APathThatIsTooLongIsTold) {
  std::string path;
  for (int i = 0; i < 10; ++i) path += std::string(1000, 'x') + "\\\n";
  EXPECT_TRUE(Load("!include " + path + "\n[C:*.c]\n"));
  ASSERT_EQ(complaints.size(), 1u);
  EXPECT_TRUE(complaints[0].starts_with("File name too long: xxx"));
}

TEST_F(DefinitionLoad, AFileThatCannotBeReadToItsEndIsTold) {
  EXPECT_TRUE(Load("!include /proc/self/mem\n[C:*.c]\nlinecomment:red:1\n"));
  EXPECT_EQ(complaints, std::vector{std::string("Input/output error: /proc/self/mem")});
  EXPECT_EQ(Comments(), "1 ");
}

TEST_F(DefinitionLoad, AFileThatIncludesItselfIsTold) {
  EXPECT_TRUE(Load("[C:*.c]\nlinecomment:red:1\n!include syntax.ini\nlinecomment:red:2\n"));
  EXPECT_EQ(complaints, std::vector{Complaint("The file includes itself", "syntax.ini")});
  EXPECT_EQ(Comments(), "1 2 ");
}

TEST_F(DefinitionLoad, ACircleOfFilesIsTold) {
  scratch.Write("one.ini", "linecomment:red:1\n!include two.ini\n");
  scratch.Write("two.ini", "linecomment:red:2\n!include one.ini\nlinecomment:red:3\n");
  EXPECT_TRUE(Load("[C:*.c]\n!include one.ini\nlinecomment:red:4\n"));
  EXPECT_EQ(complaints, std::vector{Complaint("The file includes itself", "one.ini")});
  EXPECT_EQ(Comments(), "1 2 3 4 ");
}

TEST_F(DefinitionLoad, OneFileMayBeIncludedSeveralTimes) {
  scratch.Write("one.ini", "linecomment:red:1\n");
  EXPECT_TRUE(Load("[C:*.c]\n!include one.ini\n!include one.ini\n"));
  EXPECT_TRUE(complaints.empty());
  EXPECT_EQ(Comments(), "1 1 ");
}

TEST_F(DefinitionLoad, TooDeepIncludesAreToldOnce) {
  for (int i = 0; i < 50; ++i)
    scratch.Write(std::to_string(i), "!include " + std::to_string(i + 1) + "\nlinecomment:red:x\n");
  EXPECT_TRUE(Load("[C:*.c]\n!include 0\n!include 0\n"));
  ASSERT_EQ(complaints.size(), 1u);
  EXPECT_TRUE(complaints[0].starts_with("Too many included files: "));
  EXPECT_EQ(definition.Elements.Count(), 2 * (SyntaxReader::kDeepest - 1));
}

// Each file includes the next one twice: without a limit these were 2 ^ 30 files.
TEST_F(DefinitionLoad, IncludesThatMultiplyAreBounded) {
  for (int i = 0; i < 30; ++i) {
    const std::string next = "!include " + std::to_string(i + 1) + "\n";
    scratch.Write(std::to_string(i), next + next);
  }
  scratch.Write("30", "linecomment:red:x\n");
  EXPECT_TRUE(Load("[C:*.c]\n!include 0\nlinecomment:red:y\n"));
  ASSERT_EQ(complaints.size(), 1u);
  EXPECT_LT(definition.Elements.Count(), SyntaxReader::kMostFiles);
  EXPECT_TRUE(Comments().ends_with("x y "));
}

TEST_F(DefinitionLoad, AHugeFileEndsWhereTheLimitIs) {
  std::string huge = "linecomment:red:1\n";
  while (huge.size() <= size_t{SyntaxReader::kMostBytes}) huge += std::string(1000, 'x') + "\n";
  scratch.Write("huge", huge + "linecomment:red:2\n");
  EXPECT_TRUE(Load("[C:*.c]\n!include huge\nlinecomment:red:3\n"));
  EXPECT_EQ(complaints, std::vector{Complaint("File too large", "huge")});
  EXPECT_EQ(Comments(), "1 ");
}

// Reading all of it took a quarter of an hour at the least.
TEST_F(DefinitionLoad, AHugeLineEndsWhereTheLimitIs) {
  scratch.Write("huge", "linecomment:red:1\n" + std::string(SyntaxReader::kLongestPhysicalLine, 'x'));
  ASSERT_EQ(truncate(scratch.Path("huge").c_str(), off_t{1} << 40), 0);
  EXPECT_TRUE(Load("[C:*.c]\n!include huge\nlinecomment:red:2\n"));
  EXPECT_EQ(complaints, std::vector{Complaint("File too large", "huge")});
  EXPECT_EQ(Comments(), "1 ");
}

}  // namespace
