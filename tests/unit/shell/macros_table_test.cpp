// The macros of commands, each for itself.
#include <sys/stat.h>

#include "shell/shell_quote.h"
#include "unit/shell/macro_fixture.h"

namespace {

class Macros : public MacroFixture {
 protected:
  Macros() {
    Add(0, L"..");
    Add(0, L"my file.tar.gz");
    Add(0, L"b.txt");
    Add(0, L"c");
    PutCursorOn(0, 1);
    Add(1, L"other one.c");
    Add(1, L"d");
  }
  void TagInLeft(std::initializer_list<int> indexes) {
    for (const int i : indexes) {
      panels[0].entries[i]->tagged = 1;
      ++panels[0].taggedCount;
      panels[0].taggedBytes += 10;
    }
  }
};

}  // namespace

// ---- the sign

TEST_F(Macros, ADoubledSignIsOneSign) {
  EXPECT_EQ(Expand(L"echo hi!!"), L"echo hi!");
  EXPECT_EQ(Expand(L"!!!!"), L"!!");
  EXPECT_EQ(code, kMacroDone);
}

TEST_F(Macros, ADoubledSignComesBehindWhatStandsInFrontOfIt) {
  EXPECT_EQ(Expand(L"!x!!!p"), L"my\\ file.tar!/home/left");
}

TEST_F(Macros, TheSignAloneIsTheFile) {
  EXPECT_EQ(Expand(L"cat !"), L"cat my\\ file.tar.gz");
  EXPECT_EQ(Expand(L"cat ! >x"), L"cat my\\ file.tar.gz >x");
}

TEST_F(Macros, ALetterWithoutARowStaysBehindTheFile) {
  EXPECT_EQ(Expand(L"cp ! !.bak"), L"cp my\\ file.tar.gz my\\ file.tar.gz.bak");
  EXPECT_EQ(Expand(L"!X"), L"my\\ file.tar.gzX");
  EXPECT_EQ(Expand(L"!T!I!N!q"), L"my\\ file.tar.gzTmy\\ file.tar.gzImy\\ file.tar.gzNmy\\ file.tar.gzq");
}

TEST_F(Macros, AnEmptyPanelGivesTheEmptyName) {
  panels[0].FreeEntries();
  panels[1].FreeEntries();
  EXPECT_EQ(Expand(L"a[!][!f][!F][!x][!l][!lf][!L][!t]"), L"a[][][][][][][][]");
  EXPECT_EQ(code, kMacroRepeat);
}

TEST_F(Macros, TheSignIsAnOption) {
  Options::CmdChar = '%';
  EXPECT_EQ(Expand(L"echo ! %f %%"), L"echo ! /home/left/my\\ file.tar.gz %");
  Options::CmdChar = static_cast<char>(0xA7);
  EXPECT_EQ(Expand(L"echo % \xA7x"), L"echo % my\\ file.tar");
  Options::CmdChar = 'l';
  EXPECT_EQ(Expand(L"llf lf"), L"lf /home/left/my\\ file.tar.gz");
  Options::CmdChar = 0;
  EXPECT_EQ(Expand(L"echo !f"), L"echo !f");
  EXPECT_EQ(ExpandFor(L"f", L"cmd"), L"cmd f");
}

// ---- the file

TEST_F(Macros, FIsTheFileWithItsPath) { EXPECT_EQ(Expand(L"!f"), L"/home/left/my\\ file.tar.gz"); }

TEST_F(Macros, FIsMadeAbsoluteAgainstTheListingsPath) {
  CopyText(panels[0].lastPath, L"/of/listing");
  EXPECT_EQ(Expand(L"!f"), L"/of/listing/my\\ file.tar.gz");
  PutCursorOn(0, 0);
  EXPECT_EQ(Expand(L"!f"), L"/of");
  EXPECT_EQ(ExpandFor(L"/else/where", L"!f"), L"/else/where");
}

TEST_F(Macros, FIsWholeAlsoWhereAPanelCouldNotGo) {
  const std::wstring name(300, L'n'), directory = L"/" + std::wstring(400, L'd');
  CopyText(panels[0].lastPath, directory.c_str());
  EXPECT_EQ(ExpandFor(name.c_str(), L"!f"), directory + L"/" + name);
}

TEST_F(Macros, CapitalFIsTheOtherPanelsFile) {
  EXPECT_EQ(Expand(L"diff ! !F"), L"diff my\\ file.tar.gz /home/right/other\\ one.c");
  PutCursorOn(1, 1);
  EXPECT_EQ(Expand(L"!F"), L"/home/right/d");
}

