// Differences: a line is coloured by what it begins with.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, DiffColoursLinesByTheirBeginnings) {
  EXPECT_TRUE(Coloured("a.diff", R"(
diff --git a/x b/x
HHHHHHHHHHHHHHHHHH
--- a/x
HHHHHHH
+++ b/x
HHHHHHH
@@ -1,3 +1,4 @@ int main() + x
~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
 context + not - added

-removed + x
------------
+added - x
++++++++++


\ No newline at end of file
ccccccccccccccccccccccccccc
)"));
}

// A removed line that begins with two dashes and a blank looks like a file's name.
TEST_F(Languages, DiffLooksAtTheBeginningOnly) {
  EXPECT_TRUE(Coloured("a.patch", R"(
Subject: + not added: - nor removed

it's text - x @@ y

 a:+b

--- removed
HHHHHHHHHHH
)"));
}

TEST_F(Languages, DiffInTheOtherForms) {
  EXPECT_TRUE(Coloured("a.rej", R"(
12,13c12
~~~~~~~~
< old
-----
> new
+++++
*** a/x
HHHHHHH
! changed
~~~~~~~~~
***************
~~~~~~~~~~~~~~~
Index: x
HHHHHHHH
===
HHH
)"));
}
