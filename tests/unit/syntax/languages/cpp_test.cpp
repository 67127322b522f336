// C++: raw strings, separators of digits, attributes.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, CppAddsItsKeywords) {
  EXPECT_TRUE(Coloured("a.cpp", R"(
class X : public std::string { X() = delete; };
kkkkk   o kkkkkk bbbootttttt o  oo o kkkkkko oo
#define X class "a" // b
ppppppppppppppppssspcccc
)"));
}

TEST_F(Languages, CppRawStringsHaveNoEscapes) {
  EXPECT_TRUE(Coloured("a.cc", R"~(
auto a = R"(a "b" \" // c
kkkk   o ssssssssssssssss
/* d )" + R"--( )" )--" + x;
sssssss o sssssssssssss o  o
FooR"(x)";
    ssssso
)~"));
}

TEST_F(Languages, CppQuotesSeparateDigits) {
  EXPECT_TRUE(Coloured("a.hpp", R"(
a = 1'000'000; b = '0'; c = 0b1'0 + 'a'; d = '1' + '\1';
  o nnnnnnnnno   o hhho   o nnnnn o hhho   o hhh o heeho
)"));
}

TEST_F(Languages, CppAttributesAreOfOneColour) {
  EXPECT_TRUE(Coloured("a.h", R"(
[[nodiscard]] int f(); a[b[0]] = 1;
aaaaaaaaaaaaa ttt  ooo  o onoo o no
)"));
}

TEST_F(Languages, CppQuotesOfWideCharactersCloseToo) {
  EXPECT_TRUE(Coloured("a.cxx", R"(
c = L'a' + u8'\n'; s = L"x" "y";
  o  hhh o   heeho   o  sss ssso
)"));
}
