// Stores and sorted collections: cursor, growth, order, and who frees what.
#include "foundation/collections.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

// Tells which numbers were freed, in order.
std::vector<int> Freed;

struct Number {
  explicit Number(int v, int t = 0) : value(v), tag(t) {}
  ~Number() { Freed.push_back(value); }
  Number(const Number&) = delete;
  Number& operator=(const Number&) = delete;
  int value;
  int tag;  // tells equal numbers apart
};

using NumberStore = TObjectStore<Number>;

class NumberSet : public TSortedCollection<Number, int> {
 public:
  using TSortedCollection::TSortedCollection;
  ~NumberSet() override { Clear(); }
  void Load(int value, int tag = 0) { AppendUnsorted(new Number(value, tag)); }
  void FinishLoad() { SortAppended(); }

 protected:
  const int* KeyOf(const Number* item) const override { return &item->value; }
  int CompareKeys(const int* a, const int* b) const override { return *a - *b; }
};

std::vector<int> Values(const NumberStore& store) {
  std::vector<int> values;
  for (int i = 0; i < store.Count(); i++) values.push_back(store.Peek(i)->value);
  return values;
}

std::vector<int> Values(const NumberSet& set) {
  std::vector<int> values;
  for (int64_t i = 0; i < set.Count(); i++) values.push_back(set.Peek(i)->value);
  return values;
}

void Fill(NumberStore& store, int n) {
  for (int i = 0; i < n; i++) store.Append(new Number(i));
}

int ValueOf(const Number* item) { return item ? item->value : -1; }

using Numbers = std::vector<int>;

}  // namespace

// ---- ObjectStore -----------------------------------------------------------

TEST(ObjectStore, GrowsByThreeTenthsWhenFull) {
  NumberStore store;
  std::vector<int> capacities;
  for (int i = 0; i < 27; i++) {
    store.Append(new Number(i));
    if (capacities.empty() || capacities.back() != store.Capacity()) capacities.push_back(store.Capacity());
  }
  EXPECT_EQ(capacities, (Numbers{10, 13, 16, 20, 26, 33}));
  Fill(store, 6);
  EXPECT_EQ(store.Count(), 33);
  EXPECT_EQ(store.Capacity(), 33);
  store.Clear();
  EXPECT_EQ(store.Capacity(), 33);
}

TEST(ObjectStore, CursorWalksPastBothEnds) {
  NumberStore store;
  Fill(store, 3);
  EXPECT_EQ(ValueOf(store.First()), 0);
  EXPECT_EQ(store.Prev(), nullptr);
  EXPECT_EQ(store.Position(), -1);
  EXPECT_EQ(store.Current(), nullptr);
  EXPECT_EQ(ValueOf(store.Next()), 0);
  EXPECT_EQ(ValueOf(store.Last()), 2);
  EXPECT_EQ(store.Next(), nullptr);
  EXPECT_EQ(store.Next(), nullptr);
  EXPECT_EQ(store.Position(), 4);
  EXPECT_EQ(store.Prev(), nullptr);
  EXPECT_EQ(ValueOf(store.Prev()), 2);
  EXPECT_EQ(ValueOf(store.At(1)), 1);
  EXPECT_EQ(ValueOf(store.Current()), 1);
  EXPECT_EQ(ValueOf(store.Peek(2)), 2);
  EXPECT_EQ(store.Position(), 1);
  EXPECT_EQ(store.At(9), nullptr);
  EXPECT_EQ(store.Position(), 9);
  EXPECT_EQ(store.Peek(-1), nullptr);
}

TEST(ObjectStore, FirstOfAnEmptyStoreIsNullAtZero) {
  NumberStore store;
  EXPECT_EQ(store.First(), nullptr);
  EXPECT_EQ(store.Position(), 0);
  EXPECT_EQ(store.Last(), nullptr);
  EXPECT_EQ(store.Position(), -1);
}

TEST(ObjectStore, CursorStopsAtTheEndsOfItsRange) {
  NumberStore store;
  store.At(INT32_MAX);
  EXPECT_EQ(store.Next(), nullptr);
  EXPECT_EQ(store.Position(), INT32_MAX);
  store.At(INT32_MIN);
  EXPECT_EQ(store.Prev(), nullptr);
  EXPECT_EQ(store.Position(), INT32_MIN);
}

TEST(ObjectStore, AppendPutsTheCursorOnTheNewItem) {
  NumberStore store;
  Fill(store, 2);
  store.First();
  store.Append(new Number(7));
  EXPECT_EQ(store.Position(), 2);
  EXPECT_EQ(ValueOf(store.Current()), 7);
}

