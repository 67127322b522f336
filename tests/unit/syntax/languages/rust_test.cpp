// Rust: comments nest, quotes begin characters and lifetimes.
#include "unit/syntax/languages/language_fixture.h"

TEST_F(Languages, RustCommentsNest) {
  EXPECT_TRUE(Coloured("a.rs", R"(
/* a /* b /** c */ */ fn */ fn x() {}
ccccccccccccccccccccccccccc kk  oo oo
/** doc /* in */ let */ let a; /**/ let b; /*** c */ let
ddddddddddddddddddddddd kkk  o cccc kkk  o ccccccccc kkk
)"));
}

TEST_F(Languages, RustTellsCharactersFromLifetimes) {
  EXPECT_TRUE(Coloured("a.rs", R"(
fn f<'a>(x: &'a str, c: char) -> &'static str { 'outer: loop {} }
kk  olloo o oll ttto  o tttto oo olllllll ttt o llllllo kkkk oo o
let c = ['a', b'z', '"', '\'', '\\', '\n', b'"', '/', '\u{1F600}', ' ']; let
kkk   o ohhho hhhho hhho hhhho hhhho hhhho hhhho hhho hhhhhhhhhhho hhhoo kkk
)"));
}

TEST_F(Languages, RustRawStringsEndWithTheirHashes) {
  EXPECT_TRUE(Coloured("a.rs", R"(
let a = r"\" + r#"say "if" \"# + br##"a"# b"##; let
kkk   o ssss o sssssssssssssss o ssssssssssssso kkk
)"));
}

TEST_F(Languages, RustStringsGoOverLinesWithEscapes) {
  EXPECT_TRUE(Coloured("a.rs", R"(
let a = "a\"b\u{41} \n // let
kkk   o sseeseeeeeeseesssssss
 let"; let b = 1_000u32 + 0..10;
ssssso kkk   o nnnnnnnn o noonno
)"));
}

TEST_F(Languages, RustAttributesHaveBracketsAndStrings) {
  EXPECT_TRUE(Coloured("a.rs", R"(
#![allow(x)] #[cfg(a = "b]", c[0])] fn
aaaaaaaaaaaa aaaaaaaaaassssaaaanaaa kk
/// doc fn
dddddddddd
//// fn
ccccccc
println!("{}", Some(x1));
bbbbbbboosssso CCCCo  ooo
)"));
}
