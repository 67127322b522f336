// Text that the font does not set in columns by itself, seen as pixels.
#include <gtest/gtest.h>

#include "support/desktop.h"

// The harness reads what is no ASCII as "?", and a character that has left its
// column too.

TEST(Drawing, WideCharactersTakeOneCellEach) {
  Desktop d({{"left/\u4E2D\u6587\uD55Cxyz.txt", ""}});
  EXPECT_TRUE(d.EventuallyShows("???xyz.txt"));
}

TEST(Drawing, RightToLeftTextStaysInTheOrderOfItsCells) {
  Desktop d({{"left/ab\u05E9\u05DC\u05D5\u05DDcd\u0645\u0631ef", ""}});
  EXPECT_TRUE(d.EventuallyShows("ab????cd??ef"));
}

TEST(Drawing, CombiningCharactersTakeACellOfTheirOwn) {
  Desktop d({{"left/a\u0301b\u0308\u0323c", ""}});
  EXPECT_TRUE(d.EventuallyShows("a?b??c"));
}

TEST(Drawing, LettersThatOtherFontsJoinStayApart) {
  Desktop d({{"left/ffi->=>AVAT", ""}});
  EXPECT_TRUE(d.EventuallyShows("ffi->=>AVAT"));
}

TEST(Drawing, AProportionalFontKeepsTheColumns) {
  Desktop d({{"left/iiWWii.txt", ""}}, "[General Options]\nFontFamily=DejaVu Sans\n");
  EXPECT_TRUE(d.EventuallyShows("iiWWii.txt"));
}
