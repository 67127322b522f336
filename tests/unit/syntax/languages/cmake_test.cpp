// CMake: brackets of several levels, references and generator expressions.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, CMakeBracketsCloseAtTheirLevel) {
  EXPECT_TRUE(Coloured("CMakeLists.txt", R"(
#[[ block "
ccccccccccc
]] set(x [==[a ]] ${no} ]==] ON) # c
cc bbbo  sssssssssssssssssss CCo ccc
#[=[ x ]] ]=] message(STATUS "a")
ccccccccccccc bbbbbbboaaaaaa ssso
)"));
}

TEST_F(Languages, CMakeReferencesNest) {
  EXPECT_TRUE(Coloured("a.cmake", R"(
SET(x "a ${B_${c}} \"q\" $<$<CONFIG:Debug>:b> # no" $ENV{HOME})
bbbo  sssvvvvvvvvvseeseesiiiibbbbbbiiiiiiiiiissssss vvvvvvvvvvo
if(NOT x AND ${y} GREATER 3) # c
kkokkk   kkk vvvv kkkkkkk no ccc
)"));
}
