// The viewer: files of any size, searching beside grep, and paging with and
// without colours.
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "bench_console.h"
#include "foundation/paths.h"
#include "panels/panel_path.h"
#include "scratch.h"
#include "shell/screen.h"
#include "table.h"
#include "viewer/viewer.h"

namespace {

constexpr int kColumns = 132, kRows = 50;
constexpr int64_t kMegabyte = 1 << 20;
constexpr int64_t kHugeBytes = 10 * 1024 * kMegabyte, kSearchedBytes = 1024 * kMegabyte;
constexpr int64_t kPagedBytes = 100 * kMegabyte;
constexpr char kMissing[] = "zyxwvutsrq";  // in no text

[[noreturn]] void Fail(const std::string& what) {
  fprintf(stderr, "%s\n", what.c_str());
  exit(2);
}

// ---- the texts ---------------------------------------------------------------

// Lines of words of small letters, and of letters as foreign says.
std::string Prose(int64_t bytes, const std::vector<std::string>& foreign) {
  std::mt19937 random(1);
  std::string text;
  while (static_cast<int64_t>(text.size()) < bytes) {
    const unsigned words = 4 + random() % 10;
    for (unsigned word = 0; word < words; ++word) {
      for (unsigned letters = 2 + random() % 8; letters > 0; --letters)
        text += random() % 30 ? std::string(1, static_cast<char>('a' + random() % 26))
                              : foreign[random() % foreign.size()];
      text += word + 1 < words ? ' ' : '\n';
    }
  }
  return text;
}

std::string Program(int64_t bytes) {
  constexpr char kFunction[] =
      "/* What a function\n"
      " * may look like. */\n"
      "static int next_%d(const char *text, int limit) {\n"
      "  for (int i = 0; i < limit; ++i)  // up to the limit\n"
      "    if (text[i] == '\\n' && strcmp(text, \"a \\\"quoted\\\" text\") != 0x1F) return i + %d;\n"
      "  return -1;\n"
      "}\n"
      "\n";
  std::string text;
  for (int i = 0; static_cast<int64_t>(text.size()) < bytes; ++i) {
    char function[512];
    snprintf(function, sizeof function, kFunction, i, i);
    text += function;
  }
  return text;
}

void Repeat(const Scratch& place, const std::string& name, const std::string& text, int64_t bytes) {
  std::ofstream file(place.Path(name), std::ios::binary);
  for (int64_t at = 0; at < bytes; at += static_cast<int64_t>(text.size())) file << text;
  if (!file.flush()) Fail(place.Path(name) + " can't be written");
}

// Text at both ends and nothing between them.
void WriteHuge(const Scratch& place, const std::string& name, const std::string& text) {
  place.Write(name, text);
  if (truncate(place.Path(name).c_str(), kHugeBytes - static_cast<int64_t>(text.size())) != 0)
    Fail("a sparse file can't be made");
  std::ofstream(place.Path(name), std::ios::binary | std::ios::app) << text;
}

// ---- a viewer without keys ---------------------------------------------------

class Reading {
 public:
  Reading(const std::string& path, bool inColour) {
    const Westring name(path.c_str());
    if (viewer.Open(name) != 0) Fail(path + " can't be opened");
    viewer.RereadTail = true;
    viewer.FullName = name;
    viewer.SetHighlighting(inColour);
    viewer.SetTop(viewer.DataStart);
    viewer.Repaint();
  }
  ~Reading() { viewer.Close(); }

  CViewer& Viewer() { return viewer; }

