// The ways a command is expanded, its variables, and its limits.
#include "unit/shell/macro_fixture.h"

namespace {

class MacroModes : public MacroFixture {
 protected:
  MacroModes() {
    Add(0, L"cursor");
    Add(1, L"other");
    Variables.Set("HOME", "/home/user");
    Variables.Set("NOSUCH", nullptr);
  }
  void ShowArchive(int side) { panels[side].archive = std::make_unique<NoArchive>(); }
};

Westring ExtractToTemporary(int side, const Westring& name) {
  return name == L"bad" ? Westring() : (side == 0 ? L"/tmp/l " : L"/tmp/r ") + name;
}

}  // namespace

// ---- a template

TEST_F(MacroModes, ATemplateIsAboutItsName) {
  EXPECT_EQ(ExpandFor(L"a b.c", L"! !f !x !t !tx !l !lf"),
            L"a\\ b.c /home/left/a\\ b.c a\\ b a\\ b.c a\\ b a\\ b.c /home/left/a\\ b.c");
  EXPECT_EQ(code, kMacroRepeat);
}

TEST_F(MacroModes, ATemplateWithoutAMacroGetsTheFileAtItsEnd) {
  EXPECT_EQ(ExpandFor(L"file", L"mycmd"), L"mycmd file");
  EXPECT_EQ(ExpandFor(L"file", L"my cmd "), L"my cmd  file");
  EXPECT_EQ(ExpandFor(L"/usr/bin/a prog", L""), L"/usr/bin/a\\ prog");
  EXPECT_EQ(code, kMacroDone);
}

TEST_F(MacroModes, ADoubledSignIsAMacroCharacterOfATemplate) {
  EXPECT_EQ(ExpandFor(L"file", L"echo !!"), L"echo !");
}

TEST_F(MacroModes, ATypedCommandWithoutAMacroStays) {
  EXPECT_EQ(Expand(L"ls -l", kMacroPlain, L"file"), L"ls -l");
  EXPECT_EQ(Expand(L"", kMacroPlain, L"file"), L"");
}

TEST_F(MacroModes, ATemplateLeavesTheTagsAlone) {
  AddTagged(0, {L"a", L"b"});
  AddTagged(1, {L"c"});
  EXPECT_EQ(ExpandFor(L"file", L"!l!L!Lf"), L"file");
  EXPECT_EQ(Tagged(0) + Tagged(1), L"a b c ");
}

// ---- the trial

TEST_F(MacroModes, ATrialLeavesEveryOtherMacroAsItIsWritten) {
  AddTagged(0, {L"a"});
  AddTagged(1, {L"b"});
  const wchar_t* const line = L"!!!@ !f!F!l !lf!L!Lf!p!P!s!S!x!n ! !q $HOME \\$HOME";
  EXPECT_EQ(Try(line), line);
  EXPECT_EQ(code, kMacroDone);
  EXPECT_EQ(Tagged(0) + Tagged(1), L"a b ");
  EXPECT_FALSE(temporary.Exists(Temporary(0)));
}

TEST_F(MacroModes, ATrialTellsWhetherTheCommandIsToBeRepeated) {
  Try(L"a !tx");
  EXPECT_EQ(code, kMacroRepeat);
  Try(L"a !t");
  EXPECT_EQ(code, kMacroRepeat);
  Try(L"a !!t !T !x");
  EXPECT_EQ(code, kMacroDone);
}

TEST_F(MacroModes, AQuestionOfARepeatedCommandIsAskedOnce) {
  AddTagged(0, {L"a", L"b", L"c"});
  answers = {L"sub dir"};
  const std::wstring command = Try(L"cp !t !i\"Where to?\"");
  EXPECT_EQ(code, kMacroRepeat);
  EXPECT_EQ(command, L"cp !t sub\\ dir");
  for (const wchar_t* name : {L"a", L"b", L"c"})
    EXPECT_EQ(Expand(command, kMacroPlain, name), L"cp " + std::wstring(name) + L" sub\\ dir");
  EXPECT_EQ(titles, std::vector<std::wstring>{L"Where to?"});
}

TEST_F(MacroModes, EscInATrialCancels) {
  answers = {L"a", std::nullopt};
  EXPECT_EQ(Try(L"!i !i !i"), L"!i !i !i");
  EXPECT_EQ(code, kMacroCancelled);
}

