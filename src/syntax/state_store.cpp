// Checkpoints of the colouring.
#include "syntax/state_store.h"

#include <vector>

namespace {

using Checkpoint = std::unique_ptr<TPositionSyntaxState>;

// What an entry takes beside the pointers of its stack, counted in pointers.
constexpr int64_t kEntryWeight = 20;

int64_t WeightOf(const CContextStack& stack) { return kEntryWeight + stack.Count(); }

Checkpoint MakeCheckpoint(int64_t position, const CContextStack& stack) {
  auto checkpoint = std::make_unique<TPositionSyntaxState>();
  checkpoint->Position = position;
  checkpoint->State.CopyStack(stack);
  return checkpoint;
}

}  // namespace

void CSyntaxStateStore::Reset() {
  Clear();
  weight = 0;
  Remember(0, CContextStack());
}

void CSyntaxStateStore::Remember(int64_t position, const CContextStack& stack) {
  Checkpoint checkpoint = MakeCheckpoint(position, stack);
  if (Insert(checkpoint.get()) < 0) return;
  checkpoint.release();
  weight += WeightOf(stack);
  if (weight > kMostWeight) Thin();
}

// Leaves at most half of them, so far apart everywhere. The first one, which stands
// for the beginning of the file, stays.
void CSyntaxStateStore::Thin() {
  const int64_t spacing = Peek(Count() - 1)->Position / (Count() / 2) + 1;
  std::vector<Checkpoint> kept;
  weight = 0;
  for (int64_t i = 0; i < Count(); ++i) {
    const TPositionSyntaxState& checkpoint = *Peek(i);
    if (i > 0 && checkpoint.Position - kept.back()->Position < spacing) continue;
    kept.push_back(MakeCheckpoint(checkpoint.Position, checkpoint.State));
    weight += WeightOf(checkpoint.State);
  }
  Clear();
  for (Checkpoint& checkpoint : kept) AppendUnsorted(checkpoint.release());
}

TPositionSyntaxState* CSyntaxStateStore::Find(int64_t position) { return FindAtOrBefore(&position); }
