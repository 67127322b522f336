// The containers of the program: ObjectStore, owned pointers in insertion
// order, and SortedCollection, owned pointers in key order. Both have a built-in
// cursor, so even reading one changes it: one thread, or an outer lock.
#pragma once

#include <cstdint>

#include "foundation/strings.h"

// Starts with room for 10; a full store grows to capacity * 13 / 10.
class ObjectStore {
 public:
  ObjectStore();
  virtual ~ObjectStore();
  ObjectStore(const ObjectStore&) = delete;
  ObjectStore& operator=(const ObjectStore&) = delete;

  int Count() const { return count; }
  int Capacity() const { return capacity; }
  int Position() const { return current; }

  void Remove();  // frees the item at the cursor; out of range does nothing
  void Clear();   // frees all, in order; the cursor goes to the old count

 protected:
  // Derived classes call Clear() in their destructors, while FreeItem is theirs.
  virtual void FreeItem(void* item) = 0;

  void* FirstItem();
  void* NextItem();
  void* PrevItem();
  void* LastItem();
  void* CurrentItem() const;
  void* ItemAt(int i);          // moves the cursor
  void* PeekItem(int i) const;  // leaves it alone
  void AppendItem(void* item);
  int InsertItem(void* item);  // in front of the cursor; the new count
  void* DetachItem();          // null if the cursor is out of range

 private:
  void GrowIfFull();

  int32_t current = 0;
  int32_t count = 0;
  void** items;
  int32_t capacity;
};

// Gives the untyped store its type. Items passed in become the store's.
template <class T>
class TObjectStoreAbstract : public ObjectStore {
 public:
  T* First() { return static_cast<T*>(FirstItem()); }
  T* Next() { return static_cast<T*>(NextItem()); }
  T* Prev() { return static_cast<T*>(PrevItem()); }
  T* Last() { return static_cast<T*>(LastItem()); }
  T* Current() const { return static_cast<T*>(CurrentItem()); }
  T* At(int i) { return static_cast<T*>(ItemAt(i)); }
  T* Peek(int i) const { return static_cast<T*>(PeekItem(i)); }
  void Append(T* item) { AppendItem(item); }
  int Insert(T* item) { return InsertItem(item); }
  T* Detach() { return static_cast<T*>(DetachItem()); }

 protected:
  void FreeItem(void* item) final { FreeItem(static_cast<T*>(item)); }
  virtual void FreeItem(T* item) = 0;
};

template <class T>
class TObjectStore : public TObjectStoreAbstract<T> {
 public:
  ~TObjectStore() override { this->Clear(); }

 protected:
  using TObjectStoreAbstract<T>::FreeItem;
  void FreeItem(T* item) override { delete item; }
};

// A plain list of wide strings.
class WestringStore : public TObjectStore<Westring> {
 public:
  void Add(const Westring& text) { Append(new Westring(text)); }
};

// Starts with room for 100; grows as ObjectStore does.
class SortedCollection {
 public:
  explicit SortedCollection(bool duplicates = false);
  virtual ~SortedCollection();
  SortedCollection(const SortedCollection&) = delete;
  SortedCollection& operator=(const SortedCollection&) = delete;

  int64_t Count() const { return count; }
  int64_t Capacity() const { return capacity; }
  int64_t Position() const { return current; }
  bool AllowsDuplicates() const { return allowDuplicates; }

  void Remove();  // frees the item at the cursor; out of range does nothing
  void Clear();   // the cursor goes to 0

 protected:
  virtual const void* KeyOfItem(const void* item) const = 0;
  virtual int CompareItem(const void* key, const void* item) const = 0;
  // Derived classes call Clear() in their destructors, while FreeItem is theirs.
  virtual void FreeItem(void* item) = 0;

  // 0 with index at a match, -1 with index at the insertion point.
  int SearchKey(const void* key, int64_t& index) const;
  int InsertItem(void* item);  // -1: refused as a duplicate, still the caller's
  void* FindKey(const void* key);
  void* FindKeyOrAfter(const void* key);
  void* FindKeyOrBefore(const void* key);
  void* FirstItem();
  void* NextItem();
  void* PeekItem(int64_t i) const;

