// Dockerfile: instructions and what they hand to the shell.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, DockerfileInstructionsAndReferences) {
  EXPECT_TRUE(Coloured("Dockerfile", R"(
# it's
cccccc
FROM --platform=x debian:12 AS base
kkkk aaaaaaaaaao        onn kk
RUN from a#b "x ${B:-{c}} \"q\" $y" 'it' # c
kkk          sssvvvvvvvvvseeseesvss ssss ccc
COPY --from=base ["/a", "/b"]
kkkk aaaaaao     osssso sssso
)"));
}

TEST_F(Languages, DockerfileHereDocumentsEndAtTheBeginningOfALine) {
  EXPECT_TRUE(Coloured("Containerfile", R"(
RUN <<EOF
kkk sssss
it's EOF $x ${y}
sssssssssvssvvvv
EOF
sss
RUN <<'EOT'
kkk sssssss
$no
sss
EOT
sss
CMD x
kkk
)"));
}
