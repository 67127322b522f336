// SQL: words in any case, doubled quotes.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, SqlWordsCountInAnyCase) {
  EXPECT_TRUE(Coloured("a.sql", R"(
SELECT a1, Count(*) from "Select" where b = 12 and c is NULL -- select
kkkkkk   o bbbbbooo kkkk aaaaaaaa kkkkk   o nn kkk   kk CCCC ccccccccc
)"));
}

TEST_F(Languages, SqlStringsDoubleTheirQuotes) {
  EXPECT_TRUE(Coloured("a.sql", R"(
insert into t values ('it''s -- select', '', '''', 'a\'); select
kkkkkk kkkk   kkkkkk ossseesssssssssssso sso seeso ssssoo kkkkkk
)"));
}

TEST_F(Languages, SqlStringsGoOverLines) {
  EXPECT_TRUE(Coloured("a.sql", R"(
select 'two
kkkkkk ssss
lines'; /* select
sssssso ccccccccc
*/ create table t (a VARCHAR(20))
cc kkkkkk kkkkk   o  tttttttonnoo
)"));
}