TEST_F(Macros, XIsTheFileWithoutItsExtension) {
  EXPECT_EQ(Expand(L"!x.o"), L"my\\ file.tar.o");
  for (const auto& [name, expected] :
       {std::pair{L"b.txt", L"b"}, {L"c", L"c"}, {L".bashrc", L""}, {L"a.", L"a"}, {L"/x.d/y", L"/x.d/y"}})
    EXPECT_EQ(ExpandFor(name, L"!x"), expected);
}

TEST_F(Macros, TIsTheNameThatTheCommandIsRepeatedFor) {
  EXPECT_EQ(Expand(L"cp !t !", kMacroPlain, L"b.txt"), L"cp b.txt my\\ file.tar.gz");
  EXPECT_EQ(code, kMacroRepeat);
  EXPECT_EQ(Expand(L"cp ! x"), L"cp my\\ file.tar.gz x");
  EXPECT_EQ(code, kMacroDone);
}

TEST_F(Macros, TxIsThatNameWithoutItsExtension) {
  EXPECT_EQ(Expand(L"!tx.o !ty", kMacroPlain, L"b c.txt"), L"b\\ c.o b\\ c.txty");
  EXPECT_EQ(code, kMacroRepeat);
}

// ---- lists

TEST_F(Macros, LWithoutTagsIsTheFileWithoutABlank) {
  EXPECT_EQ(Expand(L"rm !l."), L"rm my\\ file.tar.gz.");
  EXPECT_EQ(Expand(L"rm !lf."), L"rm /home/left/my\\ file.tar.gz.");
}

TEST_F(Macros, LTakesTheTaggedFilesInTheirOrder) {
  TagInLeft({1, 3});
  EXPECT_EQ(Expand(L"rm !l."), L"rm my\\ file.tar.gz c .");
  EXPECT_EQ(Tagged(0), L"");
  EXPECT_EQ(panels[0].taggedCount, 0);
  EXPECT_EQ(panels[0].taggedBytes, 0u);
  for (int i : {0, 1, 2, 3}) EXPECT_EQ(panels[0].entries[i]->processed, i % 2) << i;
}

TEST_F(Macros, LfPutsThePathInFrontOfEach) {
  CopyText(panels[0].path, L"/a b");
  TagInLeft({2, 3});
  EXPECT_EQ(Expand(L"rm !lf"), L"rm /a\\ b/b.txt /a\\ b/c ");
  EXPECT_EQ(Tagged(0), L"");
}

TEST_F(Macros, CapitalLIsTheOtherPanelsListWithItsPath) {
  AddTagged(1, {L"x y", L"z"});
  EXPECT_EQ(Expand(L"cp !L."), L"cp /home/right/x\\ y /home/right/z .");
  EXPECT_EQ(Tagged(1), L"");
  EXPECT_EQ(panels[1].taggedCount, 0);
}

TEST_F(Macros, CapitalLWithAnFIsTheSame) {
  AddTagged(1, {L"z"});
  EXPECT_EQ(Expand(L"cp !Lf."), L"cp /home/right/z .");
  EXPECT_EQ(Tagged(1), L"");
}

TEST_F(Macros, CapitalLWithoutTagsIsNothing) { EXPECT_EQ(Expand(L"cp !L. !Lf."), L"cp . ."); }

TEST_F(Macros, TheListOfOnePanelLeavesTheTagsOfTheOther) {
  TagInLeft({3});
  AddTagged(1, {L"z"});
  EXPECT_EQ(Expand(L"!l"), L"c ");
  EXPECT_EQ(Tagged(1), L"z ");
}

TEST_F(Macros, AListEndsBeforeItIsLongerThanAThousandCharacters) {
  const std::wstring name(99, L'n');
  for (int i = 0; i < 12; ++i) Add(0, name, true);
  const std::wstring list = Expand(L"!l");
  EXPECT_EQ(list.size(), 1000u);
  EXPECT_EQ(panels[0].taggedCount, 2);
  EXPECT_EQ(panels[0].taggedBytes, 20u);
  EXPECT_EQ(Expand(L"!l").size(), 200u);  // a second run takes them up
  EXPECT_EQ(panels[0].taggedCount, 0);
}

TEST_F(Macros, ABlankCountsInAListAndSoDoBackslashes) {
  Add(0, std::wstring(899, L'n'), true);
  Add(0, std::wstring(50, L'&'), true);  // and 50 backslashes, and a blank
  EXPECT_EQ(Expand(L"!l").size(), 900u);
  EXPECT_EQ(panels[0].taggedCount, 1);
}

TEST_F(Macros, ASmallerNameBehindTheLastIsNotTaken) {
  AddTagged(0, {std::wstring(900, L'a').c_str(), std::wstring(200, L'b').c_str(), L"c"});
  EXPECT_EQ(Expand(L"!l"), std::wstring(900, L'a') + L" ");
  EXPECT_EQ(Tagged(0), std::wstring(200, L'b') + L" c ");
}

