// Counting what lies below a directory. Names stay in the system's bytes and are
// looked up in their open directory, so that neither names that are no UTF-8 nor
// the length of a path matter.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cstring>
#include <cwchar>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "console/input.h"
#include "foundation/paths.h"
#include "panels/directory_sizes.h"

void (*KeepDirectorySize)(const Westring& path, uint64_t bytes) = nullptr;

namespace {

// Directories above the one at hand that are kept open; those beyond are found
// again from below.
constexpr size_t kMostOpenLevels = 100;

constexpr int kEntriesBetweenStops = 256;
constexpr int kOpenFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

struct StreamCloser {
  void operator()(DIR* stream) const { closedir(stream); }
};
using Stream = std::unique_ptr<DIR, StreamCloser>;

Stream OpenStream(int directory, const char* name) {
  const int fd = openat(directory, name, kOpenFlags);
  if (fd < 0) return nullptr;
  Stream stream(fdopendir(fd));
  if (!stream) close(fd);
  return stream;
}

// A link to a directory is no file, and nothing is counted behind it.
bool LeadsToDirectory(int directory, const char* link) {
  struct stat target;
  return fstatat(directory, link, &target, 0) == 0 && S_ISDIR(target.st_mode);
}

bool IsDots(const char* name) { return name[0] == '.' && (!name[1] || (name[1] == '.' && !name[2])); }

// For whoever shows how far the count is.
void TellPath(DirectoryCount& count, const std::string& path) {
  const std::atomic_ref<bool> wanted(count.pathWanted);
  if (!wanted.load(std::memory_order_relaxed)) return;
  wanted.store(false, std::memory_order_relaxed);
  MutexLock lock(count.pathLock);
  count.path = path.c_str();
}

// A directory on the way down.
struct Level {
  Stream stream;        // null while too many are open, or for good if it is lost
  struct stat self {};  // by which it is known again
  std::string names;    // of its directories, each with its zero
  size_t next = 0;      // of them, to be counted
  size_t pathLength = 0;
  uint64_t bytes = 0;

  bool IsDone() const { return next == names.size(); }
  const char* TakeName() {
    const char* const name = names.data() + next;
    next += strlen(name) + 1;
    return name;
  }
};

class DirectoryWalk {
 public:
  explicit DirectoryWalk(DirectoryCount& shown) : count(shown) {}

  uint64_t Run(const Westring& root) {
    path = ToUtf8(root).Text();
    Enter(OpenStream(AT_FDCWD, path.c_str()));
    for (;;) {
      if (isStopped || cancel.Stopped()) return kCountStopped;
      if (!levels.back().IsDone())
        GoDown();
      else if (levels.size() > 1)
        GoUp();
      else
        break;
    }
    Tell(levels.back());
    return cancel.Stopped() ? kCountStopped : levels.back().bytes;
  }

 private:
  void GoDown() {
    Level& parent = levels.back();
    const char* const name = parent.TakeName();
    if (path.empty() || path.back() != '/') path += '/';
    path += name;
    Enter(OpenStream(dirfd(parent.stream.get()), name));
  }

  // What can't be opened is a directory all the same.
  void Enter(Stream stream) {
    if (levels.size() >= kMostOpenLevels) Lend(levels[levels.size() - kMostOpenLevels]);
    Level& level = levels.emplace_back();
    level.stream = std::move(stream);
    level.pathLength = path.size();
    ++count.directories;
    TellPath(count, path);
    if (level.stream) Read(level);
  }

  // Gives the descriptor back for a while.
  static void Lend(Level& level) {
    if (level.stream && fstat(dirfd(level.stream.get()), &level.self) == 0) level.stream.reset();
  }

  void GoUp() {
    const Level child = std::move(levels.back());
    levels.pop_back();
    Tell(child);
    Level& parent = levels.back();
    parent.bytes += child.bytes;
    path.resize(parent.pathLength);
    if (parent.stream) return;
    if (child.stream) FindAgain(parent, dirfd(child.stream.get()));
    if (!parent.stream) parent.next = parent.names.size();
  }

  // A directory that has been moved meanwhile has another one above it.
  static void FindAgain(Level& level, int below) {
    Stream stream = OpenStream(below, "..");
    struct stat status;
    if (!stream || fstat(dirfd(stream.get()), &status) != 0) return;
    if (status.st_dev == level.self.st_dev && status.st_ino == level.self.st_ino)
      level.stream = std::move(stream);
  }

  void Read(Level& level) {
    int left = kEntriesBetweenStops;
    while (const dirent* const found = readdir(level.stream.get())) {
      if (IsDots(found->d_name)) continue;
      if (--left == 0) {
        if ((isStopped = cancel.Stopped())) return;
        left = kEntriesBetweenStops;
      }
      Take(level, *found);
    }
  }

  // Only files have to be looked at where the directory tells what its names are.
  void Take(Level& level, const dirent& found) {
    unsigned char type = found.d_type;
    int64_t size = 0;
    if (type == DT_REG || type == DT_UNKNOWN) {
      struct stat status;
      if (fstatat(dirfd(level.stream.get()), found.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return;
      type = static_cast<unsigned char>(IFTODT(status.st_mode));
      size = status.st_size;
    }
    if (type == DT_DIR) {
      level.names.append(found.d_name, strlen(found.d_name) + 1);
      return;
    }
    if (type == DT_LNK) {
      if (!LeadsToDirectory(dirfd(level.stream.get()), found.d_name)) ++count.files;
      return;
    }
    ++count.files;
    level.bytes += static_cast<uint64_t>(size);
    count.bytes += static_cast<uint64_t>(size);
  }

  void Tell(const Level& level) const {
    if (KeepDirectorySize) KeepDirectorySize(Westring(path.substr(0, level.pathLength).c_str()), level.bytes);
  }

  DirectoryCount& count;
  BreakScope cancel;
  bool isStopped = false;
  std::string path;  // of the directory at hand
  std::vector<Level> levels;
};

}  // namespace

uint64_t CountDirectory(const Westring& path, DirectoryCount& count) {
  return DirectoryWalk(count).Run(path);
}

uint64_t CountInArchive(ArchiveLevel& archive, const Westring& interior, DirectoryCount& count) {
  BreakScope cancel;
  uint64_t bytes = 0;
  std::vector<Westring> pending = {interior};
  while (!pending.empty()) {
    const Westring directory = std::move(pending.back());
    pending.pop_back();
    ++count.directories;
    TellPath(count, ToUtf8(directory).Text());
    const std::unique_ptr<EntrySource> source = archive.Open(directory);
    entry* e = nullptr;
    for (int code = source->First(e); code == 0; code = source->Next(e)) {
      if (e->IsDirectory()) {
        if (!e->IsLink() && !IsDotDot(*e) && wcscmp(e->name, L".") != 0)
          pending.push_back(directory.IsEmpty() ? Westring(e->name) : JoinPath(directory, e->name));
      } else {
        ++count.files;
        const uint64_t size = e->IsLink() ? 0 : static_cast<uint64_t>(e->size);
        bytes += size;
        count.bytes += size;
      }
      FreeEntry(e);
      if (cancel.Stopped()) return kCountStopped;
    }
  }
  return bytes;
}
