// C: directives, comments, strings and characters.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, CNumbersInsideWordsAreNone) {
  EXPECT_TRUE(Coloured("a.c", R"(
int int32 = x1 + 0x1F * 1e5f; unsigned_t u;
ttt       o    o nnnn o nnnno             o
)"));
}

TEST_F(Languages, CKeywordsCountOutsideOfStringsAndCommentsOnly) {
  EXPECT_TRUE(Coloured("a.c", R"(
if (x) puts("if int 12"); // if int "12"
kk o o     osssssssssssoo cccccccccccccc
/* return "a // b */ return 'r'; /* " */ else
cccccccccccccccccccc kkkkkk hhho ccccccc kkkk
)"));
}

TEST_F(Languages, CEscapesDoNotCloseStringsAndCharacters) {
  EXPECT_TRUE(Coloured("a.c", R"(
s = "a\"b // \n \x41\\"; c = '\''; d = '\\'; e = '"';
  o sseessssseeseesseeso   o heeho   o heeho   o hhho
)"));
}

TEST_F(Languages, CStringsGoOnBehindABackslash) {
  EXPECT_TRUE(Coloured("a.c", R"(
puts("two \
    ossssse
lines"); int i;
ssssssoo ttt  o
)"));
}

TEST_F(Languages, CCommentsDoNotNest) {
  EXPECT_TRUE(Coloured("a.c", R"(
/* a /* b */ int i; /**/ int j;
cccccccccccc ttt  o cccc ttt  o
)"));
}

TEST_F(Languages, CDocumentationIsNoBanner) {
  EXPECT_TRUE(Coloured("a.c", R"(
/** of x */ int x; /*! of y */ int y; //! of z
ddddddddddd ttt  o ddddddddddd ttt  o dddddddd
/***** banner *****/ int a; /// of b
cccccccccccccccccccc ttt  o dddddddd
)"));
}

TEST_F(Languages, CDirectivesEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.c", R"(
#include <stdio.h> // one
pppppppppssssssssspcccccc
# include "own.h"
ppppppppppsssssss
#define N 12 /* over
ppppppppppnnpccccccc
 lines */ 'c' "s"
cccccccccphhhpsss
int i;
ttt  o
#if defined(X) && !Y
pppppppppppppppppppp
)"));
}

TEST_F(Languages, CDirectivesGoOnBehindABackslash) {
  EXPECT_TRUE(Coloured("a.c", R"(
#define ADD(a) if (a) \
ppppppppppppppppppppppp
  Add(a, "12"); \
pppppppppsssspppp
	else(0)
pppppppppppppnp
int i = 1;
ttt   o no
)"));
}

TEST_F(Languages, CTextOfErrorsMayHaveQuotes) {
  EXPECT_TRUE(Coloured("a.c", R"(
#error don't
pppppppppppp
int i;
ttt  o
)"));
}

TEST_F(Languages, CCodeThatIsSwitchedOffIsAComment) {
  EXPECT_TRUE(Coloured("a.c", R"(
#if 0
ccccc
don't /* #endif */ // #else
ccccccccccccccccccccccccccc
#if A
ccccc
#else
ccccc
#endif
cccccc
#else
ppppp
int i;
ttt  o
#endif
pppppp
#if 0
ccccc
#endif
pppppp
int j;
ttt  o
)"));
}

TEST_F(Languages, CCharacterEndsWithTheLine) {
  EXPECT_TRUE(Coloured("a.c", R"(
x = 'a
  o hh
int i;
ttt  o
)"));
}

TEST_F(Languages, CIsLessThanCPlusPlus) {
  EXPECT_TRUE(Coloured("a.c", R"(
class x; int template = 1; auto y;
       o ttt          o no kkkk  o
)"));
}
