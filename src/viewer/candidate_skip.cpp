// Where a match may begin in text of several bytes a character; see
// candidate_skip.h.
#include "viewer/candidate_skip.h"

#include <algorithm>
#include <utility>

#include "foundation/fold.h"

namespace {

constexpr int kFarthestPlace = 64;        // bytes from the beginning that the filter may look at
constexpr wchar_t kFolded = 0x8000;       // elements from here on fold to themselves
constexpr wchar_t kReplacement = 0xFFFD;  // stands for the words of UTF-32 that are no characters

using CharacterBytes = std::vector<uint8_t>;

// How a text file lays out its characters.
struct Layout {
  int unit;  // bytes; 0 for UTF-8
  bool bigEndian;
  bool zeroIsBlank;
};

Layout LayoutOf(const CTextFile& file) {
  if (file.Encoding == kUtf8) return {0, false, false};
  return {file.BytesPerUnit(), file.BigEndian(), !file.KeepNul};
}

CharacterBytes Utf8Bytes(uint32_t ch) {
  const auto bits = [ch](int shift) { return static_cast<uint8_t>(0x80 | (ch >> shift & 0x3F)); };
  if (ch < 0x80) return {static_cast<uint8_t>(ch)};
  if (ch < 0x800) return {static_cast<uint8_t>(0xC0 | ch >> 6), bits(0)};
  if (ch < 0x10000) return {static_cast<uint8_t>(0xE0 | ch >> 12), bits(6), bits(0)};
  if (ch < 0x200000) return {static_cast<uint8_t>(0xF0 | ch >> 18), bits(12), bits(6), bits(0)};
  return {};
}

// Empty where the layout has no place for the character.
CharacterBytes BytesOf(uint32_t ch, const Layout& layout) {
  if (layout.unit == 0) return Utf8Bytes(ch);
  if (layout.unit < 4 && ch >> 8 * layout.unit != 0) return {};
  CharacterBytes bytes;
  for (int i = 0; i < layout.unit; ++i) bytes.push_back(static_cast<uint8_t>(ch >> 8 * i));
  if (layout.bigEndian) std::reverse(bytes.begin(), bytes.end());
  return bytes;
}

// The pairs of a folded character and another one that folds to it, in order.
using FoldPairs = std::vector<std::pair<wchar_t, wchar_t>>;
const FoldPairs& FoldedFrom() {
  static const FoldPairs pairs = [] {
    FoldPairs made;
    for (wchar_t ch = 0; ch < kFolded; ++ch)
      if (FoldChar(ch) != ch) made.emplace_back(FoldChar(ch), ch);
    std::sort(made.begin(), made.end());
    return made;
  }();
  return pairs;
}

// All that counts as a character of the pattern, as bytes.
std::vector<CharacterBytes> Forms(wchar_t ch, bool caseSensitive, const Layout& layout) {
  std::vector<wchar_t> characters;
  if (caseSensitive || FoldChar(ch) == ch) characters.push_back(ch);
  if (!caseSensitive) {
    const FoldPairs& pairs = FoldedFrom();
    auto pair = std::lower_bound(pairs.begin(), pairs.end(), FoldPairs::value_type(ch, 0));
    for (; pair != pairs.end() && pair->first == ch; ++pair) characters.push_back(pair->second);
  }
  if (ch == L' ' && layout.zeroIsBlank) characters.push_back(0);
  std::vector<CharacterBytes> forms;
  for (const wchar_t each : characters) {
    const CharacterBytes bytes = BytesOf(static_cast<uint32_t>(each), layout);
    if (!bytes.empty()) forms.push_back(bytes);
  }
  return forms;
}

// Nearly all forms of a character are equally long. Those that are not are
// excepted from the sure text, so that a character has one length there; false
// where that cannot be.
bool ExceptOtherLengths(std::vector<CharacterBytes>& forms, SureText& sureText) {
  const auto countOf = [&](size_t length) {
    return std::count_if(forms.begin(), forms.end(),
                         [length](const CharacterBytes& form) { return form.size() == length; });
  };
  size_t usual = forms[0].size();
  for (const CharacterBytes& form : forms)
    if (countOf(form.size()) > countOf(usual)) usual = form.size();
  for (const CharacterBytes& form : forms) {
    if (form.size() == usual) continue;
    if (form.size() == 1 || !sureText.Except({form[0], form[1]})) return false;
  }
  std::erase_if(forms, [usual](const CharacterBytes& form) { return form.size() != usual; });
  return true;
}

MatchPlace PlaceOf(int offset, const std::vector<CharacterBytes>& forms, size_t index) {
  MatchPlace place = {offset, {}};
  for (const CharacterBytes& form : forms)
    if (std::find(place.bytes.begin(), place.bytes.end(), form[index]) == place.bytes.end())
      place.bytes.push_back(form[index]);
  return place;
}

// The bytes of a match in sure text, which is restricted as it has to be.
std::vector<MatchPlace> PlacesOf(const Westring& pattern, bool caseSensitive, bool reverse,
                                 const Layout& layout, SureText& sureText) {
  std::vector<MatchPlace> places;
  int distance = 0;
  for (int i = 0; pattern[i] && distance < kFarthestPlace; ++i) {
    if (pattern[i] == kReplacement && layout.unit == 4) break;
    auto forms = Forms(pattern[i], caseSensitive, layout);
    if (forms.empty()) return {{0, {}}};
    if (!ExceptOtherLengths(forms, sureText)) break;
    const int length = static_cast<int>(forms[0].size());
    if (reverse) distance += length;
    for (int index = 0; index < length; ++index)
      places.push_back(PlaceOf((reverse ? -distance : distance) + index, forms, static_cast<size_t>(index)));
    if (!reverse) distance += length;
  }
  return places;
}

}  // namespace

