// JavaScript and TypeScript: templates and regular expressions.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, JavascriptExpressionsInTemplatesAreCode) {
  EXPECT_TRUE(Coloured("a.js", R"(
let s = `a ${x + f({a: `in ${1}`})} \` \u{41} if
kkk   o sssii  o  o  o ssssiinis oiseeseeeeeesss
 ${if}`; if
siikkiso kk
)"));
}

TEST_F(Languages, JavascriptTellsRegularExpressionsFromDivisions) {
  EXPECT_TRUE(Coloured("a.js", R"(
x = a / b / c; y = /a"b[/'\]]\/\d+/g; f(/'/, / /); return /"/.test(s) / 2
  o   o   o  o   oooxxxxxxeexeeeexx o  ooxxoooxxoo kkkkkkkkxxo    o o o n
)"));
}

TEST_F(Languages, JavascriptCommentsAreNoRegularExpressions) {
  EXPECT_TRUE(Coloured("a.js", R"(
f(// if
 cccccc
x = // if
  ccccccc
f(/* if */ a, /* b */ if)
 ccccccccc  ccccccccc kko
x = /* if */ 1, // if
  cccccccccc nccccccc
)"));
}

TEST_F(Languages, JavascriptStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.mjs", R"(
s = "a\"b' // c" + 'd"\'\q' + "open
  o sseessssssss o ssseesss o sssss
if (x1) y = 0x1F + 10n; // if "
kk o  o   o nnnn o nnno ccccccc
)"));
}

TEST_F(Languages, JavascriptDocumentationHasTags) {
  EXPECT_TRUE(Coloured("a.js", R"(
#!/usr/bin/env node
ccccccccccccccccccc
/** if @param {string} a */ if /* @param */
dddddddggggggdddddddddddddd kk cccccccccccc
)"));
}

TEST_F(Languages, TypescriptAddsItsTypes) {
  EXPECT_TRUE(Coloured("a.ts", R"(
interface A { readonly a: string; } @Input() b: number
kkkkkkkkk   o kkkkkkkk  o tttttto o aaaaaaoo  o tttttt
)"));
}

TEST_F(Languages, JavascriptHasNoTypes) {
  EXPECT_TRUE(Coloured("a.js", R"(
interface A { readonly a: string; }
            o           o       o o
)"));
}
