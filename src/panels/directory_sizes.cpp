// The command that counts directories: its box, and what the panel gets of it.
#include "panels/directory_sizes.h"

#include <algorithm>
#include <atomic>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/number_format.h"
#include "dialogs/progress.h"
#include "foundation/paths.h"
#include "panels/draw_panel.h"
#include "panels/sort_order.h"

namespace {

constexpr int kSortSize = 3, kSortReversedSize = 8;

// A number that the counting thread writes plainly meanwhile.
template <class Number>
Number Peek(Number& shared) {
  return std::atomic_ref<Number>(shared).load(std::memory_order_relaxed);
}

// There from the start of the count, and painted from a thread of its own.
class CountBox : public ProgressIndicatorThread {
 public:
  explicit CountBox(DirectoryCount& shown)
      : count(shown), box(-1, -3, kWidth, kHeight, Options::Colours[kColourMessages]) {
    box.PrintCentred(-1, L" Reading Directories ");
    Start();
  }
  ~CountBox() override { Stop(); }

  // The count is over; the box stays until the user has read it.
  void WaitForOk() {
    Stop();
    Tick();
    box.Print(0, kPathRow, Westring::Replicate(L' ', box.InnerWidth()));
    box.AddButton(kButtonColumn, kButtonRow, true, kEnter, "_OK");
    box.Run();
  }

 protected:
  void Tick() override {
    PrintRow(kCountsRow, "Directories: " + NumberText(Peek(count.directories)) +
                             "   Files: " + NumberText(Peek(count.files)));
    PrintRow(kSizeRow, "Total Size: " + ToUtf8(FormatSize(Peek(count.bytes), kSizeWidth)));
    Westring path;
    {
      MutexLock lock(count.pathLock);
      path = Westring(count.path.Text());
    }
    box.Print(1, kPathRow, LJust(ShortenPath(path, kPathWidth), kPathWidth));
    std::atomic_ref<bool>(count.pathWanted).store(true, std::memory_order_relaxed);
  }

  int WaitForStop(uint32_t) override { return ProgressIndicatorThread::WaitForStop(kBetweenTicksMs); }

 private:
  static constexpr int kWidth = 54, kHeight = 8;
  static constexpr int kCountsRow = 1, kSizeRow = 2, kPathRow = 4, kButtonColumn = 23, kButtonRow = 5;
  static constexpr int kPathWidth = 50;
  static constexpr int kCountWidth = 15, kSizeWidth = 24;  // take any number of these whole
  static constexpr uint32_t kBetweenTicksMs = 100;

  static Estring NumberText(int64_t number) {
    return ToUtf8(FormatCount(static_cast<uint64_t>(number), kCountWidth));
  }

  // Centred, with blanks from edge to edge: a longer text may have stood there.
  void PrintRow(int row, const Estring& text) {
    const int width = box.InnerWidth();
    const int before = std::max((width - Length(text)) / 2, 0);
    box.Print(0, row, LJust(Westring::Replicate(L' ', before) + Westring(text), width));
  }

  DirectoryCount& count;
  Dialog box;
};

bool IsCountable(const entry& e) { return e.IsDirectory() && !e.IsLink() && !IsDotDot(e); }

Westring InteriorPath(const TPanel& panel, const entry& e) {
  const wchar_t* const directory = panel.path + Length(panel.archive->Path());
  return *directory ? JoinPath(directory + 1, e.name) : Westring(e.name);
}

// False where the user stopped it; the entry keeps what it had.
bool CountEntry(TPanel& panel, entry& e, DirectoryCount& count) {
  const uint64_t bytes = panel.archive ? CountInArchive(*panel.archive, InteriorPath(panel, e), count)
                                       : CountDirectory(JoinPath(panel.path, e.name), count);
  if (bytes == kCountStopped) return false;
  if (e.tagged) panel.taggedBytes += bytes - static_cast<uint64_t>(e.size);
  e.size = static_cast<int64_t>(bytes);
  e.sizeKnown = 1;
  return true;
}

bool CountTagged(TPanel& panel, DirectoryCount& count) {
  for (int i = 0; i < panel.count; ++i) {
    entry& e = *panel.entries[i];
    if (e.tagged && IsCountable(e) && !CountEntry(panel, e, count)) return false;
  }
  return true;
}

bool HasCountable(const TPanel& panel) {
  if (panel.taggedCount == 0) return panel.Current() && IsCountable(*panel.Current());
  return std::any_of(panel.entries, panel.entries + panel.count,
                     [](const entry* e) { return e->tagged && IsCountable(*e); });
}

void ShowSizes(TPanel& panel) {
  if (panel.sortKey == kSortSize || panel.sortKey == kSortReversedSize)
    SetSort(panel, panel.sortKey);
  else
    DrawPanel(panel);
  DrawStatusLine(panel);
  TPanel& other = Panels[panel.Side() ^ 1];
  if (other.IsTree() && KeepDirectorySize) DrawPanel(other);
}

}  // namespace

int CalculateDirSizes(TPanel& panel, bool silent) {
  if (!panel.IsVisibleFiles() || panel.IsTree() || !HasCountable(panel)) return 1;
  bool isComplete = false;
  {
    DirectoryCount count;
    CountBox box(count);
    isComplete =
        panel.taggedCount > 0 ? CountTagged(panel, count) : CountEntry(panel, *panel.Current(), count);
    if (Options::SizeCountPause && !silent) box.WaitForOk();  // also to read how far a stopped count came
  }
  ShowSizes(panel);
  return isComplete ? 1 : 0;
}
