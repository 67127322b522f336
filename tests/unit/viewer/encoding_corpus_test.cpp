// Foreign texts of known encodings, where there are any beside the checkout: what
// the detection makes of them, and that they read right when told.
#include <gtest/gtest.h>
#include <iconv.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "viewer/text_file.h"

namespace {

struct Sample {
  std::string path, encoding, how;
  bool isWhole;  // valid from beginning to end
};

std::string CorpusDirectory() {
  if (const char* given = getenv("ORVANE_CORPUS")) return given;
#ifdef ORVANE_SOURCE_DIR
  return ORVANE_SOURCE_DIR "/../shared/corpus";
#else
  return "";
#endif
}

std::vector<Sample> Samples() {
  const std::string directory = CorpusDirectory() + "/encodings/";
  std::ifstream rows(directory + "expected.tsv");
  std::vector<Sample> samples;
  for (std::string row; std::getline(rows, row);) {
    if (row.empty() || row[0] == '#') continue;
    std::istringstream fields(row);
    std::string name, encoding, mark, how, isWhole;
    for (std::string* field : {&name, &encoding, &mark, &how, &isWhole}) std::getline(fields, *field, '\t');
    samples.push_back({directory + name, encoding, how, isWhole == "yes"});
  }
  return samples;
}

std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// ---- what a sample is for the reader

struct Form {
  const char* name;
  int encoding, codePage;
};

constexpr Form kForms[] = {
    {"ASCII", kUtf8, 0},
    {"UTF-8", kUtf8, 0},
    {"UTF-16LE", kUtf16Little, 0},
    {"UTF-16BE", kUtf16Big, 0},
    {"UTF-32LE", kUtf32Little, 0},
    {"UTF-32BE", kUtf32Big, 0},
    {"ISO-8859-1", kCodePageText, 819},
    {"KOI8-R", kCodePageText, 878},
    {"CP437", kCodePageText, 437},
    {"CP737", kCodePageText, 737},
    {"CP850", kCodePageText, 850},
    {"CP866", kCodePageText, 866},
    {"WINDOWS-1251", kCodePageText, 1251},
    {"WINDOWS-1252", kCodePageText, 1252},
    {"WINDOWS-1253", kCodePageText, 1253},
};

const Form* FormOf(const Sample& sample) {
  const auto* const found = std::find_if(std::begin(kForms), std::end(kForms),
                                         [&](const Form& form) { return sample.encoding == form.name; });
  return found == std::end(kForms) ? nullptr : found;
}

// Through the library, in one go. Units of UTF-16 where the file is in those, since
// the reader does not join halves of a pair.
std::u32string Decoded(const std::string& bytes, const Form& form) {
  const bool inUnits = form.encoding == kUtf16Little || form.encoding == kUtf16Big;
  const iconv_t descriptor = iconv_open(inUnits ? "UTF-16LE" : "UCS-4LE", form.name);
  std::string in = bytes, out(bytes.size() * 4 + 16, 0);
  char *from = in.data(), *to = out.data();
  size_t fromLeft = in.size(), toLeft = out.size();
  EXPECT_NE(iconv(descriptor, &from, &fromLeft, &to, &toLeft), static_cast<size_t>(-1)) << form.name;
  iconv_close(descriptor);
  out.resize(out.size() - toLeft);
  std::u32string text;
  const size_t width = inUnits ? 2 : 4;
  for (size_t i = 0; i + width <= out.size(); i += width) {
    char32_t character = 0;
    for (size_t k = 0; k < width; ++k)
      character |= static_cast<char32_t>(static_cast<uint8_t>(out[i + k])) << 8 * k;
    text += character;
  }
  return text;
}

int TerminatorKind(char32_t character) {
  return character == U'\r' ? 1 : character == U'\n' ? 2 : character == 0 ? 4 : 0;
}

std::vector<std::u32string> LinesOf(const std::u32string& text) {
  std::vector<std::u32string> lines;
  for (size_t i = 0; i < text.size();) {
    std::u32string line;
    while (i < text.size() && TerminatorKind(text[i]) == 0) line += text[i++];
    lines.push_back(line);
    for (int taken = 0; i < text.size(); ++i) {
      const int kind = TerminatorKind(text[i]);
      if (kind == 0 || (taken & kind)) break;
      taken |= kind;
    }
  }
  return lines;
}

std::vector<std::u32string> ReadLines(CTextFile& text) {
  std::vector<std::u32string> lines;
  text.Position = text.DataStart;
  int length = 0;
  while (const wchar_t* line = text.ReadLine(length, 0)) lines.emplace_back(line, line + length);
  return lines;
}

// Single characters of a code page are its bytes; only lines are translated.
void ExpectToReadRight(CTextFile& text, const Form& form, const std::string& path) {
  const std::string bytes = Content(path).substr(static_cast<size_t>(text.DataStart));
  const std::u32string expected = Decoded(bytes, form);
  EXPECT_TRUE(ReadLines(text) == LinesOf(expected)) << path;
  std::u32string characters = expected;
  if (form.encoding == kCodePageText) {
    characters.clear();
    for (const char byte : bytes) characters += static_cast<uint8_t>(byte);
  }
  text.Position = text.DataStart;
  for (const char32_t character : characters) ASSERT_EQ(text.GetChar(), static_cast<int>(character)) << path;
  EXPECT_EQ(text.GetChar(), -1) << path;
  for (size_t i = characters.size(); i-- > 0;)
    ASSERT_EQ(text.PrevChar(), static_cast<int>(characters[i])) << path << " " << i;
  EXPECT_EQ(text.Position, text.DataStart) << path;
}

}  // namespace

