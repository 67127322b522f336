// Protection of text that a shell will read.
#include "shell/shell_quote.h"

#include <gtest/gtest.h>

namespace {
std::wstring Quoted(const wchar_t* text) { return ShellQuote(text).Text(); }
std::wstring Unquoted(const wchar_t* text) { return Unquote(text).Text(); }
}  // namespace

TEST(ShellQuote, PutsABackslashBeforeEachCharacterThatMeansSomething) {
  for (const wchar_t* p = L" !$~`[]{}()\\'\"<>&|"; *p; ++p) {
    const std::wstring plain = std::wstring(L"a") + *p + L"b";
    EXPECT_EQ(Quoted(plain.c_str()), std::wstring(L"a\\") + *p + L"b");
  }
}

TEST(ShellQuote, LeavesAllOtherCharactersOfAsciiAlone) {
  const std::wstring special = L" !$~`[]{}()\\'\"<>&|";
  for (wchar_t c = 1; c < 127; ++c) {
    if (special.find(c) != std::wstring::npos) continue;
    EXPECT_EQ(Quoted(std::wstring(1, c).c_str()), std::wstring(1, c));
  }
}

TEST(ShellQuote, LeavesOtherScriptsAndTheEmptyTextAlone) {
  EXPECT_EQ(Quoted(L"\x444\x430\x439\x43B.\x4E16"), L"\x444\x430\x439\x43B.\x4E16");
  EXPECT_EQ(Quoted(L""), L"");
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

TEST(Unquote, UndoesShellQuote) {
  for (const wchar_t* text :
       {L"", L"plain", L"a b", L"\\", L"it's \"$5\" & `x`|{y}<z>[~]!()", L"\xE9 \x4E16"})
    EXPECT_EQ(Unquoted(ShellQuote(text).Text()), text);
}
