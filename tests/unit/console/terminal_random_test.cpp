// Any bytes, cut anywhere: the same screen, and nothing written outside of it.
#include <random>

#include "terminal_fixture.h"

namespace {

// What a terminal can make something of, so that chance gets to all of it.
constexpr std::string_view kParts[] = {
    "\033[",
    "\033",
    "\033(0",
    "\033(B",
    "\033]",
    "\a",
    "\x9C",
    "\r\n",
    "\n",
    "\t",
    "\b",
    "\r",
    "\033[4h",
    "\033[4l",
    ";",
    "?",
    ">",
    ":",
    "0",
    "1",
    "25",
    "99999999999",
    "m",
    "r",
    "H",
    "J",
    "S",
    "T",
    "b",
    "X",
    "P",
    "@",
    "L",
    "M",
    "\033M",
    "\0337",
    "\0338",
    "\033[2;5r",
    "\033[r",
    "\033[6;2r",
    "\033[7m",
    "\033[31;44m",
    "\033[?47h",
    "\033[?1049l",
    "\xE2",
    "\u20AC",
    "\xF0\x9F\x98",
    "\xC3\xA9",
    "\x80",
    "plain text",
    "\177",
    "\033[999999b",
    "\033[?25l",
    "\033[K",
};

std::string RandomOutput(std::mt19937& random, size_t parts) {
  std::string output;
  for (size_t i = 0; i < parts; ++i) {
    if (random() % 4 == 0)
      output += static_cast<char>(random());
    else
      output += kParts[random() % std::size(kParts)];
  }
  return output;
}

std::string Bytes(const std::string& text) {
  std::string shown;
  for (const char byte : text) shown += Estring::Format("%02x", static_cast<unsigned char>(byte)).Text();
  return shown;
}

}  // namespace

using TerminalRandom = TerminalTest;

TEST_F(TerminalRandom, AnyOutputComesToTheSameHoweverItIsCut) {
  std::mt19937 random(20);
  for (int round = 0; round < 3000; ++round) {
    const int width = 1 + static_cast<int>(random() % 30), height = 1 + static_cast<int>(random() % 9);
    const std::string output = RandomOutput(random, 1 + random() % 60);
    const TerminalResult whole = RunTerminal(output, width, height);
    ASSERT_TRUE(whole.IsSane()) << Bytes(output);
    ASSERT_TRUE(RunTerminal(output, width, height, [] { return 1; }) == whole) << Bytes(output);
    ASSERT_TRUE(RunTerminal(output, width, height, [&] { return 1 + random() % 9; }) == whole)
        << Bytes(output);
  }
}

TEST_F(TerminalRandom, BytesWithoutMeaningLeaveASaneScreen) {
  std::mt19937 random(21);
  std::string output(1 << 18, ' ');
  for (char& byte : output) byte = static_cast<char>(random());
  const TerminalResult whole = RunTerminal(output, 80, 25);
  EXPECT_TRUE(whole.IsSane());
  EXPECT_TRUE(RunTerminal(output, 80, 25, [&] { return 1 + random() % 1023; }) == whole);
  // The next command runs in a terminal of its own.
  const TerminalResult next = RunTerminal("ready", 80, 25);
  EXPECT_EQ(TextOf(&next.At(0, 0), 80), "ready");
}
