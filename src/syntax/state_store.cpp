// Checkpoints of the colouring.
#include "syntax/state_store.h"

void CSyntaxStateStore::Reset() {
  Clear();
  Remember(0, CContextStack());
}

void CSyntaxStateStore::Remember(int64_t position, const CContextStack& stack) {
  auto checkpoint = std::make_unique<TPositionSyntaxState>();
  checkpoint->Position = position;
  checkpoint->State.CopyStack(stack);
  if (Insert(checkpoint.get()) >= 0) checkpoint.release();
}

TPositionSyntaxState* CSyntaxStateStore::Find(int64_t position) { return FindAtOrBefore(&position); }
