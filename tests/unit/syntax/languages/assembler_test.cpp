// Assembler: comments of the kinds of assemblers.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, AssemblerWordsCountInAnyCase) {
  EXPECT_TRUE(Coloured("a.asm", R"(
start: MOV eax, 0FFh ; mov "x"
     o ttt vvvo nnnn ccccccccc
 db 'it', "a\", 10 ; db
 kk sssso sssso nn cccc
%define X 12
ppppppp   nn
)"));
}

TEST_F(Languages, AssemblerOfGnuHasHashComments) {
  EXPECT_TRUE(Coloured("a.s", R"(
# mov
ccccc
 movl $0x10, %eax # mov
 tttt onnnno ovvv ccccc
 .ascii "a\"b # \n" // mov
 kkkkkk sseessssees cccccc
 add r1, r2, #4 @ mov
 ttt vvo vvo on ccccc
#include <x.h>
pppppppppppppp
/* mov */ ret
ccccccccc ttt
)"));
}

TEST_F(Languages, AssemblerStringsEndWithTheLine) {
  EXPECT_TRUE(Coloured("a.nasm", R"(
 db "open mov
 kk sssssssss
 mov al, 'x'
 ttt vvo sss
)"));
}