TEST(EncodingCorpus, ReadsRightForwardAndBackwardInItsEncoding) {
  const std::vector<Sample> samples = Samples();
  if (samples.empty()) GTEST_SKIP() << "no samples";
  int read = 0;
  for (const Sample& sample : samples) {
    const Form* const form = FormOf(sample);
    if (!form || !sample.isWhole) continue;
    CTextFile text;
    ASSERT_EQ(text.Open(sample.path.c_str()), 0);
    // The one whose mark is that of a longer word stands for nothing else.
    if (text.HasBOM && text.Encoding != form->encoding) continue;
    text.Encoding = form->encoding;
    text.CodePage = form->codePage;
    ExpectToReadRight(text, *form, sample.path);
    ++read;
  }
  EXPECT_GT(read, 70);
}

TEST(EncodingCorpus, EveryFileCanBeWalkedThroughInEveryEncoding) {
  const std::vector<Sample> samples = Samples();
  if (samples.empty()) GTEST_SKIP() << "no samples";
  for (const Sample& sample : samples)
    for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
      CTextFile text;
      ASSERT_EQ(text.Open(sample.path.c_str()), 0);
      text.Encoding = encoding;
      int length = 0;
      while (text.ReadLine(length, 100)) ASSERT_LE(length, 100);
      ASSERT_GE(text.Position, text.FileSize) << sample.path;
      while (text.PrevChar() >= 0) continue;
      ASSERT_LT(text.Position, 0) << sample.path;
    }
}

TEST(EncodingCorpus, TheDetectionKnowsMarksAndFormsOfBytes) {
  const std::vector<Sample> samples = Samples();
  if (samples.empty()) GTEST_SKIP() << "no samples";
  int right = 0, known = 0;
  for (const Sample& sample : samples) {
    // Any other page of bytes counts as one of bytes.
    const bool isBytes = sample.how == "8bit" || sample.how == "multibyte";
    const Form* const form = FormOf(sample);
    if (!form && !isBytes) continue;
    CTextFile text;
    ASSERT_EQ(text.Open(sample.path.c_str()), 0);
    const bool isRight = text.Encoding == (isBytes ? kCodePageText : form->encoding);
    ++known;
    right += isRight;
    if (!isRight) std::cout << "taken for " << text.Encoding << ": " << sample.path << "\n";
    if (sample.how == "bom" || sample.how == "ascii") {
      EXPECT_TRUE(isRight) << sample.path;
    }
  }
  std::cout << right << " of " << known << " detected\n";
  EXPECT_GT(right, 0.8 * known);
}
