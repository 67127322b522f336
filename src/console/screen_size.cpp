// Limits of the window.
#include "console/screen_size.h"

#include <algorithm>

namespace {

constexpr int kMostPixelsOfSide = 32767;      // of a window or a picture
constexpr int kMostPixels = 32 * 1024 * 1024;  // 128 MB of picture

}  // namespace

ScreenSize BoundScreen(ScreenSize wanted, int cellWidth, int cellHeight) {
  ScreenSize bounded;
  bounded.columns = std::clamp(wanted.columns, 1, std::max(kMostPixelsOfSide / cellWidth, 1));
  const int width = bounded.columns * cellWidth;
  const int mostRows = std::min(kMostPixelsOfSide, kMostPixels / width) / cellHeight;
  bounded.rows = std::clamp(wanted.rows, 1, std::max(mostRows, 1));
  return bounded;
}
