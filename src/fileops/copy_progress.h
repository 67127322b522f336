// The window of a copy or move, painted by a thread of its own ten times a second
// at most, so that the copying never waits for it.
#pragma once

#include <cstdint>
#include <memory>

#include "dialogs/win.h"
#include "foundation/strings.h"

class ProgressPainter;

// What the window shows. The copying thread writes the numbers and the painting
// one reads them without a lock: a torn value costs one wrong repaint. The texts
// change under the painter's lock, in ShowItem only.
struct TProgress {
  int64_t done = 0, total = 0;  // bytes of the whole command, or items of a move
  Westring sourceText, targetText;
  Estring countText;     // "(%d of %d)"
  double startTime = 0;  // seconds; 0 shows no rate and no time
  bool dirty = false;
  Win* window = nullptr;
  // What is on the screen.
  int32_t barDone = -1, barWidth = -1;
  Estring rateLine;
  Westring shownSource, shownTarget;
  Estring shownCount;
};

// The rows of the window, as text: what there is to test without a screen. The
// bar is blank without a total, the line empty as long as there is no rate.
Westring ProgressBar(int64_t done, int64_t total, int width);
Estring RateLine(int64_t done, int64_t total, double elapsed);

class CopyProgress {
 public:
  explicit CopyProgress(bool isMove);
  ~CopyProgress();  // the window goes
  CopyProgress(const CopyProgress&) = delete;
  CopyProgress& operator=(const CopyProgress&) = delete;

  // The item's names and its number; opens the window, or a wider one.
  void ShowItem(const Westring& source, const Westring& target, int index, int count);
  // The painter runs between these; Stop is done before anything else draws, and
  // returns when the window shows the last state. Each may be called twice.
  void Start();
  void Stop();

  TProgress state;
  bool countsItems = false;  // of a move that only renames: done and total are items

 private:
  void OpenWindow(int width);

  std::unique_ptr<Win> window;
  std::unique_ptr<ProgressPainter> painter;
  bool isMove;
};
