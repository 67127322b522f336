// Protection of text that a shell will read.
#include "shell/shell_quote.h"

#include <gtest/gtest.h>

#include "unit/shell/awkward_names.h"
#include "unit/shell/shell_output.h"

namespace {

constexpr wchar_t kGiven[] = L" !$~`[]{}()\\'\"<>&|";
constexpr wchar_t kAlso[] = L";*?#=^";

std::wstring Quoted(const std::wstring& text) { return ShellQuote(text.c_str()).Text(); }
std::wstring Unquoted(const std::wstring& text) { return Unquote(text.c_str()).Text(); }

bool IsControl(wchar_t c) { return c < 32 || c == 127; }

// What the program of a command line of all those names is given.
void ExpectEachToArrive(const std::vector<std::wstring>& names) {
  for (const char* shell : Shells()) {
    ArgumentPrinter printer;
    std::wstring line;
    for (const std::wstring& name : names) line += L" " + Quoted(name);
    const std::vector<std::string> arrived = printer.Run(shell, line);
    ASSERT_EQ(arrived.size(), names.size()) << shell;
    for (size_t i = 0; i < names.size(); ++i)
      EXPECT_EQ(arrived[i], ToUtf8(names[i].c_str()).Text()) << shell << ", name " << i;
  }
}

}  // namespace

TEST(ShellQuote, PutsABackslashBeforeEachCharacterThatMeansSomething) {
  for (const wchar_t* set : {kGiven, kAlso})
    for (const wchar_t* p = set; *p; ++p) {
      const std::wstring plain = std::wstring(L"a") + *p + L"b";
      EXPECT_EQ(Quoted(plain), std::wstring(L"a\\") + *p + L"b");
    }
}

TEST(ShellQuote, PutsABackslashBeforeControlCharactersAndANewlineInQuotes) {
  EXPECT_EQ(Quoted(L"a\tb\r\x01\x1B\x7F"), L"a\\\tb\\\r\\\x01\\\x1B\\\x7F");
  EXPECT_EQ(Quoted(L"a\nb"), L"a'\n'b");
  EXPECT_EQ(Quoted(L"\n\n"), L"'\n''\n'");
}

TEST(ShellQuote, LeavesAllOtherCharactersOfAsciiAlone) {
  const std::wstring special = std::wstring(kGiven) + kAlso;
  for (wchar_t c = 1; c < 127; ++c) {
    if (IsControl(c) || special.find(c) != std::wstring::npos) continue;
    EXPECT_EQ(Quoted(std::wstring(1, c)), std::wstring(1, c));
  }
  EXPECT_EQ(Quoted(L"-Some_name.tar.gz,v+1@2:3%/x"), L"-Some_name.tar.gz,v+1@2:3%/x");
}

TEST(ShellQuote, LeavesOtherScriptsAndTheEmptyTextAlone) {
  EXPECT_EQ(Quoted(L"\x444\x430\x439\x43B.\x4E16\xA0\x85"), L"\x444\x430\x439\x43B.\x4E16\xA0\x85");
  EXPECT_EQ(Quoted(L""), L"");
}

TEST(ShellQuote, EveryNameReachesAProgramAsOneArgumentWithItsBytes) { ExpectEachToArrive(AwkwardNames()); }

TEST(ShellQuote, RandomNamesReachAProgramAsOneArgumentWithTheirBytes) {
  ExpectEachToArrive(RandomNames(400));
}

TEST(ShellQuote, AProgramIsFoundByItsQuotedName) {
  for (const wchar_t* name : {L"a=b", L"#x", L"a%", L"my prog", L"x;y", L"new\nline", L"!", L"if*"})
    for (const char* shell : Shells()) {
      ArgumentPrinter printer(ToUtf8(name).Text());
      EXPECT_EQ(printer.RunByName(shell, Quoted(name) + L" one two"),
                (std::vector<std::string>{"one", "two"}))
          << shell << ": " << ToUtf8(name).Text();
    }
}

TEST(Unquote, TakesOneLevelAway) {
  EXPECT_EQ(Unquoted(L"my\\ file"), L"my file");
  EXPECT_EQ(Unquoted(L"a\\\\\\\\b"), L"a\\\\b");
  EXPECT_EQ(Unquoted(L"\\x\\y"), L"xy");
}

TEST(Unquote, KeepsABackslashWithNothingBehindIt) {
  EXPECT_EQ(Unquoted(L"a\\"), L"a\\");
  EXPECT_EQ(Unquoted(L"\\"), L"\\");
}

TEST(Unquote, KeepsOtherQuotes) {
  EXPECT_EQ(Unquoted(L"'a' \"b\" '\na'"), L"'a' \"b\" '\na'");
  EXPECT_EQ(Unquoted(L"\\'\n'"), L"'\n'");
}

TEST(Unquote, UndoesShellQuote) {
  for (const std::vector<std::wstring>& names : {AwkwardNames(), RandomNames(2000)})
    for (const std::wstring& name : names) EXPECT_EQ(Unquoted(Quoted(name)), name);
}
