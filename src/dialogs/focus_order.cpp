// Where the focus goes.
#include "dialogs/focus_order.h"

namespace {

int StepAround(std::span<const FocusPlace> places, int from, int step, bool sameGroup) {
  const int count = static_cast<int>(places.size());
  for (int i = (from + step + count) % count; i != from; i = (i + step + count) % count) {
    if (places[i].focusable && (places[i].group == places[from].group) == sameGroup) return i;
  }
  return from;
}

}  // namespace

int NextInGroup(std::span<const FocusPlace> places, int from, int step) {
  return StepAround(places, from, step, true);
}

int NextGroup(std::span<const FocusPlace> places, int from, int step) {
  const int first = places[StepAround(places, from, step, false)].group;
  return places[first].tabToFirst ? first : places[first].groupCurrent;
}
