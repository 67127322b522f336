// Wildcard matching. Patterns without alternatives are matched in one pass that
// goes back to the last "*" only; those with alternatives by following all
// reachable places of the name at once. Both need no recursion, and a pattern
// full of stars costs pattern length times name length, not a power of it.
#include "foundation/wildcards.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <cwchar>
#include <map>
#include <vector>

#include "foundation/fold.h"

namespace {

size_t TextLength(const char* text) { return strlen(text); }
size_t TextLength(const wchar_t* text) { return wcslen(text); }
const char* FindChar(const char* text, char ch) { return strchr(text, ch); }
const wchar_t* FindChar(const wchar_t* text, wchar_t ch) { return wcschr(text, ch); }
const char* FindLastChar(const char* text, char ch) { return strrchr(text, ch); }
const wchar_t* FindLastChar(const wchar_t* text, wchar_t ch) { return wcsrchr(text, ch); }

// "?" takes any one character, everything else itself.
struct ExactRules {
  using Char = wchar_t;
  explicit ExactRules(const Char*) {}

  // Whether the element at p takes c; p goes behind the element.
  bool MatchOne(const Char*& p, Char c) const {
    const Char element = *p++;
    return element == L'?' || element == c;
  }
};

// What differs between the narrow and the wide form: how letters compare, and
// which characters a range of a set holds.
struct NarrowFold {
  using Char = char;

  static int Value(char c) { return static_cast<unsigned char>(c); }
  static bool Same(char a, char b) { return toupper(Value(a)) == toupper(Value(b)); }
  static bool RangeHolds(int from, int to, char c) {
    const int lower = tolower(Value(c)), upper = toupper(lower);
    return (lower >= from && lower <= to) || (tolower(upper) == lower && upper >= from && upper <= to);
  }
};

// The characters that fold to the same as some character below 256, by what
// they fold to. A set tests only the low byte of a wide character, so no other
// content of a range can ever be asked for.
const std::multimap<wchar_t, wchar_t>& LatinFoldSources() {
  static const std::multimap<wchar_t, wchar_t> sources = [] {
    constexpr wchar_t kFoldedValues = 0x8000;  // FoldChar leaves all above alone
    std::vector<bool> wanted(kFoldedValues);
    for (wchar_t c = 0; c < 256; ++c) wanted[static_cast<size_t>(FoldChar(c))] = true;
    std::multimap<wchar_t, wchar_t> found;
    for (wchar_t c = 0; c < kFoldedValues; ++c) {
      const wchar_t folded = FoldChar(c);
      if (folded >= 0 && folded < kFoldedValues && wanted[static_cast<size_t>(folded)])
        found.emplace(folded, c);
    }
    return found;
  }();
  return sources;
}

struct WideFold {
  using Char = wchar_t;

  static int Value(wchar_t c) { return c; }
  static bool Same(wchar_t a, wchar_t b) { return FoldChar(a) == FoldChar(b); }
  // The cut to 8 bits makes sets work for Latin text only.
  static bool RangeHolds(int from, int to, wchar_t c) {
    const auto [first, last] = LatinFoldSources().equal_range(FoldChar(c & 255));
    for (auto source = first; source != last; ++source)
      if (source->second >= from && source->second <= to) return true;
    return false;
  }
};

// The content of a set, from behind its "[" up to end, its "]". A "^" in front
// starts with everything; it and every later one turn over whether what follows
// is put in or taken out. A "-" with nothing before it is itself.
template <class Fold>
bool SetHolds(const typename Fold::Char* p, const typename Fold::Char* end, typename Fold::Char c) {
  bool adding = true, held = false;
  if (p < end && *p == '^') {
    adding = false;
    held = true;
    p++;
  }
  bool hasPrevious = false;
  int previous = 0;
  for (; p < end; ++p) {
    if (*p == '^') {
      adding = !adding;
      hasPrevious = false;
      continue;
    }
    int from = Fold::Value(*p), to = from;
    if (*p == '-' && hasPrevious) {
      from = previous;
      to = p + 1 < end ? Fold::Value(*++p) : 255;
    }
    if (Fold::RangeHolds(from, to, c)) held = adding;
    previous = to;
    hasPrevious = true;
  }
  return held;
}

template <class Fold>
struct FoldingRules {
  using Char = typename Fold::Char;

  explicit FoldingRules(const Char* pattern) : lastBracket(FindLastChar(pattern, ']')) {}

  // The closing bracket of the set at p, or null if p is a plain character.
  const Char* SetEnd(const Char* p) const {
    return *p == '[' && lastBracket && p < lastBracket ? FindChar(p, ']') : nullptr;
  }
  // Behind the element at p, which takes exactly one character.
  const Char* Behind(const Char* p) const {
    const Char* close = SetEnd(p);
    return close ? close + 1 : p + 1;
  }
  bool MatchOne(const Char*& p, Char c) const {
    const Char* element = p;
    if (const Char* close = SetEnd(element)) {
      p = close + 1;
      return SetHolds<Fold>(element + 1, close, c);
    }
    p++;
    return *element == '?' || Fold::Same(*element, c);
  }

