// HTML with scripts and styles inside.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, HtmlTellsTagsFromTheirAttributes) {
  EXPECT_TRUE(Coloured("a.html", R"(
<!DOCTYPE html><p class="a > &amp; b" id='x' hidden>don't &lt; a < b &#169;</p>
pppppppppppppppgggaaaaaossssseeeeesssaaaosssaaaaaaag      eeee       eeeeeegggg
<!-- <b> "x --><br/><a
cccccccccccccccggggggg
  href="x">y</a>
gaaaaaosssg gggg
)"));
}

// Inside of a string the end tag counts for nothing.
TEST_F(Languages, HtmlScriptsAreCodeUpToTheirEndTag) {
  EXPECT_TRUE(Coloured("a.htm", R"(
<script type="module">let s = "it's <b>"; // c
gggggggaaaaaossssssssgkkk   o sssssssssso cccc
/* c */ if (a < b) return `a ${x + {y: "1"}.y} \` b`;
ccccccc kk o  o  o kkkkkk sssiiiioi  o sss oiiseessso
x = "</script>"
  o sssssssssss
</script><b>if</b>
gggggggggggg  gggg
)"));
}

TEST_F(Languages, HtmlScriptsEndInLineComments) {
  EXPECT_TRUE(Coloured("a.html", R"(
<script>//<![CDATA[
ggggggggccccccccccc
let a; //]]></SCRIPT><b>let</b> don't &amp;
kkk  o cccccgggggggggggg   gggg       eeeee
<!-- let --> <script>let b</script> let
cccccccccccc ggggggggkkk  ggggggggg
)"));
}

TEST_F(Languages, HtmlStylesAreRulesUpToTheirEndTag) {
  EXPECT_TRUE(Coloured("a.xhtml", R"(
<STYLE media="x">/* <b> */ a { color: #fff; margin: 2px }
ggggggaaaaaaosssgccccccccc     aaaaao o   o aaaaaao nnn
@media x { p { font: "it's" } } </STYLE><i>color</i>
okkkkk         aaaao ssssss     ggggggggggg     gggg
)"));
}

TEST_F(Languages, HtmlAttributesMayBeginALine) {
  EXPECT_TRUE(Coloured("a.html", R"(
<A
gg
HREF="x y" TITLE='z'>it's</A
ggggosssssaaaaaaosssg    ggg
>it's
g
)"));
}
