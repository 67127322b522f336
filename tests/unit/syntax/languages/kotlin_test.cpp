// Kotlin: comments nest, names and expressions in strings.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, KotlinCommentsNest) {
  EXPECT_TRUE(Coloured("a.kt", R"(
/* a /* b */ if */ if (x) /** @param a /* in */ if */ if
cccccccccccccccccc kk o o ddddggggggddddddddddddddddd kk
/**/ val a = 1 // if /*
cccc kkk   o n cccccccc
)"));
}

TEST_F(Languages, KotlinNamesInStringsEndWhereTheyCannotGoOn) {
  EXPECT_TRUE(Coloured("a.kt", R"(
val s = "a $name, $b.c if $5 \$d $if $e\n $f"; if
kkk   o sssvvvvvssvvssssssssseessvvvsvveesvvso kk
val t = "$" + "a $ b" + '$' + "$a${b}"; if
kkk   o sss o sssssss o hhh o svvii iso kk
)"));
}

TEST_F(Languages, KotlinExpressionsInStringsAreCode) {
  EXPECT_TRUE(Coloured("a.kt", R"(
val s = "a ${if (x) "in $y" else { 'c' }} if"; if
kkk   o sssiikk o o ssssvvs kkkk   hhh  isssso kk
)"));
}

TEST_F(Languages, KotlinTextsHaveNoEscapes) {
  EXPECT_TRUE(Coloured("a.kts", R"(
val s = """a "b" \n $name
kkk   o ssssssssssssvvvvv
  if ${x + 1} $y"""; if
sssssii  o nisvvssso kk
)"));
}

TEST_F(Languages, KotlinStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.kt", R"(
val s = "open if
kkk   o ssssssss
@Test fun `if x`(a: Int): Unit? = null
aaaaa kkk       o o tttoo tttto o CCCC
)"));
}