  const Char* lastBracket;  // of the pattern, or null
};

// A pattern of "*" and one-character elements. When a part between two stars
// has matched at its first place, a later place can't do better, so only the
// last star is ever tried again.
template <class Rules>
bool MatchStars(const typename Rules::Char* pattern, const typename Rules::Char* name) {
  const Rules rules(pattern);
  const typename Rules::Char *afterStar = nullptr, *starName = nullptr;
  for (;;) {
    if (*pattern == '*') {
      afterStar = ++pattern;
      starName = name;
      if (!*pattern) return true;
      continue;
    }
    if (!*name) return !*pattern;
    if (*pattern && rules.MatchOne(pattern, *name)) {
      name++;
      continue;
    }
    if (!afterStar) return false;
    pattern = afterStar;
    name = ++starName;
  }
}

template <class Char>
struct Alternative {
  const Char* begin;
  const Char* end;
  size_t length;  // in characters of the name
};

// A set of places of a name, from 0 up to its length, that knows its ends.
class Places {
 public:
  explicit Places(size_t nameLength) : held(nameLength + 1), first(nameLength + 1) {}

  void Add(size_t place) {
    held[place] = true;
    first = std::min(first, place);
    last = std::max(last, place);
  }
  bool Has(size_t place) const { return held[place]; }
  size_t First() const { return first; }
  size_t Last() const { return last; }

 private:
  std::vector<bool> held;
  size_t first, last = 0;
};

// Matches a pattern with alternatives: carries the set of places of the name
// that can be reached, through the pattern from left to right.
template <class Fold>
class AlternativesMatcher {
 public:
  using Char = typename Fold::Char;

  AlternativesMatcher(const Char* patternText, const Char* nameText)
      : rules(patternText), pattern(patternText), name(nameText), nameLength(TextLength(nameText)) {}

  bool Run() {
    Reach(pattern, 0);
    while (!reachable.empty()) {
      const auto first = reachable.begin();
      const Char* p = first->first;
      const Places places = std::move(first->second);
      reachable.erase(first);
      if (!*p) return places.Has(nameLength);
      if (*p == '*') {
        TakeStar(p, places);
      } else {
        if (*p == '{') TakeAlternatives(p, places);
        TakeOne(p, places);
      }
    }
    return false;
  }

 private:
  void Reach(const Char* p, size_t place) { reachable.try_emplace(p, nameLength).first->second.Add(place); }

  void TakeStar(const Char* p, const Places& places) {
    for (size_t i = places.First(); i <= nameLength; ++i) Reach(p + 1, i);
  }

  void TakeOne(const Char* p, const Places& places) {
    const Char* behind = rules.Behind(p);
    for (size_t i = places.First(); i <= places.Last() && i < nameLength; ++i) {
      const Char* element = p;
      if (places.Has(i) && rules.MatchOne(element, name[i])) Reach(behind, i + 1);
    }
  }

  void TakeAlternatives(const Char* p, const Places& places) {
    std::vector<Alternative<Char>> alternatives;
    const Char* behind = Split(p, alternatives);
    if (!behind) return;
    for (const auto& alternative : alternatives)
      for (size_t i = places.First(); i <= places.Last() && i + alternative.length <= nameLength; ++i)
        if (places.Has(i) && Matches(alternative, name + i)) Reach(behind, i + alternative.length);
  }

  // The alternatives of the "{" at p, and the place behind its "}"; null if the
  // "{" is a plain character.
  const Char* Split(const Char* p, std::vector<Alternative<Char>>& alternatives) const {
    if (p[1] == '}') return nullptr;
    Alternative<Char> current{p + 1, p + 1, 0};
    while (*current.end) {
      const Char c = *current.end;
      if (c == ',' || c == '}') {
        alternatives.push_back(current);
        const Char* next = current.end + 1;
        if (c == '}') return next;
        current = {next, next, 0};
      } else {
        current.end = rules.Behind(current.end);
        current.length++;
      }
    }
    return nullptr;
  }

  bool Matches(const Alternative<Char>& alternative, const Char* text) const {
    const Char* p = alternative.begin;
    while (p < alternative.end)
      if (!rules.MatchOne(p, *text++)) return false;
    return true;
  }

  FoldingRules<Fold> rules;
  const Char* pattern;
  const Char* name;
  size_t nameLength;
  std::map<const Char*, Places> reachable;  // by place in the pattern
};

template <class Fold>
bool Match(const typename Fold::Char* pattern, const typename Fold::Char* name) {
  if (FindChar(pattern, '{')) return AlternativesMatcher<Fold>(pattern, name).Run();
  return MatchStars<FoldingRules<Fold>>(pattern, name);
}

}  // namespace

bool MatchSimple(const wchar_t* pattern, const wchar_t* name) {
  return MatchStars<ExactRules>(pattern, name);
}
bool WildMatch(const char* pattern, const char* name) { return Match<NarrowFold>(pattern, name); }
bool WildMatchW(const wchar_t* pattern, const wchar_t* name) { return Match<WideFold>(pattern, name); }

void ApplyRenameMask(const wchar_t* source, const wchar_t* mask, Westring& target) {
  Westring result;
  for (; *mask; ++mask) {
    if (*mask == L'*') {
      while (*source && *source != L'.') result += *source++;
    } else if (*mask == L'?') {
      if (*source) result += *source++;
    } else {
      if (*mask == L'.') {
        while (*source && *source != L'.') source++;
        if (*source) source++;
      }
      result += *mask;
    }
  }
  target = std::move(result);
}
