// Fortran: both forms, operators between dots.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, FortranStringsDoubleTheirQuotes) {
  EXPECT_TRUE(Coloured("a.f90", R"(
PRINT *, 'it''s ! if', "a ""b"" 'c'" ! if "x"
kkkkk oo ssseessssssso ssseeseesssss cccccccc
)"));
}

TEST_F(Languages, FortranOperatorsStandBetweenDots) {
  EXPECT_TRUE(Coloured("a.f95", R"(
if (a .AND. .not. b1 .eq. 1.0d0_dp) x = .TRUE. ! .and.
kk o  kkkkk kkkkk    kkkk nonnnnnno   o CCCCCC ccccccc
)"));
}

TEST_F(Languages, FortranStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.f90", R"(
s = "open if
  o ssssssss
!$OMP parallel
pppppppppppppp
end do !> doc
kkk kk dddddd
#ifdef X
pppppppp
)"));
}

TEST_F(Languages, FortranCommentsOfTheFixedFormBeginWithC) {
  EXPECT_TRUE(Coloured("a.f", R"(
C     if 'x'
cccccccccccc
C---- if
cccccccc
      C = A + B
        o   o
)"));
}

TEST_F(Languages, FortranOfTheFreeFormHasNoSuchComments) {
  EXPECT_TRUE(Coloured("a.f90", R"(
C   = 1.5e3
    o nonnn
)"));
}