 private:
  CViewer viewer;
};

double ResidentMegabytes() {
  std::ifstream file("/proc/self/statm");
  double size = 0, resident = 0;
  file >> size >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / kMegabyte;
}

// ---- what is measured --------------------------------------------------------

struct Times {
  std::vector<double> open, end, home;
};

void ShowAll(const std::string& path, Times& times) {
  std::unique_ptr<Reading> reading;
  times.open.push_back(Seconds([&] { reading = std::make_unique<Reading>(path, true); }));
  times.end.push_back(Seconds([&] { reading->Viewer().GoEnd(); }));
  times.home.push_back(Seconds([&] { reading->Viewer().GoHome(); }));
}

void MeasureSize(const Scratch& place, std::vector<BenchRow>& rows) {
  constexpr int kRounds = 41;
  constexpr double kLimit = 3;
  // The same lines in both, since each is drawn as long as it is.
  const auto lines = [](int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "a line of text\n";
    return text;
  };
  place.Write("small.txt", lines(64));  // more than a screen, a kilobyte
  WriteHuge(place, "huge.txt", lines(64 * 1024));
  Times huge, small;
  for (int round = 0; round < kRounds; ++round) {
    ShowAll(place.Path("huge.txt"), huge);
    ShowAll(place.Path("small.txt"), small);
  }
  const auto add = [&](const char* what, const std::vector<double>& ours,
                       const std::vector<double>& reference) {
    rows.push_back({what, "us", Median(ours) * 1e6, Median(reference) * 1e6, kLimit});
  };
  add("open a file of 10 GB to the first screen, beside 1 KB", huge.open, small.open);
  add("  End", huge.end, small.end);
  add("  Home", huge.home, small.home);
}

void MeasureMemory(const Scratch& place, std::vector<BenchRow>& rows) {
  constexpr int kPages = 100;
  constexpr double kLimit = 32;
  place.Write("empty.txt", "");
  double before = 0;
  {
    Reading empty(place.Path("empty.txt"), true);
    before = ResidentMegabytes();
  }
  WriteHuge(place, "prose.txt", Prose(kMegabyte, {"\xC3\xA4"}));
  Reading reading(place.Path("prose.txt"), true);
  for (int i = 0; i < kPages; ++i) reading.Viewer().PageDown();
  reading.Viewer().GoEnd();
  for (int i = 0; i < kPages; ++i) reading.Viewer().PageUp();
  rows.push_back({"  memory over that of an empty viewer", "MB", ResidentMegabytes() - before, {}, kLimit});
}

double GrepTime(const std::string& command) {
  return Seconds([&] {
    if (WEXITSTATUS(system(command.c_str())) != 1) Fail(command + " has found something or failed");
  });
}

struct SearchWork {
  const char* what;
  const char* name;
  int encoding;
  bool caseSensitive;
  const char* reference;
  double limit;
};
constexpr SearchWork kSearches[] = {
    {"search in 1 GB of a code page, no match", "latin.txt", kCodePageText, true, "LC_ALL=C grep -cF", 2.5},
    {"the same in UTF-8, ignoring case", "utf8.txt", kUtf8, false, "LC_ALL=C.UTF-8 grep -ciF", 4},
};

double SearchTime(const std::string& path, const SearchWork& work) {
  CTextFile file;
  if (file.Open(Westring(path.c_str())) != 0) Fail(path + " can't be opened");
  file.Encoding = work.encoding;
  const Westring text(kMissing);
  return Seconds([&] {
    const int64_t found = work.encoding == kCodePageText
                              ? file.SearchBytes(text, 0, false, work.caseSensitive, false, 819)
                              : file.Search(text, 0, work.caseSensitive, false, false);
    if (found != kSearchNone) Fail("what is not there was found");
  });
}

void MeasureSearch(const Scratch& place, std::vector<BenchRow>& rows) {
  constexpr int kRounds = 5;
  const std::vector<std::string> latin = {"\xE4", "\xE9"}, utf8 = {"\xC3\xA4", "\xD0\x96", "\xE2\x82\xAC"};
  Repeat(place, "latin.txt", Prose(8 * kMegabyte, latin), kSearchedBytes);
  Repeat(place, "utf8.txt", Prose(8 * kMegabyte, utf8), kSearchedBytes);
  for (const SearchWork& work : kSearches) {
    const std::string path = place.Path(work.name);
    const std::string grep = std::string(work.reference) + " " + kMissing + " '" + path + "' >/dev/null";
    GrepTime(grep);  // from here on it is in memory
    rows.push_back(CompareTimes(
        work.what, kRounds, work.limit, [&] { return SearchTime(path, work); },
        [&] { return GrepTime(grep); }));
  }
}

double PagingTime(const std::string& path, bool inColour, int64_t& pages) {
  Reading reading(path, inColour);
  if (reading.Viewer().Highlighter.Active != inColour) Fail("there are no colours for " + path);
  pages = 0;
  return Seconds([&] {
    while (reading.Viewer().PageDown()) ++pages;
  });
}

void MeasurePaging(const Scratch& place, std::vector<BenchRow>& rows) {
  constexpr double kLimit = 3;
  Repeat(place, "program.c", Program(kMegabyte), kPagedBytes);
  const std::string path = place.Path("program.c");
  int64_t pages = 0;
  BenchRow row = CompareTimes(
      "PgDn through 100 MB in colour, beside none", 1, kLimit, [&] { return PagingTime(path, true, pages); },
      [&] { return PagingTime(path, false, pages); });
  const double total = row.ours;
  rows.push_back(row);
  rows.push_back({"  pages a second", "/s", static_cast<double>(pages) / (total / 1e3), {}, {}});
}

}  // namespace

int main() {
  const Scratch place;
  const BenchConsole console;
  SetupLocale();
  ApplyScreenSize(kRows, kColumns);
  std::vector<BenchRow> rows;
  MeasureSize(place, rows);
  MeasureMemory(place, rows);
  MeasureSearch(place, rows);
  MeasurePaging(place, rows);
  return PrintRows(rows);
}
