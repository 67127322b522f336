// entry: one line of a listing, a heap block of fixed head and name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "foundation/collections.h"
#include "foundation/file_time.h"

enum EntryAttribute : uint16_t {
  kAttrDirectory = 1,
  kAttrReadOnly = 2,  // for this user
  kAttrHidden = 8,
  kAttrLink = 32,
  kAttrDangling = 64,  // the link's target cannot be reached
};

enum SortGroup : uint8_t { kGroupUp = '1', kGroupDirectory = 'A', kGroupHidden = 'B', kGroupFile = 'C' };

struct TreeNode;

// Made by NewEntry and freed by FreeEntry only: the name runs past the struct.
struct entry {
  int64_t size;         // bytes; 0 for a directory without a counted size
  uint16_t attributes;  // EntryAttribute bits
  uint16_t mode;        // low 16 bits of st_mode
  uint16_t uid, gid;    // cut to 16 bits
  FileTime modified;    // FileTime::None() for no date
  uint8_t tagged;
  uint8_t processed;  // an operation has dealt with it and taken its tag
  uint8_t sizeKnown;  // a directory's size is a counted one
  int64_t treeLink;    // -1 outside the tree
  TreeNode* treeNode;  // null outside the tree
  uint8_t sortGroup;
  wchar_t name[1];  // as many as the name needs

  bool IsDirectory() const { return attributes & kAttrDirectory; }
  bool IsLink() const { return attributes & kAttrLink; }
  bool IsRealDirectory() const { return IsDirectory() && !IsLink(); }
};

// A block with room for nameLength characters; every field zero, treeLink -1.
entry* NewEntry(size_t nameLength);
entry* NewEntry(const wchar_t* name);
void FreeEntry(entry* e);

struct EntryFreer {
  void operator()(entry* e) const { FreeEntry(e); }
};
using OwnedEntry = std::unique_ptr<entry, EntryFreer>;

size_t EntryBytes(size_t nameLength);  // size of such a block

bool IsDotDot(const entry& e);  // exactly ".."
// "descript.ion" and its like, which tagging by mask leaves out.
bool IsSystemFile(const wchar_t* name);

// A list of entries by itself; a panel's listing is no such store.
class EntryStore : public TObjectStoreAbstract<entry> {
 public:
  ~EntryStore() override { Clear(); }

 protected:
  using TObjectStoreAbstract<entry>::FreeItem;
  void FreeItem(entry* item) override { FreeEntry(item); }
};
