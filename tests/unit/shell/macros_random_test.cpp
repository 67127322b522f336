// Random commands on random panels: what always has to hold, holds.
#include <random>

#include "foundation/environment.h"
#include "fuzz/any_macros.h"
#include "unit/scratch_directory.h"

#include <gtest/gtest.h>

namespace {

// Bytes in which macros are frequent, behind some that fill the panels.
std::vector<uint8_t> RandomInput(std::mt19937& random) {
  static const char kPieces[] =
      "!f !F !l !lf !L !Lf !p !P !s !S !t !tx !x !n !! ! !@ !i !i\"a\" $HOME $X/ \\ ' \n";
  std::vector<uint8_t> bytes;
  for (unsigned length = 60 + random() % 200; bytes.size() < length;) {
    const uint8_t any = static_cast<uint8_t>(random());
    bytes.push_back(random() % 4 ? static_cast<uint8_t>("!a$/. \0\\f"[random() % 9]) : any);
  }
  for (unsigned length = bytes.size() + random() % 400; bytes.size() < length;)
    bytes.push_back(random() % 3 ? static_cast<uint8_t>(kPieces[random() % (sizeof kPieces - 1)]) : '!');
  return bytes;
}

}  // namespace

TEST(RandomMacros, WhateverTheyAreTheyEndWell) {
  const ScratchDirectory temporary;
  Variables.Set("TMP", temporary.Path().c_str());
  std::mt19937 random(7);
  for (int i = 0; i < 2000; ++i) {
    const std::vector<uint8_t> bytes = RandomInput(random);
    AnyMacros(bytes.data(), bytes.size()).Check();
  }
  Variables.Load();
}