CandidateSkip::CandidateSkip(CTextFile& file, const Westring& pattern, bool caseSensitive, bool reverse)
    : file(file),
      reverse(reverse),
      unit(LayoutOf(file).unit),
      sureText(unit),
      filter(PlacesOf(pattern, caseSensitive, reverse, LayoutOf(file), sureText)),
      sureUntil(file.Position) {}

bool CandidateSkip::MoveOn() {
  const int64_t at = file.Position;
  const uint8_t* bytes;
  const int n = file.BytesFrom(at, bytes);
  if (at >= sureUntil) sureUntil = at + sureText.Length(bytes, n);
  const int sure = static_cast<int>(std::min<int64_t>(n, sureUntil - at));
  const int end = sure - filter.Highest();  // from here the filter would look behind the sure text
  if (end <= 0) return false;
  int i = filter.First(bytes, 0, end);
  while (i < end && !sureText.IsBoundary(i, bytes[i])) i = filter.First(bytes, i + 1, end);
  while (i < sure && !sureText.IsBoundary(i, bytes[i])) ++i;
  file.Position = at + i;
  return i > 0;
}

// A match begins with its last byte here, in front of the place.
bool CandidateSkip::MoveBack() {
  const int64_t at = file.Position;
  // Inside of a unit, the first step is the shorter one to its start.
  if (at <= 0 || (unit > 1 && (at - file.DataStart) % unit != 0)) return false;
  const uint8_t* bytes;
  const int n = file.BytesUpTo(at - 1, bytes);
  if (at <= sureUntil) sureUntil = at - sureText.LengthBack(bytes, n);
  const int sure = static_cast<int>(std::min<int64_t>(n, at - sureUntil));
  const int begin = n - sure - filter.Lowest();
  if (begin > n) return false;
  const auto isBoundary = [&](int i) { return i == n || sureText.IsBoundary(n - i, bytes[i]); };
  int i = filter.Last(bytes, begin, n + 1);
  while (i >= begin && !isBoundary(i)) i = filter.Last(bytes, begin, i);
  i = std::max(i, n - sure);
  while (i > n - sure && !isBoundary(i)) --i;
  file.Position = at - (n - i);
  return i < n;
}
