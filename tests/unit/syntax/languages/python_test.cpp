// Python: strings by their quotes and prefixes, code inside of formatted ones.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, PythonStringsEndAtTheirOwnQuotes) {
  EXPECT_TRUE(Coloured("a.py", R"(
s = "it's" + 'a "b" \' c' # it's
  o ssssss o ssssssseesss cccccc
"""one "two" 'three'
ssssssssssssssssssss
# text \n """ + ''' " """ '''
ssssssseessss o sssssssssssss
x = b'y' + "\\" + 'z'
  o ssss o sees o sss
)"));
}

TEST_F(Languages, PythonFormattedStringsHoldCode) {
  EXPECT_TRUE(Coloured("a.py", R"(
f"a {x["k"] + 1:>{w}} {{no}} \" \n" + 'b'
ssssi ossso o nooooo seesseeseesees o sss
f'''{
ssssi
  d(1) # code
   ono cccccc
} text'''
 ssssssss
"{x}"
sssss
)"));
}

TEST_F(Languages, PythonRawStringsHaveNoEscapesButForQuotes) {
  EXPECT_TRUE(Coloured("a.py", R"(
r"\d\n\"" + R'\'' + rb"\x" + "\d\n"
sssssssss o sssss o ssssss o sssees
rf"\d{x}\""
sssssi  ees
)"));
}

TEST_F(Languages, PythonWordsAreKeywordsAsAWhole) {
  EXPECT_TRUE(Coloured("a.py", R"(
def define(self, in_, print, printer): return None if 1_000 else 0x1F
kkk       ovvvvo    o bbbbbo        oo kkkkkk CCCC kk nnnnn kkkk nnnn
class X(ValueError): import_ = f(x)
kkkkk  ottttttttttoo         o  o o
@decorated
p
)"));
}