TEST_F(Macros, ASecondListOnTheLineGoesOnWhereTheFirstEnded) {
  const std::wstring name(499, L'n');
  for (int i = 0; i < 3; ++i) Add(0, name, true);
  const std::wstring line = Expand(L"!l;!l;!l");
  EXPECT_EQ(line, name + L" " + name + L" ;" + name + L" ;my\\ file.tar.gz");
  EXPECT_EQ(panels[0].taggedCount, 0);
}

TEST_F(Macros, TagsOfAListThatIsNotShownGoToo) {
  TagInLeft({3});
  panels[0].panelType = kPanelInfo;
  EXPECT_EQ(Expand(L"!l"), L"c ");
  EXPECT_EQ(panels[0].taggedCount, 0);
  EXPECT_EQ(panels[0].taggedBytes, 0u);
  EXPECT_EQ(Tagged(0), L"");
}

TEST_F(Macros, TheListFileHoldsTheQuotedNamesOfTheTaggedFiles) {
  TagInLeft({1, 2});
  Expand(L"tar -T !@ x");
  EXPECT_EQ(temporary.Content(Temporary(0)), "my\\ file.tar.gz\r\nb.txt\r\n");
  EXPECT_EQ(panels[0].taggedCount, 2);
}

TEST_F(Macros, TheMacroOfAListFileIsItsName) {
  const std::wstring directory = Westring(temporary.Path().c_str()).Text();
  const std::wstring name = Westring(Temporary(0).c_str()).Text();
  EXPECT_EQ(Expand(L"tar -T !@ x"),
            L"tar -T " + directory + L"/" + std::wstring(ShellQuote(name.c_str()).Text()) + L" x");
}

TEST_F(Macros, OnlyTheUserMayReadAListFile) {
  Expand(L"!@");
  struct stat status;
  ASSERT_EQ(stat(temporary.Path(Temporary(0)).c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(Macros, TheListFileHoldsTheFileWhereNoneIsTagged) {
  Expand(L"!@");
  EXPECT_EQ(temporary.Content(Temporary(0)), "my\\ file.tar.gz\r\n");
  ExpandFor(L"x&y", L"!@");
  EXPECT_EQ(temporary.Content(Temporary(1)), "x\\&y\r\n");
}

// ---- directories

TEST_F(Macros, PAndCapitalPAreTheListingsPaths) {
  CopyText(panels[0].lastPath, L"/of listing");
  CopyText(panels[1].lastPath, L"/other");
  EXPECT_EQ(Expand(L"ls !p !P"), L"ls /of\\ listing /other");
}

TEST_F(Macros, SAndCapitalSHaveAClosingSlash) {
  EXPECT_EQ(Expand(L"ls !s* !S*"), L"ls /home/left/* /home/right/*");
  CopyText(panels[0].lastPath, L"/");
  EXPECT_EQ(Expand(L"!sx"), L"/x");
}

// ---- questions and nothing

TEST_F(Macros, IAsksTheUser) {
  answers = {L"two words"};
  EXPECT_EQ(Expand(L"grep !i ."), L"grep two\\ words .");
  EXPECT_EQ(titles, std::vector<std::wstring>{L"?"});
}

TEST_F(Macros, ITakesATitleInQuotes) {
  answers = {L"a", L"b", L"c"};
  EXPECT_EQ(Expand(L"!i\"What, then?\"!i\"\"x !i \"y\""), L"abx c \"y\"");
  EXPECT_EQ(titles, (std::vector<std::wstring>{L"What, then?", L"?", L"?"}));
}

TEST_F(Macros, AQuoteThatIsNeverClosedIsNoTitle) {
  answers = {L"a"};
  EXPECT_EQ(Expand(L"!i\"What ?!!"), L"a\"What ?!");
  EXPECT_EQ(titles, std::vector<std::wstring>{L"?"});
}

TEST_F(Macros, EscCancelsTheLine) {
  TagInLeft({3});
  answers = {std::nullopt};
  EXPECT_EQ(Expand(L"!l !@ !i"), L"!l !@ !i");
  EXPECT_EQ(code, kMacroCancelled);
  EXPECT_EQ(Tagged(0), L"c ");
  EXPECT_EQ(panels[0].entries[3]->processed, 0);
  EXPECT_FALSE(temporary.Exists(Temporary(0)));
}

TEST_F(Macros, NIsRemoved) {
  EXPECT_EQ(Expand(L"!ncd x!n"), L"cd x");
  EXPECT_EQ(ExpandFor(L"file", L"!nmycmd"), L"mycmd");
}
