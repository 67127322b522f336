// TeX: commands, mathematics and text as it stands.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, TexCommandsEndBehindTheirNames) {
  EXPECT_TRUE(Coloured("a.tex", R"(
\foo\bar{x}~\@b y \% \\ \LaTeX{} % c
kkkkkkkko ookkk   ee ee kkkkkkoo ccc
\foo% c
kkkkccc
\section{A \emph{b} 50\%} text
kkkkkkkkkHHkHHHHHHHHHHeeH
\begin{itemize}\item x \end{itemize}
kkkkkkkttttttttkkkkk   kkkkktttttttt
)"));
}

TEST_F(Languages, TexMathematicsBetweenItsMarks) {
  EXPECT_TRUE(Coloured("a.sty", R"(
$a_1 + \alpha\$$ b $$\sum$$ \[ \frac{a}{b} % $ c
ssosssskbbbbbees   sskbbbss ssskbbbbosoososccccc
\] alpha \(x\) 5\$
ss       sssss  ee
\begin{align*} \beta & % c
ssssssssssssssskbbbbsosccc
\end{align*} beta
ssssssssssss
)"));
}

TEST_F(Languages, TexVerbatimTextIsLeftAlone) {
  EXPECT_TRUE(Coloured("a.tex", R"(
\verb|$%\x| \verb+%+ a
sssssssssss ssssssss
\begin{verbatim}
ssssssssssssssss
\foo % $ {
ssssssssss
\end{verbatim} \b
ssssssssssssss kk
)"));
}
