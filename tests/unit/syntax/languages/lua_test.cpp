// Lua: long brackets of several levels.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, LuaLongBracketsCloseAtTheirLevel) {
  EXPECT_TRUE(Coloured("a.lua", R"(
--[==[ comment ]] ]=]
ccccccccccccccccccccc
"still" ]==] local x = [[long
cccccccccccc kkkkk   o ssssss
"text" ]=] ]] .. [=[ ]] ]=]
sssssssssssss oo ssssssssss
--[[ a ]] y = 1 -- ]]
ccccccccc   o n ccccc
)"));
}

TEST_F(Languages, LuaStringsAndLabels) {
  EXPECT_TRUE(Coloured("a.lua", R"(
::again:: goto again; x = "it's \"\n" .. 'a\'b' --- doc
lllllllll kkkk      o   o sssssseeees oo sseess ddddddd
if #t ~= 0x1F then t[a[1]] = self:next() end
kk o  oo nnnn kkkk  o onoo o vvvvobbbboo kkk
)"));
}
