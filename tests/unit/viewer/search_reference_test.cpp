// The searches beside plain ones, which look at one byte or character after the
// other, over texts of chance.
#include <algorithm>
#include <map>
#include <random>

#include "foundation/code_pages.h"
#include "foundation/fold.h"
#include "unit/viewer/searched_text.h"

namespace {

using Random = std::mt19937;

int Below(Random& random, int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }

bool IsWordByte(int byte) { return byte > 0 && byte < 255 && (byte > 127 || isalnum(byte) || byte == '_'); }

// ---- the plain searches

int FoldByte(int byte, int codePage) {
  const char text[] = {static_cast<char>(byte), 0};
  const Estring upper = EncodeCodePage(Fold(Westring(text, codePage)), codePage);
  return byte == 0 || upper.IsEmpty() ? byte : static_cast<uint8_t>(upper[0]);
}

const std::vector<int>& FoldTable(int codePage) {
  static std::map<int, std::vector<int>> tables;
  std::vector<int>& table = tables[codePage];
  for (int byte = static_cast<int>(table.size()); byte < 256; ++byte)
    table.push_back(FoldByte(byte, codePage));
  return table;
}

// With a skip over every byte, as the positions of the bytes in the text tell.
int64_t PlainSearchBytes(CTextFile& file, const Westring& text, int64_t start, bool reverse,
                         bool caseSensitive, bool wholeWord, int codePage) {
  const Estring encoded = EncodeCodePage(caseSensitive ? text : Fold(text), codePage);
  const std::string pattern(encoded.Text());
  const auto length = static_cast<int64_t>(pattern.size());
  const std::vector<int>& table = FoldTable(codePage);
  const auto folded = [&](int byte) {
    return caseSensitive || byte < 0 ? byte : table[static_cast<size_t>(byte)];
  };
  const auto byteAt = [&](int64_t offset) { return offset < 0 ? -1 : file.ByteAt(offset); };
  int64_t pos = reverse ? start - length + 1 : start + length - 1;
  while (pos >= 0 && byteAt(pos) >= 0) {
    const char byte = static_cast<char>(folded(byteAt(pos)));
    const size_t place = reverse ? pattern.find(byte) : pattern.rfind(byte);
    if (place > 127) {  // nowhere, too
      pos += reverse ? -length : length;
      continue;
    }
    const int64_t candidate = pos - static_cast<int64_t>(place);
    bool isHit = candidate >= 0;
    for (int64_t i = 0; isHit && i < length; ++i)
      isHit = folded(byteAt(candidate + i)) == static_cast<uint8_t>(pattern[static_cast<size_t>(i)]);
    if (isHit && wholeWord)
      isHit = !IsWordByte(byteAt(candidate - 1)) && !IsWordByte(byteAt(candidate + length));
    if (isHit) return candidate;
    pos = reverse ? candidate - 1 : candidate + length;
  }
  return kSearchNone;
}

// What a search from start in the other direction would read first.
int CharacterBeyond(CTextFile& file, int64_t start, bool reverse) {
  file.Position = start;
  if (reverse) return file.GetChar();
  if (file.Encoding == kUtf8) return start > 0 ? file.PrevChar() : -1;
  file.Position -= file.BytesPerUnit();
  return file.Position < 0 ? -1 : file.GetChar();
}

int64_t PlainSearch(CTextFile& file, const Westring& text, int64_t start, bool caseSensitive, bool wholeWord,
                    bool reverse) {
  std::wstring pattern = (caseSensitive ? text : Fold(text)).Text();
  if (reverse) std::reverse(pattern.begin(), pattern.end());
  const auto read = [&] { return reverse ? file.PrevChar() : file.GetChar(); };
  file.Position = start;
  int before = CharacterBeyond(file, start, reverse);
  file.Position = start;
  size_t matched = 0;
  int64_t begin = start;
  int first = -1;
  while (true) {
    if (matched == 0) begin = file.Position;
    const int ch = read();
    if (ch < 0) return kSearchNone;
    if (matched == 0) first = ch;
    if ((caseSensitive ? ch : FoldChar(ch)) != pattern[matched]) {
      if (matched > 0) {
        file.Position = begin;
        read();
        matched = 0;
      }
      before = first;
      continue;
    }
    if (matched == 0 && wholeWord && IsWordChar(before)) {
      before = ch;
      continue;
    }
    if (++matched < pattern.size()) continue;
    const int64_t end = file.Position;
    const int next = wholeWord ? read() : -1;
    file.Position = end;
    if (!IsWordChar(next)) return reverse ? end : begin;
    matched = 0;
    before = ch;
  }
}

// ---- texts of chance

// Few different pieces, so that there are hits, beginnings of hits and words.
std::string AnyBytes(Random& random, int encoding) {
  static const std::vector<std::string> narrow = {"a", "b", "A", "B", " ", ":", "_", "k", "ab"};
  static const std::vector<std::string> utf8 = {"ж",    "Ж",    "é",        "ſ",    "中",           "😀",
                                                "K",    "\xBA", "\xFA",     "\xC3", "\xE2",         "\xF0",
                                                "\xC1", "\xC0", "\xE0\x81", "\x81", "\xF0\x80\x81", "\xFF"};
  static const std::vector<std::string> wide = {{"\0", 1}, {"\0\0", 2}, "\x04", "\x36", "\xD8", "\xFF\xFF"};
  static const std::vector<std::string> page = {"\xC9", "\xE9", {"\0", 1}, "\xFF", "\xB5", "\x98"};
  const auto& special = encoding == kUtf8 ? utf8 : encoding == kCodePageText ? page : wide;
  const int share = Below(random, 4) * (encoding < kUtf8 ? 3 : 1);  // in ten pieces
  std::string bytes;
  for (int pieces = Below(random, 200); pieces > 0; --pieces) {
    const auto& from = Below(random, 10) < share ? special : narrow;
    bytes += from[static_cast<size_t>(Below(random, static_cast<int>(from.size())))];
  }
  return bytes;
}

std::string Widened(const std::string& narrow, int encoding, int unit) {
  if (unit == 1) return narrow;
  const bool highFirst = encoding == kUtf32Big || encoding == kUtf16Big;
  std::string bytes;
  for (const char ch : narrow) {
    std::string character(static_cast<size_t>(unit), '\0');
    character[highFirst ? static_cast<size_t>(unit) - 1 : 0] = ch;
    bytes += character;
  }
  return bytes;
}

// Whole units with some bytes of chance, in front of which there may be a block.
std::string AnyText(Random& random, int encoding, int unit) {
  std::string text;
  if (Below(random, 3) == 0)
    text =
        Widened(std::string(static_cast<size_t>((CBlockFile::kBlockSize - Below(random, 300)) / unit), 'a'),
                encoding, unit);
  if (Below(random, 2) == 0) text += AnyBytes(random, encoding);
  if (unit > 1 || Below(random, 2) == 0) {
    std::string words;
    for (int n = Below(random, 150); n > 0; --n) words += "aAbB :k"[Below(random, 7)];
    text += Widened(words, encoding, unit);
  }
  return text + (Below(random, 2) == 0 ? AnyBytes(random, encoding) : "");
}

Westring AnyPattern(Random& random) {
  static constexpr wchar_t kCharacters[] = L"aaabbbABkK:  _жЖéſ中\x212A\xFFFDÿµ\x1F600i";
  const int few = Below(random, 2) == 0 ? 5 : static_cast<int>(std::size(kCharacters)) - 1;
  Westring pattern;
  for (int n = 1 + Below(random, Below(random, 8) == 0 ? 12 : 4); n > 0; --n)
    pattern += kCharacters[Below(random, few)];
  return pattern;
}

struct Flags {
  bool reverse, caseSensitive, wholeWord;
};
Flags AnyFlags(Random& random) {
  return {Below(random, 2) == 0, Below(random, 2) == 0, Below(random, 3) == 0};
}

int64_t AnyStart(Random& random, const CTextFile& file, bool reverse) {
  if (Below(random, 3) == 0) return reverse ? file.FileSize : 0;
  return Below(random, static_cast<int>(file.FileSize) + 1);
}

constexpr int kTexts = 150, kSearches = 40;

// Of all searches, so many at least find something.
constexpr int kFewestHits = kTexts * kSearches / 10;

void CompareCharacters(int encoding) {
  Random random(static_cast<unsigned>(encoding));
  int hits = 0;
  for (int round = 0; round < kTexts; ++round) {
    const int unit = encoding <= kUtf32Big ? 4 : encoding <= kUtf16Big ? 2 : 1;
    SearchedText text(AnyText(random, encoding, unit), encoding);
    text.KeepNul = Below(random, 2) == 0;
    for (int search = 0; search < kSearches; ++search) {
      const Westring pattern = AnyPattern(random);
      const Flags flags = AnyFlags(random);
      const int64_t start = AnyStart(random, text, flags.reverse);
      const int64_t expected =
          PlainSearch(text, pattern, start, flags.caseSensitive, flags.wholeWord, flags.reverse);
      ASSERT_EQ(text.Search(pattern, start, flags.caseSensitive, flags.wholeWord, flags.reverse), expected)
          << ToUtf8(pattern).Text() << " from " << start << (flags.reverse ? " back" : "")
          << (flags.wholeWord ? ", whole words" : "") << (flags.caseSensitive ? "" : ", any case")
          << ", text " << round;
      hits += expected >= 0;
    }
  }
  EXPECT_GT(hits, kFewestHits);
}

}  // namespace

