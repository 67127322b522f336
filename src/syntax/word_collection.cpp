// Lists of words. The words of a line are looked up where they stand.
#include <cwchar>

#include "foundation/fold.h"
#include "syntax/syntax_definition.h"

namespace {

constexpr wchar_t kBlanks[] = L" \t";

// As strcmp; a counts its characters, b ends in a zero.
int CompareWords(const wchar_t* a, int length, const wchar_t* b, bool caseSensitive) {
  for (int i = 0; i < length; ++i) {
    if (a[i] == b[i]) continue;
    const auto left = static_cast<uint32_t>(caseSensitive ? a[i] : LowerChar(a[i]));
    const auto right = static_cast<uint32_t>(caseSensitive ? b[i] : LowerChar(b[i]));
    if (left != right) return left < right ? -1 : 1;
  }
  return b[length] == 0 ? 0 : -1;
}

}  // namespace

int WordCollection::CompareKeys(const Westring* a, const Westring* b) const {
  return CompareWords(a->Text(), Length(*a), b->Text(), CaseSensitive);
}

void WordCollection::AddWords(const Westring& text) {
  const wchar_t* p = text.Text();
  for (p += wcsspn(p, kBlanks); *p; p += wcsspn(p, kBlanks)) {
    const auto length = static_cast<int>(wcscspn(p, kBlanks));
    AppendUnsorted(new Westring(p, length));
    p += length;
  }
  SortAppended();
}

bool WordCollection::Holds(const wchar_t* word, int length) const {
  int64_t low = 0, high = Count() - 1;
  while (low <= high) {
    const int64_t middle = (low + high) / 2;
    const int order = CompareWords(word, length, Peek(middle)->Text(), CaseSensitive);
    if (order == 0) return true;
    if (order < 0)
      high = middle - 1;
    else
      low = middle + 1;
  }
  return false;
}
