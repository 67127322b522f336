// The comparisons of the ten sort keys, and the sort itself.
#include "panels/sort_order.h"

#include <cstring>
#include <cwchar>
#include <memory>

#include "config/values/options.h"
#include "foundation/fold.h"
#include "panels/draw_panel.h"
#include "panels/read_panel.h"

namespace {

// Lists up to this length are put in order by insertion.
constexpr int kInsertionLength = 8;

template <class Before>
void InsertionSort(entry** list, int count, Before before) {
  for (int i = 1; i < count; ++i) {
    entry* const e = list[i];
    int place = i;
    for (; place > 0 && before(e, list[place - 1]); --place) list[place] = list[place - 1];
    list[place] = e;
  }
}

// A stable merge sort. Its own, since the name order is not one that
// std::stable_sort has to survive: a character whose low byte is zero compares
// equal to the end of a name, so "equal" does not carry over from pair to pair.
// spare has room for half the list.
template <class Before>
void MergeSort(entry** list, int count, entry** spare, Before before) {
  if (count <= kInsertionLength) return InsertionSort(list, count, before);
  const int half = count / 2;
  MergeSort(list, half, spare, before);
  MergeSort(list + half, count - half, spare, before);
  if (!before(list[half], list[half - 1])) return;  // a list in order costs one pass

  memcpy(spare, list, half * sizeof *list);
  entry **left = spare, **const leftEnd = spare + half;
  entry **right = list + half, **const rightEnd = list + count;
  while (left < leftEnd && right < rightEnd) *list++ = before(*right, *left) ? *right++ : *left++;
  memcpy(list, left, (leftEnd - left) * sizeof *list);
}

const wchar_t* Extension(const wchar_t* name) {
  const wchar_t* const dot = wcsrchr(name, L'.');
  return dot ? dot + 1 : L"";
}

int ByName(const entry& a, const entry& b) { return CompareNames(a.name, b.name); }

int ByExtension(const entry& a, const entry& b) {
  const int order = CompareNames(Extension(a.name), Extension(b.name));
  return order ? order : ByName(a, b);
}

int ByTime(const entry& a, const entry& b) {
  const uint64_t left = a.modified.Order(), right = b.modified.Order();
  if (left != right) return left > right ? -1 : 1;
  return ByName(a, b);
}

int BySize(const entry& a, const entry& b) {
  if (a.size != b.size) return a.size > b.size ? -1 : 1;
  return ByName(a, b);
}

// The groups keep their order also in a reversed sort.
template <int (*compare)(const entry&, const entry&), int sign>
void SortBy(entry** list, int count) {
  const auto spare = std::make_unique_for_overwrite<entry*[]>(count / 2);
  MergeSort(list, count, spare.get(), [](const entry* a, const entry* b) {
    if (a->sortGroup != b->sortGroup) return a->sortGroup < b->sortGroup;
    return sign * compare(*a, *b) < 0;
  });
}

constexpr void (*kSorts[kSortKeys])(entry** list, int count) = {
    SortBy<ByName, 1>,  SortBy<ByExtension, 1>,  SortBy<ByTime, 1>,  SortBy<BySize, 1>,  nullptr,
    SortBy<ByName, -1>, SortBy<ByExtension, -1>, SortBy<ByTime, -1>, SortBy<BySize, -1>, nullptr,
};

}  // namespace

// Of two rows with one name the settings mean the first.
const char* const kSortNames[kSortKeys] = {
    "name", "extension", "time", "size", "unsorted", "rname", "rextension", "rtime", "rsize", "unsorted",
};

int CompareNames(const wchar_t* a, const wchar_t* b) { return CompareFileNames(a, b); }

void SortEntryList(entry** list, int count, int sortKey) {
  if (count < 2 || sortKey < 0 || sortKey >= kSortKeys || !kSorts[sortKey]) return;
  kSorts[sortKey](list, count);
}

void SortEntries(TPanel& panel) { SortEntryList(panel.entries, panel.count, panel.sortKey); }

void SetSort(TPanel& panel, int key) {
  panel.sortKey = key;
  (panel.Side() == 0 ? Options::LeftSort : Options::RightSort) = key;
  if (panel.IsTree()) return;

  if (key == kSortUnsorted) {
    ReadPanel(panel);  // no sort brings the order of the source back
  } else if (const entry* const current = panel.Current()) {
    const Westring name(current->name);
    SortEntries(panel);
    PositionOn(panel, name.Text());
  } else {
    SortEntries(panel);
  }
  DrawPanel(panel);
}
