// Painting the window of a copy or move from a thread of its own.
#include "fileops/progress_painter.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <cwchar>

#include "dialogs/number_format.h"
#include "foundation/file_time.h"

namespace {

constexpr uint32_t kBetweenRepaintsMs = 100;
constexpr wchar_t kFullCell = 0x2588, kEmptyCell = 0x2591;
constexpr int kBarColumn = 1;
constexpr int kBesideBar = 3;
constexpr int kRateWidth = 7;

// A number that the copying thread writes plainly meanwhile.
template <class Number>
Number Peek(Number& shared) {
  return std::atomic_ref<Number>(shared).load(std::memory_order_relaxed);
}

int64_t FilledCells(int64_t done, int64_t total, int width) {
  if (total <= 0 || done <= 0 || width <= 0) return 0;
  if (done >= total) return width;
  // What is lost by halving is far less than a cell.
  while (total > INT64_MAX / width) {
    total /= 2;
    done /= 2;
  }
  return width * done / total;
}

// Cut to a whole number that a text can hold.
int64_t Whole(double number) {
  constexpr double kMost = 1e15;
  return static_cast<int64_t>(std::clamp(number, 0.0, kMost));
}

Estring MinutesAndSeconds(int64_t seconds) {
  return Estring::Format("%lld:%02d", static_cast<long long>(seconds / 60), static_cast<int>(seconds % 60));
}

// A number longer than its field is shown whole.
Estring RightAligned(const Estring& text, int width) {
  return Length(text) >= width ? text : RJust(text, width);
}

// Blanks from edge to edge: a longer text may have stood there.
void PaintCentred(Win& window, int row, const Westring& text) {
  const int width = window.InnerWidth();
  const int before = std::max((width - Length(text)) / 2, 0);
  window.Print(0, row, LJust(Westring::Replicate(L' ', before) + text, width));
}

}  // namespace

Westring ProgressBar(int64_t done, int64_t total, int width) {
  if (total <= 0) return Westring::Replicate(L' ', width);
  const int filled = static_cast<int>(FilledCells(done, total, width));
  return Westring::Replicate(kFullCell, filled) + Westring::Replicate(kEmptyCell, width - filled);
}

Estring RateLine(int64_t done, int64_t total, double elapsed) {
  if (!(elapsed > 0) || done < 1) return Estring();
  const double bytes = static_cast<double>(done);
  // A file that grew takes done over total.
  const double left = std::max(static_cast<double>(total) - bytes, 0.0);
  const Estring rate = ToUtf8(FormatRate(static_cast<uint64_t>(Whole(bytes / elapsed)), kRateWidth));
  return "Time: " + MinutesAndSeconds(Whole(elapsed)) + "  BPS: " + RightAligned(rate, kRateWidth) +
         "  ETA: " + MinutesAndSeconds(Whole(elapsed / bytes * left));
}

ProgressPainter::~ProgressPainter() {
  if (!hasThread) return;
  Stop();
  isOver = true;
  work.Set();
  pthread_join(thread, nullptr);
}

// Without a thread nothing is painted, and the work goes on.
void ProgressPainter::Start() {
  if (isRunning) return;
  if (!hasThread) hasThread = pthread_create(&thread, nullptr, Main, this) == 0;
  if (!hasThread) return;
  isRunning = true;
  work.Set();
}

void ProgressPainter::Stop() {
  if (!isRunning) return;
  stop.Set();
  parked.Wait(kForever);
  parked.Reset();
  isRunning = false;
}

void* ProgressPainter::Main(void* self) {
  static_cast<ProgressPainter*>(self)->Serve();
  return nullptr;
}

void ProgressPainter::Serve() {
  while (true) {
    work.Wait(kForever);
    work.Reset();
    if (isOver) return;
    while (stop.Wait(kBetweenRepaintsMs) == ETIMEDOUT)
      if (std::atomic_ref<bool>(progress.dirty).exchange(false)) Paint();
    stop.Reset();
    Paint();
    parked.Set();
  }
}

void ProgressPainter::SetTexts(Westring&& source, Westring&& target, Estring&& count) {
  MutexLock lock(texts);
  progress.sourceText = std::move(source);
  progress.targetText = std::move(target);
  progress.countText = std::move(count);
  std::atomic_ref<bool>(progress.dirty).store(true);
}

void ProgressPainter::ForgetScreen(Win& window) {
  progress.window = &window;
  progress.barDone = progress.barWidth = -1;
  progress.rateLine = "";
  progress.shownSource = progress.shownTarget = L"";
  progress.shownCount = "";
}

void ProgressPainter::Paint() {
  if (!progress.window) return;
  PaintTexts();
  PaintBar();
  PaintRate();
}

void ProgressPainter::PaintTexts() {
  Westring source, target;
  Estring count;
  {
    MutexLock lock(texts);
    source = progress.sourceText;
    target = progress.targetText;
    count = progress.countText;
  }
  if (wcscmp(source.Text(), progress.shownSource.Text()) != 0)
    PaintCentred(*progress.window, kProgressSourceRow, progress.shownSource = source);
  if (wcscmp(target.Text(), progress.shownTarget.Text()) != 0)
    PaintCentred(*progress.window, kProgressTargetRow, progress.shownTarget = target);
  if (strcmp(count.Text(), progress.shownCount.Text()) != 0)
    PaintCentred(*progress.window, kProgressCountRow, Westring(progress.shownCount = count));
}

void ProgressPainter::PaintBar() {
  const int64_t done = Peek(progress.done), total = Peek(progress.total);
  const int width = progress.window->InnerWidth() - kBesideBar;
  if (total <= 0) {
    progress.barDone = progress.barWidth = -1;
  } else {
    const auto filled = static_cast<int32_t>(FilledCells(done, total, width));
    if (filled == progress.barDone && width == progress.barWidth) return;
    progress.barDone = filled;
    progress.barWidth = width;
  }
  progress.window->Print(kBarColumn, kProgressBarRow, ProgressBar(done, total, width));
}

void ProgressPainter::PaintRate() {
  if (progress.startTime == 0) return;
  const Estring line = RateLine(Peek(progress.done), Peek(progress.total), NowSeconds() - progress.startTime);
  if (strcmp(line.Text(), progress.rateLine.Text()) == 0) return;
  PaintCentred(*progress.window, kProgressRateRow, Westring(progress.rateLine = line));
}
