// Which program a command line begins with.
#include <gtest/gtest.h>

#include "shell/shell_quote.h"
#include "shell/spawn.h"
#include "unit/shell/awkward_names.h"

TEST(CommandWords, ABackslashEscapesWhatFollows) {
  EXPECT_EQ(FindUnescaped(L"a b", L' '), 1);
  EXPECT_EQ(FindUnescaped(L"a\\ b c", L' '), 4);
  EXPECT_EQ(FindUnescaped(L"a\\\\ b", L' '), 3);
  EXPECT_EQ(FindUnescaped(L"ab", L' '), -1);
  EXPECT_EQ(FindUnescaped(L"a\\", L' '), -1);
  EXPECT_EQ(FindUnescaped(L"", L' '), -1);
}

TEST(CommandWords, UnescapeRemovesOneLevel) {
  EXPECT_STREQ(Unescape(L"my\\ file").Text(), L"my file");
  EXPECT_STREQ(Unescape(L"a\\\\b").Text(), L"a\\b");
  EXPECT_STREQ(Unescape(L"end\\").Text(), L"end\\");
}

TEST(CommandWords, TheProgramIsTheFirstWordAndTheRestItsArguments) {
  const CommandWords words = SplitCommand(L"ls   -l  /tmp ");
  EXPECT_STREQ(words.program.Text(), L"ls");
  EXPECT_STREQ(words.arguments.Text(), L"-l  /tmp");
  EXPECT_STREQ(words.command.Text(), L"ls   -l  /tmp ");
}

TEST(CommandWords, APathWithAnEscapedBlankCountsAsOneWord) {
  const CommandWords words = SplitCommand(L"my\\ file x");
  EXPECT_STREQ(words.program.Text(), L"my file");
  EXPECT_STREQ(words.arguments.Text(), L"x");
  EXPECT_STREQ(SplitCommand(L"my\\ file").program.Text(), L"my file");
}

TEST(CommandWords, APipeEndsTheFirstWordAndTheShellStillGetsAllOfIt) {
  const CommandWords words = SplitCommand(L"a|b");
  EXPECT_STREQ(words.program.Text(), L"a");
  EXPECT_STREQ(words.command.Text(), L"a|b");
  EXPECT_STREQ(SplitCommand(L"a b|c").program.Text(), L"a");
  EXPECT_STREQ(SplitCommand(L"a|b c").program.Text(), L"a");
}

TEST(CommandWords, OfTheBlanksAroundACommandAnEscapedOneStays) {
  EXPECT_STREQ(TrimCommand(L" \t\n ls -l \r\f\v").Text(), L"ls -l");
  EXPECT_STREQ(TrimCommand(L"\\ a\\  ").Text(), L"\\ a\\ ");
  EXPECT_STREQ(TrimCommand(L"a\\\\ ").Text(), L"a\\\\");
  EXPECT_STREQ(TrimCommand(L"\x3000 a\x3000 ").Text(), L"\x3000 a\x3000");
  EXPECT_STREQ(TrimCommand(L" \t ").Text(), L"");
  EXPECT_STREQ(TrimCommand(L"").Text(), L"");
}

TEST(CommandWords, AnyQuotedNameIsReadAsItIs) {
  std::vector<std::wstring> names = AwkwardNames();
  for (const std::wstring& name : RandomNames(500)) names.push_back(name);
  names.push_back(L"\x3000wide\x3000");
  for (const std::wstring& name : names) {
    const Westring quoted = ShellQuote(name.c_str());
    EXPECT_EQ(Unescape(SplitCommand(L"$view  " + quoted + L" ").arguments).Text(), name);
    EXPECT_EQ(Unescape(SplitCommand(L"$view " + quoted + L" &").arguments).Text(), name);
    EXPECT_EQ(SplitCommand(L"#" + quoted + L" x").program.Text(), name);
  }
}

TEST(CommandWords, AHashForcesTheTerminalAndAnAmpersandSendsAway) {
  const CommandWords forced = SplitCommand(L"#xterm &");
  EXPECT_TRUE(forced.forceTerminal);
  EXPECT_FALSE(forced.background);  // the shell sees to it
  EXPECT_STREQ(forced.command.Text(), L"xterm &");
  const CommandWords sent = SplitCommand(L"xterm -e top  &");
  EXPECT_FALSE(sent.forceTerminal);
  EXPECT_TRUE(sent.background);
  EXPECT_STREQ(sent.command.Text(), L"xterm -e top");
  EXPECT_STREQ(sent.program.Text(), L"xterm");
}

TEST(CommandWords, AnEscapedAmpersandOrBlankAtTheEndBelongsToAName) {
  EXPECT_FALSE(SplitCommand(L"cp a\\&").background);
  EXPECT_STREQ(SplitCommand(L"cp a\\&").command.Text(), L"cp a\\&");
  EXPECT_STREQ(SplitCommand(L"cp a\\\\&").command.Text(), L"cp a\\\\");
  EXPECT_STREQ(SplitCommand(L"cp a\\  &").command.Text(), L"cp a\\ ");
  EXPECT_STREQ(SplitCommand(L"cp a\\ &").command.Text(), L"cp a\\ ");
  EXPECT_STREQ(SplitCommand(L"cp a\\\\ &").command.Text(), L"cp a\\\\");
  EXPECT_STREQ(SplitCommand(L"cp a\\&&").command.Text(), L"cp a\\&");
  EXPECT_STREQ(SplitCommand(L"&").command.Text(), L"");
  EXPECT_STREQ(SplitCommand(L"\\").command.Text(), L"\\");
}

TEST(CommandWords, ALineThatBeginsWithABlankIsOneProgram) {
  EXPECT_STREQ(SplitCommand(L" ls").program.Text(), L" ls");
  EXPECT_STREQ(SplitCommand(L" ls").arguments.Text(), L"");
}
