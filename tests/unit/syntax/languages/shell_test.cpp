// The shell: expansions inside of strings and of each other, here-documents.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, ShellStringsExpandUnlessSingle) {
  EXPECT_TRUE(Coloured("a.sh", R"(
echo "a $HOME/b ${x:-"d"} $(ls "$y") \$no \"" 'it'\''s $no' $'a\'b\n'
bbbb sssvvvvvsssvvvvvsssvsii   svvsiseesssees sssseesssssss ssseesees
x=$y$z; echo "$#" ${#x} $? "`id -u`" "$x"
 ovvvvo bbbb svvs vvvvv vv s       s svvs
)"));
}

TEST_F(Languages, ShellNumberSignsInsideOfWordsBeginNoComment) {
  EXPECT_TRUE(Coloured("a.sh", R"(
echo a#b $# ${x#y} 16#ff # it's
bbbb     vv vvvvvv nnnnn cccccc
#!/bin/sh
ccccccccc
)"));
}

TEST_F(Languages, ShellSubstitutionsNest) {
  EXPECT_TRUE(Coloured("a.sh", R"~(
x=$(a "$(b $c)" `d`) y=$((1 + (2 << $z)))
 oii  sii  vvis    i  onnnnnonnnnoonnnnnn
"$(echo $x)" # c
siibbbb vvis ccc
)~"));
}

// Only a word of the definition's list ends one.
TEST_F(Languages, ShellHereDocumentsEndAtTheBeginningOfALine) {
  EXPECT_TRUE(Coloured("a.sh", R"(
cat <<EOF >"$f" | wc # code
    oosss  svvs o    cccccc
it's $x EOF $(ls) \$no
sssssvvsssssii  iseess
 EOF
ssss
$x EOF
vvssss
"EOF
ssss
EOF
sss
echo 'a'
bbbb sss
)"));
}

TEST_F(Languages, ShellHereDocumentsInQuotesExpandNothing) {
  EXPECT_TRUE(Coloured("a.sh", R"(
cat <<-'END'
    ooosssss
	no $x `y`
sssssssssssssssss
	END
sssssssssss
x=$(cat <<\EOT
 oii    oossss
$no
sss
EOT
sss
) # code
i cccccc
cat <<<"$x"; echo $((1<<2)) 'it'
    ooosvvso bbbb nnnnoonnn ssss
)"));
}

TEST_F(Languages, ShellFollowsTheNamesOfItsFiles) {
  EXPECT_TRUE(Coloured(".bashrc", R"(
if true; then echo 1; fi
kk CCCCo kkkk bbbb no kk
)"));
}
