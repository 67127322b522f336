// JSON: names of objects differ from strings among the values.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, JsonTellsNamesFromStrings) {
  EXPECT_TRUE(Coloured("a.json", R"(
{"name": "Ada", "age": -3.5e10, "ok": true,
oaaaaaao ssssso aaaaao ononnnno aaaao CCCCo
 "list": ["a", {"b": "c"}, null, []], "d": "e"}
 aaaaaao ossso oaaao sssoo CCCCo oooo aaao ssso
)"));
}

TEST_F(Languages, JsonColoursTheEscapesThatThereAre) {
  EXPECT_TRUE(Coloured("a.json", R"(
{"a\"b\n": "x\\", "u": "\u00e9\q"}
oaaeeaeeao sseeso aaao seessssssso
)"));
}

TEST_F(Languages, JsonStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.json", R"(
["unclosed, 1
ossssssssssss
 12, "in // text", /* c */ false] // null
 nno sssssssssssso ccccccc CCCCCo ccccccc
)"));
}
