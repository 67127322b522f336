// TOML: brackets that name tables and brackets of arrays.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, TomlBracketsAreTablesOrArrays) {
  EXPECT_TRUE(Coloured("a.toml", R"(
[a.b."c d"] # c
HHHHHsssssH ccc
key = [ 1, 2.5, # c
    o   no nono ccc
  ["x"], { y = true } ]
   sss o     o CCCC
[[tab.x]] # c
HHHHHHHHH ccc
)"));
}

TEST_F(Languages, TomlStringsOfFourKinds) {
  EXPECT_TRUE(Coloured("Cargo.lock", R"(
a = "b\n # no" # c
  o sseessssss ccc
c = 'it"\n'
  o sssssss
d = """
  o sss
"q" \" [x] # no
sssseesssssssss
""" # c
sss ccc
e = '''
  o sss
it's # no '''
sssssssssssss
)"));
}
