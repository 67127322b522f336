// The thread that keeps the window of a copy or move up to date. It is made for
// the first item and then only parked and woken: a command may start and stop it
// for each of a hundred thousand files.
#pragma once

#include <pthread.h>

#include "fileops/copy_progress.h"
#include "foundation/sync.h"

// Rows of the window.
constexpr int kProgressTitleRow = 0, kProgressSourceRow = 1, kProgressToRow = 2, kProgressTargetRow = 3,
              kProgressCountRow = 4, kProgressBarRow = 5, kProgressRateRow = 6;

class ProgressPainter {
 public:
  explicit ProgressPainter(TProgress& shown) : progress(shown) {}
  ~ProgressPainter();  // ends the thread
  ProgressPainter(const ProgressPainter&) = delete;
  ProgressPainter& operator=(const ProgressPainter&) = delete;

  void Start();
  void Stop();  // after one last repaint

  void SetTexts(Westring&& source, Westring&& target, Estring&& count);
  // The window is a new one, with nothing painted yet; only while stopped.
  void ForgetScreen(Win& window);

 private:
  static void* Main(void* self);
  void Serve();
  void Paint();
  void PaintTexts();
  void PaintBar();
  void PaintRate();

  TProgress& progress;
  Mutex texts;
  Event work, stop, parked;
  pthread_t thread{};
  bool hasThread = false;
  bool isRunning = false;  // between Start and Stop
  bool isOver = false;     // set before the last work
};
