// Reading and sorting of large directories, and the memory of their listings.
#include <dirent.h>
#include <malloc.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <random>
#include <string>
#include <vector>

#include "bench_console.h"
#include "panels/panel.h"
#include "panels/read_panel.h"
#include "panels/sort_order.h"
#include "scratch.h"
#include "table.h"

namespace {

constexpr double kReadLimit = 1.5, kSortLimit = 1.2, kMemoryLimit = 1.3;

// Files whose names come in no order, 15 to 21 characters long.
void FillWithFiles(const Scratch& directory, int files) {
  std::mt19937 random(1);
  for (int i = 0; i < files; ++i) {
    char name[64];
    snprintf(name, sizeof name, "%08x-%d.txt", static_cast<unsigned>(random()), i);
    directory.MakeEmptyFile(name);
  }
}

void Read(TPanel& panel, const Scratch& directory) {
  CopyText(panel.path, Westring(directory.Path().c_str()).Text());
  panel.sortKey = kSortUnsorted;
  ReadPanel(panel);
}

double ReadingTime(const Scratch& directory) {
  TPanel panel;
  return Seconds([&] { Read(panel, directory); });
}

// What a listing can't do without: each name, and the status of its file.
double BareReadingTime(const Scratch& directory, int files) {
  int found = 0;
  const double seconds = Seconds([&] {
    DIR* const stream = opendir(directory.Path().c_str());
    std::string path = directory.Path("");
    path += '/';
    const size_t base = path.size();
    while (const dirent* item = stream ? readdir(stream) : nullptr) {
      path.resize(base);
      path += item->d_name;
      struct stat status;
      if (lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)) ++found;
    }
    if (stream) closedir(stream);
  });
  if (found == files) return seconds;
  fprintf(stderr, "%d files of %d found\n", found, files);
  exit(2);
}

// Sorts one unsorted listing again and again.
class Sorter {
 public:
  explicit Sorter(const Scratch& directory) {
    Read(panel, directory);
    panel.sortKey = 0;  // by name
    unsorted.assign(panel.entries, panel.entries + panel.count);
  }

  double SortingTime() {
    std::copy(unsorted.begin(), unsorted.end(), panel.entries);
    return Seconds([&] { SortEntries(panel); });
  }

  double LibrarySortingTime() const {
    std::vector<entry*> list = unsorted;
    return Seconds([&] {
      std::stable_sort(list.begin(), list.end(), [](const entry* a, const entry* b) {
        if (a->sortGroup != b->sortGroup) return a->sortGroup < b->sortGroup;
        return CompareNames(a->name, b->name) < 0;
      });
    });
  }

 private:
  TPanel panel;
  std::vector<entry*> unsorted;
};

double HeapMegabytes() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd) / 1e6;
}

// The heap that a listing takes, against the sum of its blocks and pointers.
BenchRow MeasureMemory(const Scratch& directory, const std::string& what) {
  const double before = HeapMegabytes();
  TPanel panel;
  Read(panel, directory);
  const double taken = HeapMegabytes() - before;
  size_t bytes = 0;
  for (int i = 0; i < panel.count; ++i) bytes += EntryBytes(wcslen(panel.entries[i]->name)) + sizeof(entry*);
  return {what, "MB", taken, static_cast<double>(bytes) / 1e6, kMemoryLimit};
}

void Measure(int files, int rounds, std::vector<BenchRow>& rows) {
  const Scratch directory;
  FillWithFiles(directory, files);
  const std::string count = std::to_string(files) + " entries";
  rows.push_back(CompareTimes(
      "reading " + count + ", unsorted", rounds, kReadLimit, [&] { return ReadingTime(directory); },
      [&] { return BareReadingTime(directory, files); }));
  Sorter sorter(directory);
  rows.push_back(CompareTimes(
      "sorting " + count + " by name", rounds, kSortLimit, [&] { return sorter.SortingTime(); },
      [&] { return sorter.LibrarySortingTime(); }));
  rows.push_back(MeasureMemory(directory, "memory of " + count));
}

}  // namespace

int main() {
  const BenchConsole console;  // for the progress box of a long read
  std::vector<BenchRow> rows;
  Measure(100'000, 11, rows);
  Measure(1'000'000, 5, rows);
  return PrintRows(rows);
}
