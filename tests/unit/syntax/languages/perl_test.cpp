// Perl: variables, quoting operators, patterns, documentation, here-documents.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, PerlVariablesEndBehindTheirNames) {
  EXPECT_TRUE(Coloured("a.pl", R"(
my ($x, @y) = @_; $h{s} = $#y + $$r / $A::b->{y}; # c
kk ovvo vvo o vvo vvo o o vv  o vvv o vvvvvooo oo ccc
@{$x} = %$y % 2; print STDERR $0;
vvvvo o vvv o no bbbbb CCCCCC vvo
)"));
}

TEST_F(Languages, PerlStringsInterpolateUnlessSingle) {
  EXPECT_TRUE(Coloured("a.pl", R"(
"a $x->{k} @y, $A::b; \$no \"" . 'it\'s $no' . `ls $x`;
sssvvssssssvvssvvvvvsseesssees o sssssssssss o ssssvsso
"${x} @{[ f("y") ]} \n$x"
siiiisiiiiiisssiiiiseevvs
)"));
}

TEST_F(Languages, PerlQuotingOperatorsNest) {
  EXPECT_TRUE(Coloured("a.pl", R"(
q(a (b) $c) . qq{x {y} $z} . qw/a b/ . qq|it's|;
sssssssssss o sssssssssvss o sssssss o sssssssso
$q{x} = $s{y}; sub eq_(); $m{q} = 1
vvo o o vvo oo kkk    ooo vvo o o n
)"));
}

TEST_F(Languages, PerlPatternsHaveOneOrTwoParts) {
  EXPECT_TRUE(Coloured("a.pl", R"(
s/a\/b/c'd/g; tr/a-z/A-Z/; s{a{2}}{b}; y|a|b|; m!it's!;
xxxeexxxxxx o xxxxxxxxxxxo xxxxxxxxxxo xxxxxxo xxxxxxxo
if ($x =~ /a#b/ && $y !~ m{c}) { $z = $x / 2 / 3; }
kk ovv oxxxxxxx oo vv oo xxxxo o vv o vv o n o no o
)"));
}

// A line that begins with the ending word and goes on ends it, too: what is behind
// the word can't be asked for.
TEST_F(Languages, PerlHereDocumentsEndAtTheBeginningOfALine) {
  EXPECT_TRUE(Coloured("a.pl", R"(
print <<"EOF", $x; # code
bbbbb sssssss  vvo cccccc
Hello $x EOF "it's
ssssssvvssssssssss
 EOF
ssss
$x EOF
vvssss
EOF
sss
print <<'EOT';
bbbbb sssssss
$no EOT
sssssss
EOT
sss
f(<<~END) if 1;
 ossssss  kk no
  x ${y}
ssssiiii
  END
sssss
$z = 1 << 3;
vv o n oo no
print <<EOT;
bbbbb sssss
EOTX is text to Perl only
sss
$z
vv
)"));
}

TEST_F(Languages, PerlDocumentationEndsAtCut) {
  EXPECT_TRUE(Coloured("a.pl", R"(
=head1 NAME
ddddddddddd


It's "text"
ddddddddddd


=cut
dddd
$x = 1;
vv o no
__END__
ccccccc
it's over
ccccccccc
)"));
}

TEST_F(Languages, PerlVariablesOfQuotesBeginNoStrings) {
  EXPECT_TRUE(Coloured("a.pl", R"(
local $" = ", "; print $`, $' . "c";
kkkkk vv o sssso bbbbb vvo vv o ssso
)"));
}
