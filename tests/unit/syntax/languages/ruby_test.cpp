// Ruby: interpolation, here-documents and the slash that divides or begins a pattern.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, RubyInterpolationHoldsCodeWithBraces) {
  EXPECT_TRUE(Coloured("a.rb", R"(
"a #{h["k"].map { |x| x + 1 }} b" + 'no #{x} it\'s' # "
sssii osssoo    oooooooooonoo sss o sssssssssssssss ccc
`ls #{dir}` + "\#{no} #x"
ssssii    s o seessssssss
)"));
}

TEST_F(Languages, RubyPercentLiteralsNest) {
  EXPECT_TRUE(Coloured("a.rb", R"(
%w(a (b) c) + %Q{x #{y} {z}} + %(a (b)) + a % b
sssssssssss o sssssii  sssss o ssssssss o   o
%q(it's #{no}) + %r{a{2}/b#{c}}i
ssssssssssssss o xxxxxxxxxii  x
)"));
}

TEST_F(Languages, RubyHereDocumentsEndAtTheIndentedWord) {
  EXPECT_TRUE(Coloured("a.rb", R"(
  x = <<~EOS
    o ooosss
    it's #{y + 1} # text
sssssssssii  o n sssssss
    "EOSX
sssssssss
  EOS
sssss
  y = 2 # code
    o n cccccc
f(<<-'SQL')
 oooossssss
  no #{x}
sssssssss
  SQL
sssss
z = <<TEXT
  o ssssss
  #{a}
ssii
TEXT
ssss
list << item # code
     oo      cccccc
)"));
}

// There is no looking back: a slash alone divides.
TEST_F(Languages, RubySlashesDivideBehindValues) {
  EXPECT_TRUE(Coloured("a.rb", R"(
a / b / c; d =~ /x\/y#{z}/; split(/,/); x/y/z
  o   o  o   oxxxxeexii  xo      xxxxoo  o o
when /it's/ then 1
xxxxxxxxxxx kkkk n
)"));
}

TEST_F(Languages, RubyBlockCommentsAndData) {
  EXPECT_TRUE(Coloured("a.rb", R"(
=begin
dddddd
text "here
dddddddddd
=end
dddd
def x?; @y ||= nil; end
kkk  oo v  ooo CCCo kkk
__END__
ccccccc
"data
ccccc
)"));
}

// The one state that the operator opens already knows the ending word, so that none
// is left to make code of the rest of the line. Words that the definition does not
// list open nothing.
TEST_F(Languages, RubyCodeBehindAHereDocumentsOperatorIsText) {
  EXPECT_TRUE(Coloured("a.rb", R"(
f(<<~EOS.strip, "x") # c
 oooosssssssssssssssssss
EOS
sss
f(<<~UNKNOWN, 1)
 oooo
it's "x"
  ssssss
)"));
}
