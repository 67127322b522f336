// Java: annotations, documentation and texts of several lines.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, JavaAnnotationsEndWithTheirName) {
  EXPECT_TRUE(Coloured("A.java", R"(
@Override public int a(@Nullable String b, @Size(max = 3) c) {}
aaaaaaaaa kkkkkk ttt  oaaaaaaaaa tttttt  o aaaaao    o no  o oo
@A.B
aaaa
public @interface X { char c = '\u0041'; }
kkkkkk kkkkkkkkkk   o tttt   o heehhhhho o
)"));
}

TEST_F(Languages, JavaTextsGoOverLinesWithEscapes) {
  EXPECT_TRUE(Coloured("A.java", R"(
String s = """
tttttt   o sss
  a "b" \t int \""" c // d
sssssssseessssseesssssssss
  """; int i;
ssssso ttt  o
)"));
}

TEST_F(Languages, JavaDocumentationHasTags) {
  EXPECT_TRUE(Coloured("A.java", R"(
/** Of {@code int} "x".
dddddddgggggggggggddddd
 * @param a int 12 */ int b; /**/ int c; /* @param */
dddggggggdddddddddddd ttt  o cccc ttt  o cccccccccccc
)"));
}

TEST_F(Languages, JavaStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("A.java", R"(
s = "a\"b\q // c
  o sseessssssss
int i = 0x1F + a1; // int 'x'
ttt   o nnnn o   o cccccccccc
)"));
}
