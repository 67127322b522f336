// Which items may begin with a character. At most places of a text that is none,
// and none has to be asked.
#pragma once

#include <array>
#include <vector>

#include "foundation/collections.h"

// What an item begins with; 0 for one that begins nowhere.
struct SyntaxStart {
  wchar_t character;
  bool caseSensitive;
};

// The places in the index: one for each character of ASCII, and one for all others.
constexpr int kSyntaxStarts = 129;

inline int SyntaxStartOf(wchar_t c) {
  return c >= 0 && c < kSyntaxStarts - 1 ? static_cast<int>(c) : kSyntaxStarts - 1;
}

bool MayBeginAt(const SyntaxStart& start, int place);

// Of items with a FirstOfStart(), in the order of the store.
template <class Item>
class StartIndex {
 public:
  void Build(const TObjectStore<Item>& store) {
    for (int place = 0; place < kSyntaxStarts; ++place) {
      items[place].clear();
      for (int i = 0; i < store.Count(); ++i)
        if (MayBeginAt(store.Peek(i)->FirstOfStart(), place)) items[place].push_back(store.Peek(i));
    }
  }
  const std::vector<Item*>& At(wchar_t c) const { return items[SyntaxStartOf(c)]; }

 private:
  std::array<std::vector<Item*>, kSyntaxStarts> items;
};
