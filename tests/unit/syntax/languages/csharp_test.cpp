// C#: kinds of strings and the expressions in them.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, CsharpExpressionsInStringsAreCode) {
  EXPECT_TRUE(Coloured("a.cs", R"(
s = $"a {x + 1} {{b}} \n {f("in", 'c')} c"; int i;
  o ssssi  o niseeseeseesi  sssso hhh issso ttt  o
)"));
}

TEST_F(Languages, CsharpFormatsBeginBehindAColon) {
  EXPECT_TRUE(Coloured("a.cs", R"(
s = $"{x:N2} {(a ? 1 : 2)} {global::A}";
  o ssi iiiisi   o n o n isikkkkkk   iso
)"));
}

TEST_F(Languages, CsharpBracesInExpressionsNest) {
  EXPECT_TRUE(Coloured("a.cs", R"(
s = $"{new X { A = $"{y}" }.A} if"; if (x)
  o ssikkk       o ssi is  o isssso kk o o
)"));
}

TEST_F(Languages, CsharpVerbatimStringsDoubleTheirQuotes) {
  EXPECT_TRUE(Coloured("a.cs", R"(
s = @"a\" + @"say ""if"" 
  o sssss o sssssseessees
 on"; t = $@"{x} ""y"" \"; if
sssso   o sssi iseeseessso kk
)"));
}

TEST_F(Languages, CsharpRawStringsMayHaveQuotes) {
  EXPECT_TRUE(Coloured("a.cs", R"(
s = """a "b" \n {c}"""; t = $"""a {b} "c" """; if
  o sssssssssssssssssso   o ssssssi isssssssso kk
u = $$"""{a} {{1}}"""; if
  o sssssssssiiniissso kk
)"));
}

TEST_F(Languages, CsharpStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.cs", R"(
s = "open if
  o ssssssss
if (@class == 'x') // "a"
kk o       oo hhho cccccc
)"));
}

TEST_F(Languages, CsharpDocumentationHasTags) {
  EXPECT_TRUE(Coloured("a.cs", R"(
/// <summary>if "x"</summary>
ddddgggggggggddddddgggggggggg
//// if
ccccccc
#region Don't "
ppppppppppppppp
if
kk
)"));
}
