// Haskell: comments nest, quotes belong to names.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, HaskellCommentsNest) {
  EXPECT_TRUE(Coloured("a.hs", R"(
{- a {- b -} if -} if {-# LANGUAGE X #-} {-| doc {- in -} -} let
cccccccccccccccccc kk pppppppppppppppppp ddddddddddddddddddd kkk
-- | doc if
ddddddddddd
x --> y -- if
  ooo   ccccc
---- if
ccccccc
)"));
}

TEST_F(Languages, HaskellTellsCharactersFromNames) {
  EXPECT_TRUE(Coloured("a.hs", R"(
foldl' f' x1' 'a' : ['"', '\'', '\\', '\n', '-', ' '] ++ "if"
              hhh o ohhho hhhho hhhho hhhho hhho hhho oo ssss
)"));
}

TEST_F(Languages, HaskellStringsHaveEscapes) {
  EXPECT_TRUE(Coloured("a.hs", R"(
s = "a\"b -- \\" ++ "two\
  o sseesssssees oo sssse
   \lines" :: Maybe Int -- if
ssseesssss oo ttttt ttt ccccc
let x = 0xFF + 1.5 in Just True
kkk   o nnnn o non kk CCCC CCCC
)"));
}
