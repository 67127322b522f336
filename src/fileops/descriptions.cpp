// The lines of "descript.ion"; see descriptions.h. Names are compared byte for
// byte, as the file system does, and the text is never looked into: its encoding
// and a carriage return at its end stay what they are.
#include "fileops/descriptions.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "console/input.h"

const wchar_t* const kDescriptionsName = L"descript.ion";

bool IsDescriptionsName(const char* name) { return strcasecmp(name, "descript.ion") == 0; }

namespace {

constexpr int kRetries = 100;
constexpr useconds_t kPause = 50'000;  // microseconds
// No such file is written by hand, and all of it is read for each line.
constexpr off_t kLargest = 16 << 20;

// The directory whose file was waited for in vain: a command on thousands of
// files there waits once.
Estring& DeniedPath() {
  static Estring path;
  return path;
}

// The first line of rest, with its line end, taken from it.
std::string_view TakeLine(std::string_view& rest) {
  const size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end == std::string_view::npos ? end : end + 1);
  rest.remove_prefix(line.size());
  return line;
}

std::string_view WithoutLineEnd(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  return line;
}

// The name of a line; text gets what follows the blank behind it.
std::string_view NameOf(std::string_view line, std::string_view& text) {
  line = WithoutLineEnd(line);
  std::string_view name;
  const size_t quote = line.starts_with('"') ? line.find('"', 1) : std::string_view::npos;
  if (quote != std::string_view::npos) {
    name = line.substr(1, quote - 1);
    line.remove_prefix(quote + 1);
  } else {
    name = line.substr(0, line.find(' '));
    line.remove_prefix(name.size());
  }
  text = line.substr(std::min<size_t>(line.size(), 1));
  return name;
}

bool IsLineOf(std::string_view line, std::string_view name) {
  std::string_view text;
  return NameOf(line, text) == name;
}

bool HasBlank(std::string_view name) { return name.find_first_of(" \t") != std::string_view::npos; }

// A line of some other name must not come of it.
bool CanHaveLine(std::string_view name) {
  if (name.empty() || name.find('\n') != std::string_view::npos || name.starts_with('"')) return false;
  return !HasBlank(name) || name.find('"') == std::string_view::npos;
}

std::string LineOf(std::string_view name, std::string_view text) {
  std::string line(name);
  if (HasBlank(name)) line = '"' + line + '"';
  return line.append(" ").append(text).append("\n");
}

std::string WithoutLinesOf(std::string_view name, std::string_view content) {
  std::string kept;
  kept.reserve(content.size());
  while (!content.empty()) {
    const std::string_view line = TakeLine(content);
    if (!IsLineOf(line, name)) kept.append(line);
  }
  return kept;
}

// A path's directory and the name in it. Only "/" divides: a name may hold "\".
struct PathParts {
  explicit PathParts(const Westring& path) {
    const int slash = RFind(path, L'/');
    directory = slash < 0 ? Westring(L".") : Left(path, std::max(slash, 1));
    name = ToUtf8(path.Text() + slash + 1);
  }
  Westring directory;
  Estring name;
};

// Waits a little. True where the user does not want to wait any longer; the
// command hears of that, too.
bool PauseIsStopped() {
  bool stopped;
  {
    BreakScope cancel;
    usleep(kPause);
    stopped = cancel.Stopped();
  }
  if (stopped) RequestBreak();
  return stopped;
}

void Carry(Descriptions* source, const Westring& sourcePath, const Westring& targetPath, bool isMove) {
  if (source && !source->IsOpen()) return;
  const PathParts from(sourcePath), to(targetPath);
  Descriptions own;
  if (!source) {
    if (own.Open(from.directory, isMove, false) != 0) return;
    source = &own;
  }
  std::string text;
  if (!source->Find(from.name.Text(), text)) return;
  if (!CanHaveLine(to.name.Text())) return;
  Descriptions target;
  if (target.Open(to.directory, true, true) != 0 || target.Put(to.name.Text(), text) != 0) return;
  if (isMove) source->Remove(from.name.Text());
}

}  // namespace

