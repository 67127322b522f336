// XML: sections in which nothing else counts.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, XmlSectionsHideEverythingElse) {
  EXPECT_TRUE(Coloured("a.xml", R"(
<a><![CDATA[ <b> & "c" ]]></a><!-- <d> & -- "e" --><f/>
gggsssssssssssssssssssssssggggcccccccccccccccccccccgggg
<?xml version="1.0"?>
pppppppppppppossssspp
)"));
}

TEST_F(Languages, XmlTellsTagsFromTheirAttributes) {
  EXPECT_TRUE(Coloured("a.svg", R"(
<n:a x="1 &lt; &b;" y='2>1'
gggggaossseeeeseeesaaosssss
  z="it's">it's &amp; "b"</n:a>
aaaossssssg     eeeee    gggggg
)"));
}

TEST_F(Languages, XmlDeclarationsStandInTheTypesOwnBrackets) {
  EXPECT_TRUE(Coloured("a.xsd", R"(
<!DOCTYPE a SYSTEM "a.dtd" [
ppppppppppppCCCCCCpssssssspp
  <!ENTITY b "c>d"> <!-- ]> -->
ppppkkkkkkpppsssssppccccccccccc
  %e; <!ELEMENT a (#PCDATA)>
ppeeepppkkkkkkkpppppCCCCCCpp
]><a/>
ppgggg
)"));
}

// The line's end leads nowhere by itself.
TEST_F(Languages, XmlAttributesMayBeginALine) {
  EXPECT_TRUE(Coloured("a.xml", R"(
<a
gg
b="x y" c='z'/>it's
gosssssaaosssgg
<a
gg
"x > y">it's
sssssssg
)"));
}

TEST_F(Languages, XmlSignsWithABlankBehindThemAreNoEntities) {
  EXPECT_TRUE(Coloured("a.xml", R"(
<a b="c & d">e & f</a>
gggaosssssssg     gggg
<!DOCTYPE a [<!ENTITY % b "&c;"> %b;]>
pppppppppppppppkkkkkkpppppseeesppeeepp
)"));
}
