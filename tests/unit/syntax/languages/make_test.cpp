// Make: references inside of references.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, MakeReferencesNest) {
  EXPECT_TRUE(Coloured("Makefile", R"(
X += $(call f,$(subst a,${b},c) (d)) e # c
  oo vvbbbbvvvvvbbbbbvvvvvvvvvvvvvvv   ccc
$(OBJS): %.o: %.c | dir
vvvvvvvo o  o o   o
)"));
}

TEST_F(Languages, MakeKnowsItsFunctionsInReferencesOnly) {
  EXPECT_TRUE(Coloured("a.mk", R"(
ifeq ($(word 1,$x),word)
kkkk  vvbbbbvvvvvv
-include $(wildcard *.d)
kkkkkkkk vvbbbbbbbbvvvvv
.PHONY: all
ppppppo
)"));
}

TEST_F(Languages, MakeEscapesAreNoComments) {
  EXPECT_TRUE(Coloured("GNUmakefile", R"(
	@echo $@ $< $$x \# "it's" # c
        o     vv vv ee  ee ssssss ccc
	echo don't
                ss
X = $(MAKE) \: $(shell a)
  o vvCCCCv ee vvbbbbbvvv
)"));
}
