// Which row of the picture holds which row of the screen. A scroll over the whole
// width moves these numbers instead of pixels.
#pragma once

#include <vector>

class PictureRows {
 public:
  // In the screen's order.
  void Reset(int count);
  // In the picture, from 0.
  int At(int row) const { return places[row]; }
  // The rows first to last move up by lines, or down where it is negative. What they
  // leave behind is no row's picture any more.
  void Scroll(int first, int last, int lines);
  // How many rows from row on, until and with last, follow each other in the picture as
  // they do on the screen. With a step of -1 the same upward.
  int Run(int row, int last, int step = 1) const;

 private:
  std::vector<int> places;
};
