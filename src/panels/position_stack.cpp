// The two memories of a panel, kept in the order of their paths.
#include "panels/position_stack.h"

#include <unistd.h>

#include <climits>
#include <cwchar>

namespace {

// Both collections are in order already, so each copy goes to the end.
template <class Item, class Collection>
void CopyItems(Collection& target, const Collection& source) {
  if (&target == &source) return;
  target.Clear();
  for (int64_t i = 0; i < source.Count(); ++i) {
    target.Insert(new Item(*source.Peek(i)));
  }
}

Westring ReadLink(const Westring& path) {
  char target[PATH_MAX];
  const ssize_t length = readlink(ToUtf8(path).Text(), target, sizeof target - 1);
  if (length < 0) return Westring();
  target[length] = 0;
  return Westring(target);
}

}  // namespace

CPosStack& CPosStack::operator=(const CPosStack& other) {
  CopyItems<TPanelPosition>(*this, other);
  return *this;
}

void CPosStack::Remember(const Westring& path, int top, const Westring& name) {
  TPanelPosition* position = Find(&path);
  if (!position) {
    position = new TPanelPosition{path, 0, Westring()};
    Insert(position);
  }
  position->top = top;
  position->name = name;
}

int CPosStack::CompareKeys(const Westring* a, const Westring* b) const {
  return wcscmp(a->Text(), b->Text());
}

CLinkTargetCache& CLinkTargetCache::operator=(const CLinkTargetCache& other) {
  CopyItems<TLinkTargetCacheEntry>(*this, other);
  return *this;
}

const Westring& CLinkTargetCache::Target(const Westring& path) {
  TLinkTargetCacheEntry* known = Find(&path);
  if (!known) {
    known = new TLinkTargetCacheEntry{path, ReadLink(path)};
    Insert(known);
  }
  return known->target;
}

int CLinkTargetCache::CompareKeys(const Westring* a, const Westring* b) const {
  return wcscmp(a->Text(), b->Text());
}
