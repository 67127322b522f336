// Where the focus goes from one element to the next. Elements stand in groups,
// runs of the order in which they were added.
#pragma once

#include <cstdint>
#include <span>

// What decides about an element; group and groupCurrent are as in
// DialogElement.
struct FocusPlace {
  int32_t group;
  int32_t groupCurrent;
  bool focusable;
  bool tabToFirst;
};

// The next place of the same group that takes the focus, going round by step,
// 1 or -1; from if there is none.
int NextInGroup(std::span<const FocusPlace> places, int from, int step);

// Where Tab leads to: the next group that has a place for the focus, or its own
// without another, and there to the first member or the one that had the focus
// last. That one may be a place that takes no focus.
int NextGroup(std::span<const FocusPlace> places, int from, int step);
