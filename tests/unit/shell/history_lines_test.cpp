// What a line of the history file means.
#include "shell/history_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::string Described(const HistoryLine& line) {
  return std::to_string(line.kind) + ":" + ToUtf8(line.text).Text();
}
std::string Parsed(const std::string& line) { return Described(ParseHistoryLine(line)); }
std::vector<std::string> Split(const std::string& content) {
  const auto lines = SplitHistory(content);
  return {lines.begin(), lines.end()};
}
std::string ReadBack(const std::string& written) {
  const auto lines = SplitHistory(written);
  return lines.size() == 1 ? Described(ParseHistoryLine(lines[0])) : "(several lines)";
}

using Texts = std::vector<std::string>;
constexpr char kNone[] = "-2:";

}  // namespace

TEST(HistoryLines, AnyLineEndEndsOne) {
  EXPECT_EQ(Split(""), Texts{});
  EXPECT_EQ(Split("a\r\nb\nc\rd\r\n"), (Texts{"a", "b", "c", "d"}));
  EXPECT_EQ(Split(std::string("a\0b", 3)), (Texts{"a", "b"}));
  EXPECT_EQ(Split("a\r\n\r\nb"), (Texts{"a", "", "b"}));
  EXPECT_EQ(Split("no end"), Texts{"no end"});
  EXPECT_EQ(Split("a\r"), Texts{"a"});
}

TEST(HistoryLines, AMarkBehindOneOrTwoDigitsMakesAnEntryOfADialog) {
  EXPECT_EQ(Parsed("ls"), "-1:ls");
  EXPECT_EQ(Parsed("5\x19*.c"), "5:*.c");
  EXPECT_EQ(Parsed("0\x19x"), "0:x");
  EXPECT_EQ(Parsed("11\x19 two  blanks "), "11: two  blanks ");
  EXPECT_EQ(Parsed("07\x19x"), "7:x");
}

TEST(HistoryLines, AMarkElsewhereMakesNone) {
  EXPECT_EQ(Parsed("\x19"), "-1:\x19");
  EXPECT_EQ(Parsed("123\x19x"), "-1:123\x19x");
  EXPECT_EQ(Parsed("é\x19x"), kNone) << "the index counts characters";
  EXPECT_EQ(Parsed("日本語\x19x"), "-1:日本語\x19x");
}

TEST(HistoryLines, AnEntryOfNoKnownDialogIsNothing) {
  for (const char* line : {"12\x19x", "99\x19x", "a\x19x", "1a\x19x", "-1\x19x", " 5\x19x", "5\x19"})
    EXPECT_EQ(Parsed(line), kNone) << line;
}

TEST(HistoryLines, ACommandHasNoLeadingBlanksAndIsNotEmpty) {
  EXPECT_EQ(Parsed("  ls  "), "-1:ls  ");
  EXPECT_EQ(Parsed(""), kNone);
  EXPECT_EQ(Parsed("   "), kNone);
}

TEST(HistoryLines, ALineOfMoreThan4096BytesIsNothing) {
  const std::string longest(4096, 'x');
  EXPECT_EQ(Parsed(longest), "-1:" + longest);
  EXPECT_EQ(Parsed(longest + "x"), kNone);
  EXPECT_EQ(CommandLineOf(longest.c_str()), longest + "\r\n");
  EXPECT_EQ(CommandLineOf((longest + "x").c_str()), "");
  EXPECT_EQ(DialogLineOf(std::string(4095, 'x').c_str(), 5), "");
}

TEST(HistoryLines, WhatIsWrittenReadsBack) {
  EXPECT_EQ(CommandLineOf(L"ls -l é"), "ls -l é\r\n");
  EXPECT_EQ(DialogLineOf(L" *.c", 11), "11\x19 *.c\r\n");
  EXPECT_EQ(ReadBack(DialogLineOf(L"5\x19x", 3)), "3:5\x19x");
}

TEST(HistoryLines, ACommandThatLooksLikeADialogsEntryStaysACommand) {
  for (const char* command :
       {"5\x19x", "11\x19x", "\x19\x19", "1\x19\x19", "x\x19", "\x19\x19\x19\x19", "é\x19"})
    EXPECT_EQ(ReadBack(CommandLineOf(command)), std::string("-1:") + command);
}

TEST(HistoryLines, LineEndsInATextBecomeBlanks) {
  EXPECT_EQ(CommandLineOf(L"a\nb\r\n5\x19x"), "a b  5\x19x\r\n");
  EXPECT_EQ(DialogLineOf(L"a\nrm -r x", 5),
            "5\x19"
            "a rm -r x\r\n");
}
