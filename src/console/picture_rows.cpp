// Rows that change places.
#include "console/picture_rows.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

void PictureRows::Reset(int count) {
  places.resize(count);
  std::iota(places.begin(), places.end(), 0);
}

void PictureRows::Scroll(int first, int last, int lines) {
  const int count = last - first + 1;
  if (std::abs(lines) >= count) return;
  const auto begin = places.begin() + first;
  std::rotate(begin, begin + (lines > 0 ? lines : count + lines), begin + count);
}

int PictureRows::Run(int row, int last, int step) const {
  int count = 1;
  for (; row != last && places[row + step] == places[row] + step; row += step) ++count;
  return count;
}
