// Progress boxes and the thread that paints them.
#include "dialogs/progress.h"

#include <atomic>
#include <cerrno>

#include "config/values/colours.h"
#include "dialogs/number_format.h"

namespace {

constexpr uint32_t kBeforeFirstTickMs = 1000;
constexpr uint32_t kBetweenTicksMs = 250;

// A number that the worker changes while we look. Its thread writes plainly,
// and being late by a tick does no harm.
template <class Number>
Number Peek(const Number* shared) {
  return std::atomic_ref<Number>(const_cast<Number&>(*shared)).load(std::memory_order_relaxed);
}

std::unique_ptr<Dialog> MakeBox(int width, int height) {
  return std::make_unique<Dialog>(-1, -3, width, height, Options::Colours[kColourMessages]);
}

}  // namespace

ProgressIndicatorThread::~ProgressIndicatorThread() { Stop(); }

void ProgressIndicatorThread::Start() { running = pthread_create(&thread, nullptr, Main, this) == 0; }

void ProgressIndicatorThread::Stop() {
  if (!running) return;
  stop.Set();
  pthread_join(thread, nullptr);
  running = false;
  dialog.reset();
}

void* ProgressIndicatorThread::Main(void* self) {
  static_cast<ProgressIndicatorThread*>(self)->TickUntilStopped();
  return nullptr;
}

void ProgressIndicatorThread::TickUntilStopped() {
  uint32_t pause = kBeforeFirstTickMs;
  while (WaitForStop(pause) == ETIMEDOUT) {
    Tick();
    pause = kBetweenTicksMs;
  }
}

FileReadProgress::FileReadProgress(const int64_t* position, const int64_t* total, const char* title)
    : position(position), total(total), title(title) {
  Start();
}

FileReadProgress::~FileReadProgress() { Stop(); }

void FileReadProgress::Tick() {
  if (dialog == nullptr) {
    dialog = MakeBox(40, 5);
    dialog->PrintCentredBytes(0, title.Text(), dialog->Attribute());
    dialog->AddProgressIndicator(1, 2, 36, &fraction);
  }
  const int64_t all = Peek(total);
  if (all <= 0) return;
  fraction = static_cast<float>(Peek(position)) / static_cast<float>(all);
  dialog->Redraw(-1);
}

DirReadProgress::DirReadProgress(const int32_t* count) : count(count) { Start(); }

DirReadProgress::~DirReadProgress() { Stop(); }

void DirReadProgress::Tick() {
  static constexpr char kSpinner[] = "-\\|/";
  constexpr int kCountWidth = 12;
  if (dialog == nullptr) {
    dialog = MakeBox(35, 6);
    dialog->PrintBytes(4, 1, "Reading directory:");
  }
  const char turn[] = {kSpinner[spinner], 0};
  spinner = (spinner + 1) % 4;
  dialog->PrintBytes(23, 1, turn);
  dialog->PrintBytes(4, 2, "Files: ");
  // Padded, so that a number that gets a unit leaves nothing of the longer one.
  const int32_t files = Peek(count);
  dialog->Print(LJust(FormatCount(files > 0 ? static_cast<uint64_t>(files) : 0, kCountWidth), kCountWidth));
}