TEST_F(MacroModes, AnAnswerIsNotExpandedAgain) {
  for (const wchar_t* answer : {L"hello!", L"!f", L"!!", L"$HOME", L"!t", L"\\!", L"x\ny", L"'!i'"}) {
    answers = {answer};
    const std::wstring atOnce = Expand(L"echo !i.");
    answers = {answer};
    EXPECT_EQ(Expand(Try(L"echo !i.")), atOnce);
    EXPECT_EQ(code, kMacroDone);
  }
}

TEST_F(MacroModes, AnAnswerBehindAMacroStaysApartFromIt) {
  for (const wchar_t* line : {L"!l!i", L"!L!i", L"!t!i", L"!t!i\"x\"!ix", L"!!!i", L"!p!i!f!i", L"!x!i"})
    for (const wchar_t* answer : {L"f", L"x", L"", L"n!", L"\""}) {
      const std::deque<std::optional<std::wstring>> same(wcsstr(wcsstr(line, L"!i") + 1, L"!i") ? 2 : 1,
                                                         answer);
      answers = same;
      const std::wstring atOnce = Expand(line, kMacroPlain, L"t.c");
      answers = same;
      EXPECT_EQ(Expand(Try(line), kMacroPlain, L"t.c"), atOnce);
    }
}

TEST_F(MacroModes, AnAnswerIsKeptForAnySign) {
  Options::CmdChar = '\\';
  answers = {L"a b"};
  EXPECT_EQ(Expand(Try(L"echo \\i")), L"echo a\\ b");
}

// ---- variables

TEST_F(MacroModes, AKnownVariableIsReplacedAndAnUnknownOneStays) {
  EXPECT_EQ(Expand(L"ls $HOME/x"), L"ls /home/user/x");
  EXPECT_EQ(Expand(L"ls $NOSUCH/x"), L"ls $NOSUCH/x");
  EXPECT_STREQ(ExpandEnvironment(L"$NOSUCH/x").Text(), L"/x");
}

TEST_F(MacroModes, AVariablesNameEndsAtWhiteSpaceDollarOrSlash) {
  EXPECT_EQ(Expand(L"$HOME $HOME\t$HOME\n$HOME/"), L"/home/user /home/user\t/home/user\n/home/user/");
  EXPECT_EQ(Expand(L"$HOME.x $HOME,"), L"$HOME.x $HOME,");
  EXPECT_EQ(Expand(L"$HOME$x $NOSUCH$HOME"), L"/home/userx $NOSUCH/home/user");
  EXPECT_EQ(Expand(L"$home"), L"/home/user");
}

TEST_F(MacroModes, OtherDollarsStay) {
  EXPECT_EQ(Expand(L"echo $ $$ $/ $(pwd) ${HOME} $1 $"), L"echo $ $$ $/ $(pwd) ${HOME} $1 $");
}

TEST_F(MacroModes, AValueIsNotExpanded) {
  Variables.Set("PLAIN", "a!f $HOME b");
  EXPECT_EQ(Expand(Try(L"echo $PLAIN")), L"echo a!f $HOME b");
  Variables.Set("EMPTY", "");
  EXPECT_EQ(Expand(L"a$EMPTY/b"), L"a/b");
}

TEST_F(MacroModes, ADollarOfANameIsNoVariables) {
  EXPECT_EQ(ExpandFor(L"$HOME", L"cat !"), L"cat \\$HOME");
  EXPECT_EQ(Expand(L"cat \\$HOME \\\\$HOME"), L"cat \\$HOME \\\\/home/user");
  AddTagged(0, {L"$HOME"});
  EXPECT_EQ(Expand(L"!l"), L"\\$HOME ");
}

// ---- archives

TEST_F(MacroModes, WithoutAnExtractorAnArchivesFileCannotBeHad) {
  ShowArchive(0);
  for (const wchar_t* line : {L"cat !", L"cat !f", L"cat !q"}) {
    EXPECT_EQ(Expand(line), line);
    EXPECT_EQ(code, kMacroNoName) << line;
  }
  EXPECT_EQ(ExpandFor(L"in", L"mycmd"), L"mycmd");
  EXPECT_EQ(code, kMacroNoName);
  EXPECT_EQ(Try(L"cat !"), L"cat !");
  EXPECT_EQ(code, kMacroDone);
}