  // Bulk load: items appended in any order, then put in order by SortAppended, which
  // frees those that Insert would have refused. One sort instead of a move of
  // the tail for each item.
  void AppendUnsorted(void* item);
  void SortAppended();

 private:
  void GrowIfFull();

  bool allowDuplicates;
  void** items;
  int64_t count = 0;
  int64_t capacity;
  int64_t current = 0;
};

template <class T, class K>
class TSortedCollection : public SortedCollection {
 public:
  using SortedCollection::SortedCollection;

  int Search(const K* key, int64_t& index) const { return SearchKey(key, index); }
  int Insert(T* item) { return InsertItem(item); }
  T* Find(const K* key) { return static_cast<T*>(FindKey(key)); }
  T* FindAtOrAfter(const K* key) { return static_cast<T*>(FindKeyOrAfter(key)); }
  T* FindAtOrBefore(const K* key) { return static_cast<T*>(FindKeyOrBefore(key)); }
  T* First() { return static_cast<T*>(FirstItem()); }
  T* Next() { return static_cast<T*>(NextItem()); }
  T* Peek(int64_t i) const { return static_cast<T*>(PeekItem(i)); }

 protected:
  const void* KeyOfItem(const void* item) const final { return KeyOf(static_cast<const T*>(item)); }
  int CompareItem(const void* key, const void* item) const final {
    return CompareKeys(static_cast<const K*>(key), KeyOf(static_cast<const T*>(item)));
  }
  void FreeItem(void* item) override { delete static_cast<T*>(item); }

  virtual const K* KeyOf(const T* item) const = 0;
  virtual int CompareKeys(const K* a, const K* b) const = 0;  // as strcmp
};

// Sets of strings, ignoring case. Add copies the text; 1 if it went in, 0 if
// an equal one was there.
class StringCollection : public TSortedCollection<Estring, Estring> {
 public:
  using TSortedCollection::TSortedCollection;
  ~StringCollection() override { Clear(); }
  int Add(const Estring& text);
  int AddList(Estring text);  // every field of a comma-separated list; how many went in
  Estring Join() const;       // all items with "," between, no quoting

 protected:
  const Estring* KeyOf(const Estring* item) const override { return item; }
  int CompareKeys(const Estring* a, const Estring* b) const override;
};

class WestringCollection : public TSortedCollection<Westring, Westring> {
 public:
  using TSortedCollection::TSortedCollection;
  ~WestringCollection() override { Clear(); }
  int Add(const Westring& text);

 protected:
  const Westring* KeyOf(const Westring* item) const override { return item; }
  int CompareKeys(const Westring* a, const Westring* b) const override;
};

// The set of file names. Copied deeply when panels are swapped.
class FnStringCollection : public TSortedCollection<Westring, Westring> {
 public:
  using TSortedCollection::TSortedCollection;
  FnStringCollection(const FnStringCollection& other);
  FnStringCollection& operator=(const FnStringCollection& other);
  ~FnStringCollection() override { Clear(); }
  int Add(const Westring& text);
  // Add in any order, then FinishLoad once.
  void Load(const Westring& text) { AppendUnsorted(new Westring(text)); }
  void FinishLoad() { SortAppended(); }

 protected:
  const Westring* KeyOf(const Westring* item) const override { return item; }
  int CompareKeys(const Westring* a, const Westring* b) const override;
};

struct KeyedValue {
  Estring key, value;
};

class KeyedValueSet : public TSortedCollection<KeyedValue, Estring> {
 public:
  using TSortedCollection::TSortedCollection;
  ~KeyedValueSet() override { Clear(); }

 protected:
  const Estring* KeyOf(const KeyedValue* item) const override { return &item->key; }
  int CompareKeys(const Estring* a, const Estring* b) const override;
};
