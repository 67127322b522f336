// The untyped bottoms of the containers and the collections of strings.
#include "foundation/collections.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

constexpr int kStoreCapacity = 10;
constexpr int kCollectionCapacity = 100;

template <class Index>
void GrowItems(void**& items, Index count, Index& capacity) {
  if (count < capacity) return;
  const int64_t grown = int64_t{capacity} * 13 / 10;
  void** const fresh = new void*[grown];
  std::copy(items, items + count, fresh);
  delete[] items;
  items = fresh;
  capacity = static_cast<Index>(grown);
}

template <class Index>
void OpenGap(void** items, Index count, Index at) {
  memmove(items + at + 1, items + at, (count - at) * sizeof *items);
}

template <class Index>
void CloseGap(void** items, Index count, Index at) {
  memmove(items + at, items + at + 1, (count - at - 1) * sizeof *items);
}

}  // namespace

// ---- ObjectStore -----------------------------------------------------------

ObjectStore::ObjectStore() : items(new void*[kStoreCapacity]), capacity(kStoreCapacity) {}

ObjectStore::~ObjectStore() { delete[] items; }

void ObjectStore::GrowIfFull() { GrowItems(items, count, capacity); }

void* ObjectStore::PeekItem(int i) const { return i >= 0 && i < count ? items[i] : nullptr; }

void* ObjectStore::CurrentItem() const { return PeekItem(current); }

void* ObjectStore::ItemAt(int i) {
  current = i;
  return CurrentItem();
}

void* ObjectStore::FirstItem() { return ItemAt(0); }

void* ObjectStore::NextItem() {
  if (current < std::numeric_limits<int32_t>::max()) current++;
  return CurrentItem();
}

void* ObjectStore::PrevItem() {
  if (current > std::numeric_limits<int32_t>::min()) current--;
  return CurrentItem();
}

void* ObjectStore::LastItem() { return ItemAt(count - 1); }

void ObjectStore::AppendItem(void* item) {
  GrowIfFull();
  current = count;
  items[count++] = item;
}

int ObjectStore::InsertItem(void* item) {
  GrowIfFull();
  current = std::clamp(current, 0, count);
  OpenGap(items, count, current);
  items[current] = item;
  return ++count;
}

void* ObjectStore::DetachItem() {
  if (current < 0 || current >= count) return nullptr;
  void* const item = items[current];
  CloseGap(items, count, current);
  count--;
  return item;
}

void ObjectStore::Remove() {
  if (current < 0 || current >= count) return;
  FreeItem(DetachItem());
}

void ObjectStore::Clear() {
  for (int i = 0; i < count; i++) FreeItem(items[i]);
  current = count;
  count = 0;
}

// ---- SortedCollection ------------------------------------------------------

SortedCollection::SortedCollection(bool duplicates)
    : allowDuplicates(duplicates), items(new void*[kCollectionCapacity]), capacity(kCollectionCapacity) {}

SortedCollection::~SortedCollection() { delete[] items; }

void SortedCollection::GrowIfFull() { GrowItems(items, count, capacity); }

void* SortedCollection::PeekItem(int64_t i) const { return i >= 0 && i < count ? items[i] : nullptr; }

void* SortedCollection::FirstItem() {
  current = 0;
  return PeekItem(current);
}

void* SortedCollection::NextItem() {
  if (current < std::numeric_limits<int64_t>::max()) current++;
  return PeekItem(current);
}

int SortedCollection::SearchKey(const void* key, int64_t& index) const {
  int64_t low = 0;
  int64_t high = count - 1;
  while (low <= high) {
    const int64_t mid = (low + high) / 2;
    const int order = CompareItem(key, items[mid]);
    if (order == 0) {
      index = mid;
      return 0;
    }
    if (order < 0) {
      high = mid - 1;
    } else {
      low = mid + 1;
    }
  }
  index = low;
  return -1;
}

