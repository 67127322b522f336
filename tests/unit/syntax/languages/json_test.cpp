// JSON: names of objects differ from strings among the values.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, JsonTellsNamesFromStrings) {
  EXPECT_TRUE(Coloured("a.json", R"(
{"name": "Ada", "age": 36, "ok": true,
oaaaaaao ssssso aaaaao nno aaaao CCCCo
 "list": ["a", {"b": "c"}, null], "d": "e"}
 aaaaaao ossso oaaao sssoo CCCCoo aaao ssso
)"));
}