TEST_F(MacroModes, AFileOfAnArchiveIsExtractedFirst) {
  ShowArchive(0);
  ExtractForMacro = ExtractToTemporary;
  EXPECT_EQ(Expand(L"cat ! !f"), L"cat /tmp/l\\ cursor /tmp/l\\ cursor");
  EXPECT_EQ(ExpandFor(L"/tmp/had", L"!f"), L"/tmp/had");
  EXPECT_EQ(Expand(L"!F"), L"/home/right/other");
  ShowArchive(1);
  EXPECT_EQ(Expand(L"!F"), L"/tmp/r\\ other");
}

TEST_F(MacroModes, NamesAloneNeedNoExtraction) {
  ShowArchive(0);
  EXPECT_EQ(Expand(L"!x !l !p", kMacroPlain), L"cursor cursor /home/left");
  EXPECT_EQ(Expand(L"!t !tx", kMacroPlain, L"a.b"), L"a.b a");
}

TEST_F(MacroModes, AFailedExtractionCancelsTheLine) {
  ShowArchive(0);
  ExtractForMacro = ExtractToTemporary;
  for (const wchar_t* line : {L"!", L"!f"}) {
    EXPECT_EQ(ExpandFor(L"bad", line), line);
    EXPECT_EQ(code, kMacroNoName);
  }
}

// ---- limits

TEST_F(MacroModes, ALineMayBeAsLongAsItsRoom) {
  const std::wstring fits(kMaxExpanded - 1, L'a'), tooLong(kMaxExpanded, L'a');
  for (const int mode : {kMacroPlain, kMacroTrial}) {
    EXPECT_EQ(Expand(fits, mode), fits);
    EXPECT_EQ(code, kMacroDone);
    EXPECT_EQ(Expand(tooLong, mode), tooLong);
    EXPECT_EQ(code, kMacroTooLong);
  }
  EXPECT_EQ(ExpandFor(L"f", fits), fits);
  EXPECT_EQ(code, kMacroTooLong);
}

TEST_F(MacroModes, ATextThatGrowsTooLongLeavesAllAsItWas) {
  Variables.Set("LONG", std::string(1000, 'v').c_str());
  AddTagged(0, {L"tagged"});
  std::wstring variables, signs;
  for (int i = 0; i < 17; ++i) variables += L" $LONG";
  for (int i = 0; i < 2000; ++i) signs += L"!f";
  for (const std::wstring& line : {L"!l !@" + variables, L"!l !@" + signs}) {
    EXPECT_EQ(Expand(line), line);
    EXPECT_EQ(code, kMacroTooLong);
    EXPECT_EQ(Tagged(0), L"tagged ");
    EXPECT_FALSE(temporary.Exists(Temporary(0)));
  }
}

TEST_F(MacroModes, QuotingCountsForTheLength) {
  const std::wstring blanks(9000, L' ');
  EXPECT_EQ(ExpandFor(blanks.c_str(), L"!"), L"!");
  EXPECT_EQ(code, kMacroTooLong);
}

// ---- list files that cannot be made

TEST_F(MacroModes, WithoutARoomForTheListFileTheLineFails) {
  Variables.Set("TMP", temporary.Path("missing").c_str());
  Westring line = L"a !@";
  MacroExpansion expansion(0, kMacroPlain, nullptr, nullptr);
  EXPECT_EQ(expansion.Run(line), kMacroNoListFile);
  EXPECT_EQ(expansion.listFileError, ENOENT);
  EXPECT_EQ(ToUtf8(expansion.listFile).Text(), temporary.Path("missing/" + Temporary(0)));
}

TEST_F(MacroModes, TheEntryPointDoesAllThat) {
  Westring line = L"cp ! $HOME !t";
  EXPECT_EQ(ExpandMacros(line, L"r", 0, kMacroPlain), kMacroRepeat);
  EXPECT_STREQ(line.Text(), L"cp cursor /home/user r");
  line = L"!p";
  EXPECT_EQ(ExpandMacros(line, nullptr, 1, kMacroPlain), kMacroDone);
  EXPECT_STREQ(line.Text(), L"/home/right");
}
