// Markdown: what counts at the beginning of a line only.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, MarkdownHeadingsBeginLines) {
  EXPECT_TRUE(Coloured("a.md", R"(
# One `two` **three**
HHHHHHsssssHmmmmmmmmm
Not # here, - nor 1. here

###### Six
HHHHHHHHHH
#no

Title

===
HHH
)"));
}

// Underscores would take words in pieces, and mark nothing.
TEST_F(Languages, MarkdownMarksInsideOfText) {
  EXPECT_TRUE(Coloured("README.md", R"(
a *b* **c *d* e** `*f*` ``g`h`` ~~i~~ snake_case_word \*no\*
  mmm mmmmmmmmmmm sssss sssssss ccccc                 ee  ee
a * b < c [text *x*](http://x.y "t") ![img][ref] <b>x</b>
  oo      uuuuuuuuuuuaaaaaaaaaaaaaaa  uuuuuuaaaa ggg gggg
an unclosed *one
            mmmm
ends with the line, _as_ this

)"));
}

TEST_F(Languages, MarkdownListsBeginLines) {
  EXPECT_TRUE(Coloured("a.markdown", R"(
- one
oo
  * two - three
oooo
1. four 2. five
ooo
- [x] six
oooooo
> quoted *seven*
dddddddddmmmmmmm
)"));
}

TEST_F(Languages, MarkdownFencesHideEverythingElse) {
  EXPECT_TRUE(Coloured("a.md", R"(
```c
ssss
# no *heading* `x`
ssssssssssssssssss
```
sss
# heading
HHHHHHHHH
~~~
sss
```
sss
~~~
sss
text <!-- # no
     ccccccccc
still --> 
ccccccccc
---
ooo
)"));
}
