// Counting the size of a tree, against du.
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench_console.h"
#include "panels/directory_sizes.h"
#include "scratch.h"
#include "table.h"

namespace {

constexpr double kLimit = 1.2;
constexpr int kDirectories = 500, kFilesInEach = 999;  // with the directories 500,000 entries
constexpr int kRounds = 7;

// Four levels of directories.
std::string DirectoryName(int i) {
  char name[32];
  snprintf(name, sizeof name, "d%d/e%d/f%d", i / 100, i / 10 % 10, i % 10);
  return name;
}

void FillWithTree(const Scratch& tree) {
  for (int i = 0; i < kDirectories; ++i) {
    const std::string directory = DirectoryName(i);
    tree.Write(directory + "/first", "some bytes");
    for (int file = 1; file < kFilesInEach; ++file) {
      char name[48];
      snprintf(name, sizeof name, "%s/%d.txt", directory.c_str(), file);
      tree.MakeEmptyFile(name);
    }
  }
}

double OurTime(const Scratch& tree) {
  DirectoryCount count;
  const double seconds = Seconds([&] { CountDirectory(Westring(tree.Path().c_str()), count); });
  if (count.files == int64_t{kDirectories} * kFilesInEach && count.bytes == 10u * kDirectories)
    return seconds;
  fprintf(stderr, "%lld files counted\n", static_cast<long long>(count.files));
  exit(2);
}

double DuTime(const Scratch& tree) {
  const std::string command = "du -s --apparent-size '" + tree.Path() + "' >/dev/null";
  int status = 0;
  const double seconds = Seconds([&] { status = system(command.c_str()); });
  if (status == 0) return seconds;
  fputs("du has failed\n", stderr);
  exit(2);
}

}  // namespace

int main() {
  const BenchConsole console;  // where Escape would come from
  const Scratch tree;
  FillWithTree(tree);
  return PrintRows({CompareTimes(
      "directory size of a tree of 500000 entries", kRounds, kLimit, [&] { return OurTime(tree); },
      [&] { return DuTime(tree); })});
}
