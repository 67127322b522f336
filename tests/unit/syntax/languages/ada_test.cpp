// Ada: quotes begin attributes and characters.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, AdaTellsCharactersFromAttributes) {
  EXPECT_TRUE(Coloured("a.adb", R"(
X'First .. A'Range(1) & 'a' & '"' & ''' & Character'('x')'Image; -- if
 aaaaaa oo  aaaaaaono o hhh o hhh o hhh o tttttttttoohhhoaaaaaao ccccc
)"));
}

TEST_F(Languages, AdaStringsDoubleTheirQuotes) {
  EXPECT_TRUE(Coloured("a.ads", R"(
Put ("it ""if"" -- x", ""); IF X1 then
    osssseesseesssssso ssoo kk    kkkk
)"));
}

TEST_F(Languages, AdaStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.adb", R"(
S := "open if
  oo ssssssss
if A = '-' then -- if
kk   o hhh kkkk ccccc
)"));
}

TEST_F(Languages, AdaNumbersMayHaveABase) {
  EXPECT_TRUE(Coloured("a.adb", R"(
X := 16#FF_0# + 1_000; Y : Integer := 2#01#;
  oo nnnnnnnn o nnnnno   o ttttttt oo nnnnno
)"));
}
