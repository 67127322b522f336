// States at places of a file, from which colouring can go on.
#pragma once

#include <memory>

#include "syntax/highlighter.h"

struct TPositionSyntaxState {
  int64_t Position;  // bytes
  CContextStack State;
};

class CSyntaxStateStore : public TSortedCollection<TPositionSyntaxState, int64_t> {
 public:
  CSyntaxStateStore() { Reset(); }
  ~CSyntaxStateStore() override { Clear(); }

  // A way through a file of any size leaves one at each line. When there are too
  // many, what is left is spread evenly: colouring from the one before takes longer.
  static constexpr int64_t kMostWeight = 1 << 20;  // pointers, about 8 MB

  void Reset();  // to the empty stack at position 0
  // Copies stack; what is known of a position stays.
  void Remember(int64_t position, const CContextStack& stack);
  // The last one at or before position; null if there is none. Valid until the
  // next Remember().
  TPositionSyntaxState* Find(int64_t position);

 protected:
  const int64_t* KeyOf(const TPositionSyntaxState* item) const override { return &item->Position; }
  int CompareKeys(const int64_t* a, const int64_t* b) const override { return *a < *b ? -1 : *a > *b; }

 private:
  void Thin();

  int64_t weight = 0;
};
