// What a panel remembers about paths: where the cursor stood in directories
// left downward, and where links point.
#pragma once

#include "foundation/collections.h"

struct TPanelPosition {
  Westring path;
  int32_t top = 0;
  Westring name;  // under the cursor
};

// Keyed by the exact path. Entries are updated, never removed.
class CPosStack : public TSortedCollection<TPanelPosition, Westring> {
 public:
  CPosStack() = default;
  CPosStack(const CPosStack& other) : TSortedCollection() { *this = other; }
  CPosStack& operator=(const CPosStack& other);
  ~CPosStack() override { Clear(); }
  void Remember(const Westring& path, int top, const Westring& name);

 protected:
  const Westring* KeyOf(const TPanelPosition* item) const override { return &item->path; }
  int CompareKeys(const Westring* a, const Westring* b) const override;
};

struct TLinkTargetCacheEntry {
  Westring path;
  Westring target;  // empty if the link could not be read
};

class CLinkTargetCache : public TSortedCollection<TLinkTargetCacheEntry, Westring> {
 public:
  CLinkTargetCache() = default;
  CLinkTargetCache(const CLinkTargetCache& other) : TSortedCollection() { *this = other; }
  CLinkTargetCache& operator=(const CLinkTargetCache& other);
  ~CLinkTargetCache() override { Clear(); }
  // From the cache, or by readlink once.
  const Westring& Target(const Westring& path);

 protected:
  const Westring* KeyOf(const TLinkTargetCacheEntry* item) const override { return &item->path; }
  int CompareKeys(const Westring* a, const Westring* b) const override;
};
