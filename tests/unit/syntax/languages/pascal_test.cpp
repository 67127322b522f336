// Pascal: two kinds of comments.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, PascalCommentsOfEitherKindNestInThemselves) {
  EXPECT_TRUE(Coloured("a.pas", R"(
{ a { b } begin } begin (* a (* b *) begin *) end // end {
ccccccccccccccccc kkkkk ccccccccccccccccccccc kkk cccccccc
{ a (* b } begin (* a { b *) end { begin
cccccccccc kkkkk ccccccccccc kkk ccccccc
  *) } end
cccccc kkk
)"));
}

TEST_F(Languages, PascalDirectivesAreNoComments) {
  EXPECT_TRUE(Coloured("a.pas", R"(
{$IFDEF X} begin (*$R+*) end {$ENDIF}
pppppppppp kkkkk ppppppp kkk pppppppp
)"));
}

TEST_F(Languages, PascalStringsDoubleTheirQuotes) {
  EXPECT_TRUE(Coloured("a.pas", R"(
Write('it''s { begin', '', '''', #13#$0A'x'); END
kkkkkossseesssssssssso sso seeso enneennsssoo kkk
)"));
}

TEST_F(Languages, PascalNumbersMayBeHexadecimal) {
  EXPECT_TRUE(Coloured("a.dpr", R"(
x := $FF + 12; y := a1[$0A]; Var z: Integer = $1F;
  oo nnn o nno   oo   onnnoo kkk  o ttttttt o nnno
)"));
}

TEST_F(Languages, PascalStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.pp", R"(
s := 'open begin
  oo sssssssssss
begin
kkkkk
)"));
}
