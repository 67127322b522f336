// Reading and sorting of large directories, and the memory of their listings.
#include <dirent.h>
#include <malloc.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "bench_console.h"
#include "panels/panel.h"
#include "panels/read_panel.h"
#include "panels/sort_order.h"
#include "panels/tags.h"
#include "scratch.h"
#include "table.h"

namespace {

constexpr int kManyEntries = 1'000'000;
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

// Nanoseconds for each entry of a listing, of which two hundred are in view.
class EachEntry {
 public:
  EachEntry(const Scratch& directory, int repeats) : rounds(repeats) {
    Read(panel, directory);
    PanelRows = kRowsInView;
    panel.visibleEntries = kRowsInView;
    unsorted.assign(panel.entries, panel.entries + panel.count);
    std::mt19937_64 random(2);
    for (entry* e : unsorted) {
      e->size = static_cast<int64_t>(random() >> 30);
      e->modified = {static_cast<uint32_t>(random()), static_cast<uint32_t>(random())};
    }
  }

  BenchRow Tagging() {
    return Row("tag all", [this] {
      TagAll(panel, -1, false);
      return Seconds([this] { TagAll(panel, 1, false); });
    });
  }

  BenchRow Inverting() {
    return Row("invert", [this] { return Seconds([this] { TagAll(panel, 0, false); }); });
  }

  BenchRow Sorting(int key) {
    return Row(std::string("sort by ") + kSortNames[key], [this, key] {
      std::copy(unsorted.begin(), unsorted.end(), panel.entries);
      panel.sortKey = key;
      return Seconds([this] { SortEntries(panel); });
    });
  }

 private:
  static constexpr int kRowsInView = 200;

  BenchRow Row(const std::string& what, const std::function<double()>& seconds) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) times.push_back(seconds());
    const std::string of = ", each of " + std::to_string(panel.count) + " entries";
    return {what + of, "ns", Median(times) * 1e9 / panel.count, std::nullopt, std::nullopt};
  }

  const int rounds;
  TPanel panel;
  std::vector<entry*> unsorted;
};

void MeasureEachEntry(const Scratch& directory, int rounds, std::vector<BenchRow>& rows) {
  EachEntry list(directory, rounds);
  rows.push_back(list.Tagging());
  rows.push_back(list.Inverting());
  for (int key = 0; key < kSortKeys; ++key)
    if (key % (kSortKeys / 2) != kSortUnsorted) rows.push_back(list.Sorting(key));
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
  if (files >= kManyEntries) MeasureEachEntry(directory, rounds, rows);
}

}  // namespace

int main() {
  const BenchConsole console;  // for the progress box of a long read
  std::vector<BenchRow> rows;
  Measure(100'000, 11, rows);
  Measure(kManyEntries, 5, rows);
  return PrintRows(rows);
}
