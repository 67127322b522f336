// Copying, moving and deleting by their commands, from the first key until both
// panels are read again, against the shell's commands for the same. And how soon
// Escape ends each of them.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "scratch.h"
#include "table.h"
#include "user.h"

namespace {

constexpr int kStopRounds = 5;
constexpr int64_t kBigBytes = int64_t{2} << 30;
constexpr int kDirectories = 500, kFilesInEach = 100;
constexpr size_t kLeastBytes = 1 << 10, kMostBytes = 16 << 10;
constexpr char kOtherFileSystem[] = "/dev/shm";
constexpr uintmax_t kTreeRoom = 1 << 30;  // there, with room to spare

// ---- what is worked on -------------------------------------------------------

std::string RandomBytes(size_t n) {
  std::mt19937_64 random(1);
  std::string bytes(n, 0);
  std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
  return bytes;
}

void WriteBigFile(const Scratch& place, const std::string& name) {
  const std::string piece = RandomBytes(1 << 20);
  FILE* const file = fopen(place.Path(name).c_str(), "wb");
  bool written = file != nullptr;
  for (int64_t at = 0; written && at < kBigBytes; at += static_cast<int64_t>(piece.size()))
    written = fwrite(piece.data(), piece.size(), 1, file) == 1;
  if (written && fclose(file) == 0) return;
  perror(place.Path(name).c_str());
  exit(2);
}

void WriteTree(const Scratch& place, const std::string& name) {
  const std::string bytes = RandomBytes(kMostBytes);
  std::mt19937 random(2);
  std::uniform_int_distribution<size_t> size(kLeastBytes, kMostBytes);
  for (int directory = 0; directory < kDirectories; ++directory) {
    const std::string path = name + "/" + std::to_string(directory) + "/";
    for (int file = 0; file < kFilesInEach; ++file)
      place.Write(path + std::to_string(file) + ".txt", bytes.substr(0, size(random)));
  }
}

void Run(const std::string& command) {
  if (system(command.c_str()) == 0) return;
  fprintf(stderr, "%s has failed\n", command.c_str());
  exit(2);
}

void Sync(const std::string& path) {
  const int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0 || syncfs(fd) != 0) perror(path.c_str());
  if (fd >= 0) close(fd);
}

struct Totals {
  int64_t files = 0;
  uintmax_t bytes = 0;
  bool operator==(const Totals&) const = default;
};

Totals Count(const std::string& path) {
  namespace fs = std::filesystem;
  if (!fs::exists(path)) return {};
  if (!fs::is_directory(path)) return {1, fs::file_size(path)};
  Totals totals;
  for (const auto& item : fs::recursive_directory_iterator(path))
    if (item.is_regular_file()) totals = {totals.files + 1, totals.bytes + item.file_size()};
  return totals;
}

// The originals are only read; a work that takes its source away gets a copy.
class Place {
 public:
  Place() {
    for (const char* name : {"originals", "sources", "targets"}) disk.MakeDirectory(name);
    WriteBigFile(disk, "originals/big");
    WriteTree(disk, "originals/tree");
    struct stat here, there;
    std::error_code code;
    const bool isOther = stat(disk.Path().c_str(), &here) == 0 && stat(kOtherFileSystem, &there) == 0 &&
                         here.st_dev != there.st_dev && access(kOtherFileSystem, W_OK) == 0 &&
                         std::filesystem::space(kOtherFileSystem, code).available > kTreeRoom && !code;
    if (isOther) other.emplace(kOtherFileSystem);
  }

  bool HasOther() const { return other.has_value(); }
  std::string Originals() const { return disk.Path("originals"); }
  std::string Sources() const { return disk.Path("sources"); }
  std::string Targets(bool onOther) const { return onOther ? other->Path() : disk.Path("targets"); }

  // Nothing of what was before is left, or waits to be written. What is made now
  // is not written either: a disk may take its time to forget what it holds, and
  // that would hide all differences in taking it away.
  void Renew(const std::string& name, bool withSource) const {
    for (const bool onOther : {false, true})
      if (!onOther || HasOther()) std::filesystem::remove_all(Targets(onOther) + "/" + name);
    std::filesystem::remove_all(Sources() + "/" + name);
    Sync(disk.Path());
    if (withSource) Run("cp -a '" + Originals() + "/" + name + "' '" + Sources() + "'");
  }

