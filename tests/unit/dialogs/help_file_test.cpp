#include "dialogs/help_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/scratch_directory.h"

namespace {

using Lines = std::vector<std::string>;

std::string Word(size_t value) { return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8)}; }

std::string Record(size_t number, const std::string& body) {
  return Word(number) + Word(body.size() + 4) + body;
}

// Bytes with zeros among them.
template <size_t n>
std::string Bytes(const char (&text)[n]) {
  return std::string(text, n - 1);
}

Lines LinesOf(const std::vector<HelpRecord>& pages, int number) {
  const HelpRecord* page = FindHelpPage(pages, number);
  if (page == nullptr) return {"no page"};
  Lines lines;
  for (const Westring& line : HelpLines(*page)) lines.push_back(ToUtf8(line).Text());
  return lines;
}

std::vector<int> Numbers(const std::vector<HelpRecord>& pages) {
  std::vector<int> numbers;
  for (const HelpRecord& page : pages) numbers.push_back(page.number);
  return numbers;
}

const std::string kFile = Record(0, Bytes("zero\0")) + Record(1, Bytes("one\0\0two\0")) +
                          Record(0x101, Bytes("high\0")) + Record(30000, Bytes("missing\0"));

TEST(HelpFile, APageIsFoundByItsNumberOfSixteenBits) {
  const auto pages = ReadHelpPages(kFile);
  EXPECT_EQ(Numbers(pages), (std::vector{0, 1, 0x101, 30000}));
  EXPECT_EQ(LinesOf(pages, 0), Lines{"zero"});
  EXPECT_EQ(LinesOf(pages, 1), (Lines{"one", "", "two"}));
  EXPECT_EQ(LinesOf(pages, 0x101), Lines{"high"});
}

TEST(HelpFile, AMissingPageIsTheLastOne) {
  const auto pages = ReadHelpPages(kFile);
  EXPECT_EQ(LinesOf(pages, 7), Lines{"missing"});
  EXPECT_EQ(LinesOf(pages, -1), Lines{"missing"});
  EXPECT_EQ(LinesOf(pages, 30001), Lines{"missing"});
}

TEST(HelpFile, WithoutTheClosingPageTheLastThereIsStandsIn) {
  EXPECT_EQ(LinesOf(ReadHelpPages(Record(3, Bytes("a\0")) + Record(4, Bytes("b\0"))), 9), Lines{"b"});
}

TEST(HelpFile, NothingBehindTheClosingPageCounts) {
  EXPECT_EQ(Numbers(ReadHelpPages(Record(30000, Bytes("end\0")) + Record(1, Bytes("one\0")))),
            std::vector{30000});
}

TEST(HelpFile, OfTwoPagesWithOneNumberTheFirstCounts) {
  EXPECT_EQ(LinesOf(ReadHelpPages(Record(1, Bytes("first\0")) + Record(1, Bytes("second\0"))), 1),
            Lines{"first"});
}

TEST(HelpFile, LinesAreInCodePage850) {
  EXPECT_EQ(LinesOf(ReadHelpPages(Record(1, Bytes("\x84\xB3\xD1\0"))), 1), Lines{"\u00E4\u2502\u00D0"});
}

TEST(HelpFile, ALengthBelowThatOfTheHeadEndsTheFile) {
  for (size_t length = 0; length < 4; ++length) {
    EXPECT_EQ(Numbers(ReadHelpPages(Record(1, Bytes("one\0")) + Word(2) + Word(length) + kFile)),
              std::vector{1})
        << length;
  }
}

TEST(HelpFile, APageWithoutLinesIsOne) {
  const auto pages = ReadHelpPages(Record(1, "") + Record(2, Bytes("two\0")));
  EXPECT_EQ(LinesOf(pages, 1), Lines{});
  EXPECT_EQ(LinesOf(pages, 2), Lines{"two"});
}

TEST(HelpFile, ALineWithoutItsEndReachesToThatOfThePage) {
  const auto pages = ReadHelpPages(Record(1, Bytes("one\0tail")) + Record(2, Bytes("two\0")));
  EXPECT_EQ(LinesOf(pages, 1), (Lines{"one", "tail"}));
}

TEST(HelpFile, EveryShorterFileGivesThePagesThatAreWhole) {
  const size_t starts[] = {9, 22, 31, 43};  // where the records end
  ASSERT_EQ(kFile.size(), 43u);
  for (size_t size = 0; size < kFile.size(); ++size) {
    size_t whole = 0;
    for (size_t end : starts) whole += end <= size;
    EXPECT_EQ(ReadHelpPages(std::string_view(kFile).substr(0, size)).size(), whole) << size;
  }
}

TEST(HelpFile, NoDamagedByteLeadsOutOfTheFile) {
  for (size_t i = 0; i < kFile.size(); ++i) {
    for (int value = 0; value < 256; ++value) {
      std::string damaged = kFile;
      damaged[i] = static_cast<char>(value);
      const std::vector<char> exact(damaged.begin(), damaged.end());  // no byte behind its end
      const auto pages = ReadHelpPages({exact.data(), exact.size()});
      size_t bytes = 0;
      for (const HelpRecord& page : pages) {
        bytes += 4 + page.text.size();
        EXPECT_LE(HelpLines(page).size(), page.text.size());
      }
      EXPECT_LE(bytes, kFile.size()) << i << " " << value;
    }
  }
}

TEST(HelpFile, IsReadFromDisk) {
  ScratchDirectory directory;
  directory.Write("help.ovd", kFile);
  EXPECT_EQ(LinesOf(ReadHelpFile(directory.Path("help.ovd").c_str()), 1), (Lines{"one", "", "two"}));
}

TEST(HelpFile, WhatIsNoHelpFileHasNoPages) {
  ScratchDirectory directory;
  directory.Write("empty", "");
  EXPECT_TRUE(ReadHelpFile(directory.Path("empty").c_str()).empty());
  EXPECT_TRUE(ReadHelpFile(directory.Path("absent").c_str()).empty());
  EXPECT_TRUE(ReadHelpFile(directory.Path().c_str()).empty());
  EXPECT_EQ(FindHelpPage({}, 1), nullptr);
}

TEST(HelpFile, OnlyAMegabyteOfItIsRead) {
  ScratchDirectory directory;
  std::string large;
  for (int i = 0; i < 20; ++i) large += Record(1, std::string(0xFFFF - 4, 'x'));
  directory.Write("large", large);
  EXPECT_EQ(ReadHelpFile(directory.Path("large").c_str()).size(), size_t{(1 << 20) / 0xFFFF});
}

}  // namespace
