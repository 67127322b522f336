// Swift: comments nest, expressions in strings are code.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, SwiftCommentsNest) {
  EXPECT_TRUE(Coloured("a.swift", R"(
/* a /* b */ if */ if x {} /** doc /* in */ if */ if
cccccccccccccccccc kk   oo dddddddddddddddddddddd kk
/**/ let a = 1 /// doc
cccc kkk   o n ddddddd
)"));
}

TEST_F(Languages, SwiftExpressionsInStringsAreCode) {
  EXPECT_TRUE(Coloured("a.swift", R"(
let s = "a \(x + f("in", (1))) \n if"; if
kkk   o sssii  o   sssso  n  iseesssso kk
)"));
}

TEST_F(Languages, SwiftTextsGoOverLinesWithEscapes) {
  EXPECT_TRUE(Coloured("a.swift", R"(
let s = """
kkk   o sss
 a "b" \t \u{41} \(1) // if
ssssssseeseeeeeesiinissssss
 """; if
sssso kk
)"));
}

TEST_F(Languages, SwiftRawStringsEscapeWithTheirHash) {
  EXPECT_TRUE(Coloured("a.swift", R"~(
let s = #"a\n "if" \#n \#(x1)"# + "a\"b\\"; if
kkk   o ssssssssssseeesiii  iss o sseeseeso kk
)~"));
}

TEST_F(Languages, SwiftStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.swift", R"(
let s = "open if
kkk   o ssssssss
#if DEBUG
ppp
@objc func `if`(_ a: Int8) -> Bool { return true }
aaaaa kkkk     o   o tttto oo tttt o kkkkkk CCCC o
)"));
}