TEST(ObjectStore, InsertGoesInFrontOfTheCursor) {
  NumberStore store;
  Fill(store, 3);
  store.At(1);
  EXPECT_EQ(store.Insert(new Number(9)), 4);
  EXPECT_EQ(Values(store), (Numbers{0, 9, 1, 2}));
  EXPECT_EQ(store.Position(), 1);
}

TEST(ObjectStore, InsertWithTheCursorOutsideGoesToTheNearerEnd) {
  NumberStore store;
  Fill(store, 2);
  store.At(50);
  EXPECT_EQ(store.Insert(new Number(8)), 3);
  EXPECT_EQ(store.Position(), 2);
  store.At(-5);
  store.Insert(new Number(9));
  EXPECT_EQ(Values(store), (Numbers{9, 0, 1, 8}));
}

TEST(ObjectStore, InsertGrowsAFullStore) {
  NumberStore store;
  Fill(store, 10);
  store.First();
  EXPECT_EQ(store.Insert(new Number(99)), 11);
  EXPECT_EQ(store.Capacity(), 13);
  EXPECT_EQ(Values(store), (Numbers{99, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(ObjectStore, RemoveFreesAndLeavesTheCursor) {
  NumberStore store;
  Fill(store, 3);
  Freed.clear();
  store.At(1);
  store.Remove();
  EXPECT_EQ(Freed, (Numbers{1}));
  EXPECT_EQ(Values(store), (Numbers{0, 2}));
  EXPECT_EQ(store.Position(), 1);
  store.Remove();
  EXPECT_EQ(store.Current(), nullptr);
  store.Remove();
  store.At(-1);
  store.Remove();
  EXPECT_EQ(Values(store), (Numbers{0}));
  EXPECT_EQ(Freed, (Numbers{1, 2}));
}

TEST(ObjectStore, DetachGivesTheItemBack) {
  NumberStore store;
  Fill(store, 3);
  Freed.clear();
  store.First();
  Number* const item = store.Detach();
  EXPECT_EQ(ValueOf(item), 0);
  EXPECT_TRUE(Freed.empty());
  EXPECT_EQ(Values(store), (Numbers{1, 2}));
  delete item;
  store.At(2);
  EXPECT_EQ(store.Detach(), nullptr);
}

TEST(ObjectStore, ClearFreesInOrderAndLeavesTheCursorAtTheOldCount) {
  NumberStore store;
  Fill(store, 3);
  store.First();
  Freed.clear();
  store.Clear();
  EXPECT_EQ(Freed, (Numbers{0, 1, 2}));
  EXPECT_EQ(store.Count(), 0);
  EXPECT_EQ(store.Position(), 3);
}

TEST(ObjectStore, NullItemsAreKeptAndIgnoredWhenFreed) {
  NumberStore store;
  store.Append(nullptr);
  EXPECT_EQ(store.Count(), 1);
  Freed.clear();
  store.Remove();
  EXPECT_EQ(store.Count(), 0);
  EXPECT_TRUE(Freed.empty());
}

TEST(ObjectStore, DestructorFreesAll) {
  Freed.clear();
  {
    NumberStore store;
    Fill(store, 2);
  }
  EXPECT_EQ(Freed, (Numbers{0, 1}));
}

TEST(WestringStore, AddKeepsACopyInOrder) {
  WestringStore store;
  Westring text(L"b");
  store.Add(text);
  text = L"a";
  store.Add(text);
  EXPECT_STREQ(store.Peek(0)->Text(), L"b");
  EXPECT_STREQ(store.Peek(1)->Text(), L"a");
}

// ---- SortedCollection ------------------------------------------------------

TEST(SortedCollection, GrowsFromOneHundredToOneHundredAndThirty) {
  NumberSet set;
  EXPECT_EQ(set.Capacity(), 100);
  for (int i = 0; i < 100; i++) set.Insert(new Number(i));
  EXPECT_EQ(set.Capacity(), 100);
  set.Insert(new Number(100));
  EXPECT_EQ(set.Capacity(), 130);
  for (int i = 101; i < 131; i++) set.Insert(new Number(i));
  EXPECT_EQ(set.Capacity(), 169);
}

TEST(SortedCollection, SearchGivesTheMatchOrTheInsertionPoint) {
  NumberSet set;
  for (const int value : {10, 30, 20}) set.Insert(new Number(value));
  EXPECT_EQ(Values(set), (Numbers{10, 20, 30}));
  const struct {
    int key, result;
    int64_t index;
  } rows[] = {{5, -1, 0}, {10, 0, 0}, {15, -1, 1}, {20, 0, 1}, {30, 0, 2}, {35, -1, 3}};
  for (const auto& row : rows) {
    int64_t index = -7;
    EXPECT_EQ(set.Search(&row.key, index), row.result) << row.key;
    EXPECT_EQ(index, row.index) << row.key;
  }
}

TEST(SortedCollection, RefusedDuplicateStaysTheCallers) {
  NumberSet set;
  EXPECT_EQ(set.Insert(new Number(1)), 0);
  Freed.clear();
  Number duplicate(1);
  EXPECT_EQ(set.Insert(&duplicate), -1);
  EXPECT_EQ(set.Count(), 1);
  EXPECT_TRUE(Freed.empty());
}

TEST(SortedCollection, AllowedDuplicateGoesInFrontOfTheOneThatTheSearchHit) {
  NumberSet set(true);
  for (int tag = 1; tag <= 4; tag++) set.Insert(new Number(5, tag));
  std::vector<int> tags;
  for (int i = 0; i < 4; i++) tags.push_back(set.Peek(i)->tag);
  // Hits at index 0, 0 and 1 of one, two and three items.
  EXPECT_EQ(tags, (Numbers{3, 4, 2, 1}));
}

TEST(SortedCollection, FindOfAMissingKeyLeavesTheCursor) {
  NumberSet set;
  for (const int value : {1, 2, 3}) set.Insert(new Number(value));
  int key = 3;
  EXPECT_EQ(ValueOf(set.Find(&key)), 3);
  EXPECT_EQ(set.Position(), 2);
  key = 9;
  EXPECT_EQ(set.Find(&key), nullptr);
  EXPECT_EQ(set.Position(), 2);
}

TEST(SortedCollection, FindAtOrAfterAndBeforeTakeTheNeighbour) {
  NumberSet set;
  for (const int value : {10, 20, 30}) set.Insert(new Number(value));
  const struct {
    int key, after, before;
  } rows[] = {{5, 10, -1}, {10, 10, 10}, {15, 20, 10}, {30, 30, 30}, {31, -1, 30}};
  for (const auto& row : rows) {
    EXPECT_EQ(ValueOf(set.FindAtOrAfter(&row.key)), row.after) << row.key;
    EXPECT_EQ(ValueOf(set.FindAtOrBefore(&row.key)), row.before) << row.key;
  }
  const int key = 15;
  set.FindAtOrAfter(&key);
  EXPECT_EQ(set.Position(), 1);
  set.FindAtOrBefore(&key);
  EXPECT_EQ(set.Position(), 0);
}

TEST(SortedCollection, NeighboursOfEqualItemsAreTheOuterOnes) {
  NumberSet set(true);
  for (const int value : {1, 2, 2, 2, 3}) set.Insert(new Number(value));
  const int key = 2;
  set.FindAtOrAfter(&key);
  EXPECT_EQ(set.Position(), 1);
  set.FindAtOrBefore(&key);
  EXPECT_EQ(set.Position(), 3);
}

TEST(SortedCollection, NeighboursInAnEmptyCollectionAreNull) {
  NumberSet set;
  const int key = 1;
  EXPECT_EQ(set.FindAtOrAfter(&key), nullptr);
  EXPECT_EQ(set.FindAtOrBefore(&key), nullptr);
  EXPECT_EQ(set.First(), nullptr);
  set.Remove();
  EXPECT_EQ(set.Count(), 0);
}

TEST(SortedCollection, FirstNextAndRemoveUseTheCursor) {
  NumberSet set;
  for (const int value : {1, 2, 3}) set.Insert(new Number(value));
  EXPECT_EQ(ValueOf(set.First()), 1);
  EXPECT_EQ(ValueOf(set.Next()), 2);
  Freed.clear();
  set.Remove();
  EXPECT_EQ(Freed, (Numbers{2}));
  EXPECT_EQ(Values(set), (Numbers{1, 3}));
  EXPECT_EQ(set.Position(), 1);
  EXPECT_EQ(set.Next(), nullptr);
  set.Remove();
  EXPECT_EQ(set.Count(), 2);
  set.Clear();
  EXPECT_EQ(Freed, (Numbers{2, 1, 3}));
  EXPECT_EQ(set.Count(), 0);
}

TEST(SortedCollection, BulkLoadEqualsSingleInserts) {
  std::mt19937 random(5);
  NumberSet loaded;
  NumberSet inserted;
  for (int tag = 0; tag < 500; tag++) {
    const int value = static_cast<int>(random() % 300);
    loaded.Load(value, tag);
    auto* const item = new Number(value, tag);
    if (inserted.Insert(item) != 0) delete item;
  }
  loaded.FinishLoad();
  ASSERT_EQ(Values(loaded), Values(inserted));
  for (int64_t i = 0; i < loaded.Count(); i++) EXPECT_EQ(loaded.Peek(i)->tag, inserted.Peek(i)->tag);
}

TEST(SortedCollection, BulkLoadFreesTheDuplicatesThatComeLater) {
  NumberSet set;
  set.Insert(new Number(2, 1));
  for (const int value : {3, 2, 1, 3}) set.Load(value, 2);
  Freed.clear();
  set.FinishLoad();
  EXPECT_EQ(Values(set), (Numbers{1, 2, 3}));
  EXPECT_EQ(set.Peek(1)->tag, 1);
  EXPECT_EQ(Freed, (Numbers{2, 3}));
}

TEST(SortedCollection, BulkLoadKeepsAllowedDuplicates) {
  NumberSet set(true);
  for (const int value : {3, 2, 3}) set.Load(value);
  set.FinishLoad();
  EXPECT_EQ(Values(set), (Numbers{2, 3, 3}));
}

// ---- collections of strings ------------------------------------------------

TEST(StringCollection, AddIgnoresCaseAndKeepsTheFirst) {
  StringCollection set;
  EXPECT_EQ(set.Add("a"), 1);
  EXPECT_EQ(set.Add("A"), 0);
  EXPECT_EQ(set.Add("B"), 1);
  ASSERT_EQ(set.Count(), 2);
  EXPECT_STREQ(set.Peek(0)->Text(), "a");
  const Estring key("b");
  EXPECT_STREQ(set.Find(&key)->Text(), "B");
}

TEST(StringCollection, ListsGoInFieldByFieldAndComeOutJoined) {
  StringCollection set;
  EXPECT_EQ(set.AddList("zip,\"a,b\",ARJ,Zip"), 3);
  EXPECT_STREQ(set.Join().Text(), "a,b,ARJ,zip");
  EXPECT_EQ(set.AddList(""), 0);
  EXPECT_EQ(set.AddList(",x,"), 2);
  EXPECT_STREQ(set.Join().Text(), ",a,b,ARJ,x,zip");
  EXPECT_STREQ(StringCollection().Join().Text(), "");
}

TEST(WestringCollection, AddIgnoresCase) {
  WestringCollection set;
  EXPECT_EQ(set.Add(L"beta"), 1);
  EXPECT_EQ(set.Add(L"Alpha"), 1);
  EXPECT_EQ(set.Add(L"BETA"), 0);
  EXPECT_STREQ(set.Peek(0)->Text(), L"Alpha");
}

TEST(FnStringCollection, CopyIsDeepAndSorted) {
  FnStringCollection set;
  for (const wchar_t* name : {L"c", L"a", L"B", L"A"}) set.Load(name);
  set.FinishLoad();
  ASSERT_EQ(set.Count(), 3);
  EXPECT_EQ(set.Add(L"b"), 0);
  FnStringCollection copy(set);
  set.Clear();
  ASSERT_EQ(copy.Count(), 3);
  EXPECT_STREQ(copy.Peek(0)->Text(), L"a");
  EXPECT_STREQ(copy.Peek(1)->Text(), L"B");
  set.Add(L"old");
  set = copy;
  set = *&set;
  EXPECT_EQ(set.Count(), 3);
  EXPECT_NE(set.Peek(0), copy.Peek(0));
  EXPECT_STREQ(set.Peek(2)->Text(), L"c");
}

TEST(FnStringCollection, CopyKeepsAllowedDuplicates) {
  FnStringCollection set(true);
  set.Add(L"a");
  set.Add(L"A");
  const FnStringCollection copy(set);
  EXPECT_EQ(copy.Count(), 2);
  EXPECT_TRUE(copy.AllowsDuplicates());
}

TEST(KeyedValueSet, KeysIgnoreCase) {
  KeyedValueSet set;
  set.Insert(new KeyedValue{"Path", "x"});
  const Estring key("PATH");
  ASSERT_NE(set.Find(&key), nullptr);
  EXPECT_STREQ(set.Find(&key)->value.Text(), "x");
}