 private:
  Scratch disk;
  std::optional<Scratch> other;
};

// ---- the works ---------------------------------------------------------------

struct Work {
  const char* what;
  const char* name;           // of what is worked on
  bool takesSource, onOther;  // it is gone after; the target is on the other file system
  bool makesTarget;
  const UserCommand& command;
  const char* reference;  // of the shell; null for none
  double limit;
  int rounds;
  Typical typical;
};
// Where a machine gets its memory from its host as it needs it, gigabytes take
// now one time and now five times that, with nothing in between. The least time is
// that of the copying.
const Work kWorks[] = {
    {"copy of one 2 GB file", "big", false, false, true, kCopyCommand, "cp", 1.15, 11, Least},
    {"copy of 50000 files of 1 to 16 KB", "tree", false, false, true, kCopyCommand, "cp -r", 1.3, 5, Median},
    {"move of them to another file system", "tree", true, true, true, kMoveCommand, "mv", 1.3, 5, Median},
    {"delete of them", "tree", true, false, false, kDeleteCommand, "rm -rf", 1.5, 5, Median},
    {"count of their sizes", "tree", false, false, false, kCountCommand, nullptr, 0, 0, Median},
};

class Bench {
 public:
  Bench(User& who, const Place& where, const Work& what)
      : user(who),
        place(where),
        work(what),
        directory(work.takesSource ? place.Sources() : place.Originals()),
        source(directory + "/" + work.name),
        targets(place.Targets(work.onOther)),
        whole(Count(place.Originals() + "/" + work.name)) {}

  void Measure(std::vector<BenchRow>& rows) {
    double usual = 0;
    if (work.reference) {
      rows.push_back(CompareTimes(
          work.what, work.rounds, work.limit, [&] { return OurTime(); }, [&] { return ReferenceTime(); },
          work.typical));
      usual = rows.back().ours / 1e3;
    } else {
      usual = OurTime();
    }
    const std::string what = work.reference ? std::string("  ") : std::string(work.what) + ": ";
    rows.push_back({what + "Esc, until it has ended", "ms", StopTime(usual) * 1e3, {}, {}});
  }

 private:
  void Prepare() const {
    place.Renew(work.name, work.takesSource);
    Run("find '" + source + "' -type f -exec cat {} + >/dev/null");  // all of it is in memory
  }

  bool IsDone() const {
    return (!work.takesSource || !std::filesystem::exists(source)) &&
           (!work.makesTarget || Count(targets + "/" + work.name) == whole);
  }

  void Check() const {
    if (IsDone()) return;
    fprintf(stderr, "%s: not all of it was done\n", work.what);
    exit(2);
  }

  double OurTime() {
    Prepare();
    user.GoTo(directory, work.name, targets);
    const double seconds = user.Time(work.command);
    Check();
    return seconds;
  }

  double ReferenceTime() const {
    Prepare();
    std::string command = std::string(work.reference) + " '" + source + "'";
    if (work.makesTarget) command += " '" + targets + "'";
    const double seconds = Seconds([&] { Run(command); });
    Check();
    return seconds;
  }

  // Median of keys at several moments within the first half.
  double StopTime(double usual) {
    std::vector<double> times;
    for (int i = 1; i <= kStopRounds; ++i) {
      Prepare();
      user.GoTo(directory, work.name, targets);
      const auto seconds = user.StopTime(work.command, usual * i / (2 * (kStopRounds + 1)));
      if (seconds && !(work.reference && IsDone())) times.push_back(*seconds);
    }
    if (times.size() > kStopRounds / 2) return Median(times);
    fprintf(stderr, "%s: was over before Esc\n", work.what);
    exit(2);
  }

  User& user;
  const Place& place;
  const Work& work;
  const std::string directory, source, targets;
  const Totals whole;
};

}  // namespace

int main() {
  const Place place;
  User user;
  std::vector<BenchRow> rows;
  for (const Work& work : kWorks) {
    if (work.onOther && !place.HasOther())
      fprintf(stderr, "%s: skipped, there is none with room enough\n", work.what);
    else
      Bench(user, place, work).Measure(rows);
  }
  return PrintRows(rows);
}
