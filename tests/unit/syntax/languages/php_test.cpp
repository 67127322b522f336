// PHP inside of HTML.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, PhpIsCodeOnlyInItsTags) {
  EXPECT_TRUE(Coloured("a.php", R"(
<p class="<?= $x ?>">don't</p> <!-- $x -->
ggggggggosppp vv ppsg     gggg ccccccccccc
<?php echo 'it\'s', 1; // c
ppppp kkkk ssseesso no cccc
/* <b> */ ?>
ccccccccc pp
if (a < b) <b>
           ggg
)"));
}

TEST_F(Languages, PhpVariablesEndWithTheCode) {
  EXPECT_TRUE(Coloured("a.php", R"(
<?=$x?><i>
pppvvppggg
<? $a->b($c,$d['e'])."f"; $this ?>
pp vvoo ovvovvosssooossso vvvvv pp
)"));
}

TEST_F(Languages, PhpLineCommentsEndWithTheCode) {
  EXPECT_TRUE(Coloured("a.php", R"(
<?php if ($a): // c ?><b>don't if</b> &lt;
ppppp kk ovvoo cccccppggg        gggg eeee
<!-- if --> <?php return $b # c ?> $no <?= "x" ?> if
ccccccccccc ppppp kkkkkk vv ccccpp     ppp sss pp
)"));
}

TEST_F(Languages, PhpInterpolationIsInDoubleQuotesOnly) {
  EXPECT_TRUE(Coloured("a.php", R"(
<?php
ppppp
"a $x {$y['k']->z} \$no ${n}\n" . '$no {$no} \n';
sssvvsiiiisssiiiiiseesssiiiiees o sssssssssssssso
"{no} $x's $y"; # c
ssssssvvsssvvso ccc
)"));
}

TEST_F(Languages, PhpHereDocumentsMayEndIndented) {
  EXPECT_TRUE(Coloured("a.php", R"(
<?php $a = <<<EOT
ppppp vv o ssssss
  it's $x EOT {$y->z} EOTX
sssssssvvsssssiiiiiiisssss
  "EOT"
sssssss
  EOT . "b";
sssss o ssso
f(<<<'SQL'
 ossssssss
 $no {$no}
ssssssssss
SQL);
sssoo
)"));
}

TEST_F(Languages, PhpAttributesAreNoComments) {
  EXPECT_TRUE(Coloured("a.php", R"(
<?php
ppppp
#[Attr(['x'])] # comment
ppppppppsssppp ccccccccc
/** doc */ function f(?INT $x): static {}
dddddddddd kkkkkkkk  oottt vvoo kkkkkk oo
)"));
}