int SortedCollection::InsertItem(void* item) {
  int64_t index = 0;
  if (SearchKey(KeyOfItem(item), index) == 0 && !allowDuplicates) return -1;
  GrowIfFull();
  OpenGap(items, count, index);
  items[index] = item;
  count++;
  return 0;
}

void* SortedCollection::FindKey(const void* key) {
  int64_t index = 0;
  if (SearchKey(key, index) != 0) return nullptr;
  current = index;
  return items[index];
}

void* SortedCollection::FindKeyOrAfter(const void* key) {
  const auto before = [this, key](const void* item) { return CompareItem(key, item) > 0; };
  current = std::partition_point(items, items + count, before) - items;
  return PeekItem(current);
}

void* SortedCollection::FindKeyOrBefore(const void* key) {
  const auto notAfter = [this, key](const void* item) { return CompareItem(key, item) >= 0; };
  current = std::partition_point(items, items + count, notAfter) - items - 1;
  return PeekItem(current);
}

void SortedCollection::Remove() {
  void* const item = PeekItem(current);
  if (current < 0 || current >= count) return;
  CloseGap(items, count, current);
  count--;
  FreeItem(item);
}

void SortedCollection::Clear() {
  for (int64_t i = 0; i < count; i++) FreeItem(items[i]);
  count = 0;
  current = 0;
}

void SortedCollection::AppendUnsorted(void* item) {
  GrowIfFull();
  items[count++] = item;
}

// Equal items keep their order of arrival, so the one that stays is the one
// that Insert would have taken.
void SortedCollection::SortAppended() {
  std::stable_sort(items, items + count,
                   [this](const void* a, const void* b) { return CompareItem(KeyOfItem(a), b) < 0; });
  if (allowDuplicates || count == 0) return;
  int64_t kept = 1;
  for (int64_t i = 1; i < count; i++) {
    if (CompareItem(KeyOfItem(items[i]), items[kept - 1]) == 0) {
      FreeItem(items[i]);
    } else {
      items[kept++] = items[i];
    }
  }
  count = kept;
}

// ---- collections of strings ------------------------------------------------

namespace {

template <class Collection, class String>
int AddCopy(Collection& collection, const String& text) {
  auto copy = std::make_unique<String>(text);
  if (collection.Insert(copy.get()) != 0) return 0;
  copy.release();
  return 1;
}

}  // namespace

int StringCollection::Add(const Estring& text) { return AddCopy(*this, text); }

int StringCollection::AddList(Estring text) {
  int added = 0;
  while (!text.IsEmpty()) added += Add(NextField(text));
  return added;
}

Estring StringCollection::Join() const {
  int length = 0;
  for (int64_t i = 0; i < Count(); i++) length += Length(*Peek(i)) + 1;
  Estring list = Estring::Reserved(length);
  char* end = list.Text();
  for (int64_t i = 0; i < Count(); i++) {
    if (i > 0) *end++ = ',';
    end = stpcpy(end, Peek(i)->Text());
  }
  return list;
}

int StringCollection::CompareKeys(const Estring* a, const Estring* b) const {
  return Compare(a->Text(), b->Text());
}

int WestringCollection::Add(const Westring& text) { return AddCopy(*this, text); }

int WestringCollection::CompareKeys(const Westring* a, const Westring* b) const {
  return Compare(a->Text(), b->Text());
}

FnStringCollection::FnStringCollection(const FnStringCollection& other)
    : TSortedCollection(other.AllowsDuplicates()) {
  *this = other;
}

FnStringCollection& FnStringCollection::operator=(const FnStringCollection& other) {
  if (this == &other) return *this;
  Clear();
  for (int64_t i = 0; i < other.Count(); i++) Load(*other.Peek(i));
  FinishLoad();
  return *this;
}

int FnStringCollection::Add(const Westring& text) { return AddCopy(*this, text); }

int FnStringCollection::CompareKeys(const Westring* a, const Westring* b) const {
  return Compare(a->Text(), b->Text());
}

int KeyedValueSet::CompareKeys(const Estring* a, const Estring* b) const {
  return Compare(a->Text(), b->Text());
}