TEST(SearchReference, CharactersOfUtf8) { CompareCharacters(kUtf8); }
TEST(SearchReference, CharactersOfACodePage) { CompareCharacters(kCodePageText); }
TEST(SearchReference, UnitsOfTwoBytesLowFirst) { CompareCharacters(kUtf16Little); }
TEST(SearchReference, UnitsOfTwoBytesHighFirst) { CompareCharacters(kUtf16Big); }
TEST(SearchReference, UnitsOfFourBytesLowFirst) { CompareCharacters(kUtf32Little); }
TEST(SearchReference, UnitsOfFourBytesHighFirst) { CompareCharacters(kUtf32Big); }

TEST(SearchReference, BytesOfACodePage) {
  Random random(99);
  int hits = 0;
  for (int round = 0; round < kTexts; ++round) {
    SearchedText text(AnyText(random, kCodePageText, 1), kCodePageText);
    for (int search = 0; search < kSearches; ++search) {
      const Westring pattern = AnyPattern(random);
      const Flags flags = AnyFlags(random);
      const int64_t start = AnyStart(random, text, flags.reverse);
      const int page = Below(random, 2) == 0 ? 819 : 1251;
      if (EncodeCodePage(flags.caseSensitive ? pattern : Fold(pattern), page).IsEmpty()) continue;
      const int64_t expected =
          PlainSearchBytes(text, pattern, start, flags.reverse, flags.caseSensitive, flags.wholeWord, page);
      ASSERT_EQ(text.SearchBytes(pattern, start, flags.reverse, flags.caseSensitive, flags.wholeWord, page),
                expected)
          << ToUtf8(pattern).Text() << " from " << start << (flags.reverse ? " back" : "") << ", text "
          << round;
      hits += expected >= 0;
    }
  }
  EXPECT_GT(hits, kFewestHits);
}

// Around the length from which on positions count as lacking.
TEST(SearchReference, LongTextsInBytes) {
  Random random(5);
  for (int round = 0; round < kTexts; ++round) {
    std::string bytes;
    for (int n = 2000; n > 0; --n) bytes += "abcd"[Below(random, 20) == 0 ? 1 + Below(random, 3) : 0];
    SearchedText text(bytes, kCodePageText);
    for (int search = 0; search < 20; ++search) {
      const int length = 100 + Below(random, 200), place = Below(random, 2000 - length);
      const Westring pattern(bytes.substr(static_cast<size_t>(place), static_cast<size_t>(length)).c_str());
      const bool reverse = Below(random, 2) == 0;
      const int64_t start = reverse ? 2000 - Below(random, 5) : Below(random, 5);
      ASSERT_EQ(text.SearchBytes(pattern, start, reverse, true, false, 819),
                PlainSearchBytes(text, pattern, start, reverse, true, false, 819))
          << length << " bytes from " << place << (reverse ? " back" : "");
    }
  }
}
