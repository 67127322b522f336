// Tcl: substitution in strings, comments against colours.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, TclStringsSubstitute) {
  EXPECT_TRUE(Coloured("a.tcl", R"(
puts "a $x [lindex $y 0] \$no ${z y} \[no" ; # it's
bbbb sssvvsibbbbbbiiiiniseesssvvvvvvseesss cccccccc
set ::n::v $x(1); set y ${a b}; set z {it's}
kkk oo oo  vvonoo kkk   vvvvvvo kkk   o    o
)"));
}

// What follows the sign decides: commands that begin like a colour are listed.
TEST_F(Languages, TclCommentsAreNoColours) {
  EXPECT_TRUE(Coloured("a.tcl", R"(
# it's "text
cccccccccccc
  #puts "x"
  ccccccccc
button .b -bg #c0ffee -fg #abc ;# comment
tttttt o  o           o        cccccccccc
)"));
}
