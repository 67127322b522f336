// Progress boxes painted by a thread of their own. Work that is done within a
// second shows none; the working code stays a plain loop and must not draw
// while one lives.
#pragma once

#include <pthread.h>

#include <cstdint>
#include <memory>

#include "dialogs/dialog.h"
#include "foundation/sync.h"

class ProgressIndicatorThread {
 public:
  virtual ~ProgressIndicatorThread();
  ProgressIndicatorThread(const ProgressIndicatorThread&) = delete;
  ProgressIndicatorThread& operator=(const ProgressIndicatorThread&) = delete;

 protected:
  ProgressIndicatorThread() = default;
  // The most derived class starts the thread when it is complete, and stops it
  // in its destructor before it ceases to be.
  void Start();
  void Stop();
  virtual void Tick() = 0;  // after one second, then every 250 ms; on the thread
  // Between ticks: as Event::Wait, so that ETIMEDOUT asks for the next one.
  virtual int WaitForStop(uint32_t ms) { return stop.Wait(ms); }

  std::unique_ptr<Dialog> dialog;

 private:
  static void* Main(void* self);
  void TickUntilStopped();

  Event stop;
  pthread_t thread{};
  bool running = false;
};

// A bar; position and total belong to the worker.
class FileReadProgress : public ProgressIndicatorThread {
 public:
  FileReadProgress(const int64_t* position, const int64_t* total, const char* title);
  ~FileReadProgress() override;

 protected:
  void Tick() override;

 private:
  const int64_t* position;
  const int64_t* total;
  float fraction = 0;
  Estring title;
};

// "Reading directory:" with a count that belongs to the worker.
class DirReadProgress : public ProgressIndicatorThread {
 public:
  explicit DirReadProgress(const int32_t* count);
  ~DirReadProgress() override;

 protected:
  void Tick() override;

 private:
  const int32_t* count;
  int32_t spinner = 0;
};
