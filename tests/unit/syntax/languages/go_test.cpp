// Go: raw strings, runes and directives.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, GoRawStringsHaveNoEscapes) {
  EXPECT_TRUE(Coloured("a.go", R"(
s := `a\` + "b\"c\n" + `two "
  oo ssss o sseesees o ssssss
lines // x`; return
ssssssssssso kkkkkk
)"));
}

TEST_F(Languages, GoRunesHaveEscapes) {
  EXPECT_TRUE(Coloured("a.go", R"(
r := '\'' + '"' + 'x' // 'y'
  oo heeh o hhh o hhh cccccc
)"));
}

TEST_F(Languages, GoDirectivesAreComments) {
  EXPECT_TRUE(Coloured("a.go", R"(
//go:build linux
pppppppppppppppp
// go func
cccccccccc
func f(a []byte) (int, error) { return len(a), nil }
kkkk  o  ootttto ottto ttttto o kkkkkk bbbo oo CCC o
)"));
}

TEST_F(Languages, GoStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.go", R"(
s := "open /* func
  oo sssssssssssss
func x2() {} /* a /* b */ func
kkkk   oo oo cccccccccccc kkkk
)"));
}
