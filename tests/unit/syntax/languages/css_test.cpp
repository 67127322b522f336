// CSS: properties, values and what has rules inside.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, CssTellsPropertiesFromValues) {
  EXPECT_TRUE(Coloured("a.css", R"(
body, a:hover { color: red; width: 10px }
ggggo go      oaaaaaao    oaaaaaao nnnn o
#id.cls { background: url(a"b.png) #fff0; margin: 0 1.5em !important; }
o  o    oaaaaaaaaaaao uuuuuuuuuuuu nnnnnoaaaaaaao n n nnn kkkkkkkkkkoao
)"));
}

TEST_F(Languages, CssSheetsHaveRules) {
  EXPECT_TRUE(Coloured("a.css", R"(
@media (min-width: 10em) and screen { a { color: #000 } b { top: 0 } }
kkkkkk o         o nnnno kkk        o g oaaaaaao nnnn o g oaaaao n o o
@import "a\"b.css"; a { content: 'x'; } /* a { */ b {}
kkkkkkk sseesssssso g oaaaaaaaao sssoao ccccccccc g oo
)"));
}

TEST_F(Languages, CssStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.css", R"(
a { content: "open;
g oaaaaaaaao ssssss
color: red; }
     o    oao
)"));
}

TEST_F(Languages, CssOfScssNestsAndHasLineComments) {
  EXPECT_TRUE(Coloured("a.scss", R"(
$w: 10px; // a {
  o nnnno cccccc
a { b: c; &:hover { d: e; } f: g; @include h; }
g oaao  oakkaaaaaaoaao  oaoaao  oakkkkkkkkaaaao
)"));
}

TEST_F(Languages, CssAloneHasNoLineComments) {
  EXPECT_TRUE(Coloured("a.css", R"(
a { b: c; } // a { b: c }
g oaao  oao    g oaao   o
)"));
}
