// YAML: what stands behind the colon.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, YamlValuesGoToTheEndOfTheLine) {
  EXPECT_TRUE(Coloured("a.yaml", R"(
key: value: x # comment
   oosssssssssccccccccc
url: http://x.y/z#a
   oossssssssssssss
a:b: c#d
 o oosss
)"));
}

TEST_F(Languages, YamlApostrophesAreNoQuotes) {
  EXPECT_TRUE(Coloured("a.yml", R"(
text: it's 5" and 'no'
    oosssssnssssssssss
don't: x
     oos
- 'it''s' # c
osssseess ccc
- a: "b: \"c\" # no" # c
o  sssssseeseessssss ccc
)"));
}

// A block of text has no ending sign, so that its lines are taken for any others.
TEST_F(Languages, YamlConstantsNumbersAndStructure) {
  EXPECT_TRUE(Coloured(".clang-format", R"(
--- # c
ooo ccc
on: [true, 'a', {b: 12}]
CCoooCCCCossssososssnnoo
r: &anchor !!str 2024-01-01
 oovsssssssvvssssnnnnnnnnnn
s: {{ .Values.x }} "no"
 ooiiiiiiiiiiiiiiisssss
- - deep: |
o o     ooo
    text: x
        oos
)"));
}