int Descriptions::Open(const Westring& directory, bool forWrite, bool create) {
  path = ToUtf8(directory);
  path += "/descript.ion";
  const int flags = (forWrite ? O_RDWR : O_RDONLY) | (create ? O_CREAT : 0);
  int code = OpenOnce(flags);
  if (code != EACCES) return code;
  const bool waited = strcmp(DeniedPath().Text(), path.Text()) == 0;
  for (int i = 0; i < kRetries && code == EACCES && !waited; ++i) {
    if (PauseIsStopped()) break;
    code = OpenOnce(flags);
  }
  DeniedPath() = code == EACCES ? path : Estring();
  return code;
}

// What only has the name, such as a pipe, is left alone.
int Descriptions::OpenOnce(int flags) {
  if (const int code = file.Open(path.Text(), flags | O_NONBLOCK | O_NOCTTY, 0664)) return code;
  struct stat status;
  if (fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode)) return 0;
  file.Close();
  return EINVAL;
}

int Descriptions::Close() { return file.Close(); }

int Descriptions::Read(std::string& content) const {
  content.clear();
  struct stat status;
  if (fstat(file.Get(), &status) != 0) return errno;
  if (status.st_size > kLargest) return EFBIG;
  content.resize(static_cast<size_t>(status.st_size));
  size_t got = 0;
  while (got < content.size()) {
    const ssize_t n = pread(file.Get(), &content[got], content.size() - got, static_cast<off_t>(got));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) break;
    got += static_cast<size_t>(n);
  }
  content.resize(got);
  return 0;
}

// The rest moves up before anything is added, so that a full disk costs no line
// but the new one.
int Descriptions::Replace(const std::string& old, const std::string& content) const {
  const auto differs = std::mismatch(old.begin(), old.end(), content.begin(), content.end()).second;
  const size_t start = static_cast<size_t>(differs - content.begin());
  const off_t end = static_cast<off_t>(content.size());
  int code = WriteAt(file, content.data() + start, content.size() - start, static_cast<off_t>(start));
  if (code == 0 && content.size() < old.size() && ftruncate(file.Get(), end) != 0) code = errno;
  return code;
}

bool Descriptions::Find(std::string_view name, std::string& text) const {
  std::string content;
  if (Read(content) != 0) return false;
  std::string_view rest = content, found;
  while (!rest.empty()) {
    if (NameOf(TakeLine(rest), found) != name) continue;
    text = found;
    return true;
  }
  return false;
}

int Descriptions::Put(std::string_view name, std::string_view text) {
  std::string old;
  if (const int code = Read(old)) return code;
  std::string kept = WithoutLinesOf(name, old);
  if (const int code = kept == old ? 0 : Replace(old, kept)) return code;
  std::string added = kept;
  if (!added.empty() && !added.ends_with('\n')) added += '\n';
  added += LineOf(name, text);
  const int code = Replace(kept, added);
  if (code == 0) return 0;
  // Half a line would describe some other file.
  if (ftruncate(file.Get(), static_cast<off_t>(kept.size())) == 0 && kept.empty()) unlink(path.Text());
  return code;
}

int Descriptions::Remove(std::string_view name) {
  std::string old;
  if (const int code = Read(old)) return code;
  const std::string kept = WithoutLinesOf(name, old);
  if (kept == old) return 0;
  if (!kept.empty()) return Replace(old, kept);
  if (unlink(path.Text()) != 0) return errno;
  return Close();
}

void CopyDescription(Descriptions* source, const Westring& sourcePath, const Westring& targetPath) {
  Carry(source, sourcePath, targetPath, false);
}

void MoveDescription(Descriptions* source, const Westring& sourcePath, const Westring& targetPath) {
  Carry(source, sourcePath, targetPath, true);
}

void RemoveDescription(const Westring& path) {
  const PathParts parts(path);
  Descriptions file;
  if (file.Open(parts.directory, true, false) == 0) file.Remove(parts.name.Text());
}
