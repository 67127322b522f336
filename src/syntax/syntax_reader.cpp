// Reading syntax files; see syntax_reader.h.
#include "syntax/syntax_reader.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "dialogs/prompt.h"
#include "foundation/paths.h"

namespace {

// Beside the system's error numbers.
enum { kIncludesItself = -2, kTooManyFiles = -3 };

constexpr char kWhiteSpace[] = " \t\n\v\f\r";

// Only plain files: a pipe may never give a line, and a device never end.
int StatPlainFile(const Westring& path, struct stat& status) {
  if (stat(ToUtf8(path).Text(), &status) != 0) return errno;
  if (S_ISREG(status.st_mode)) return 0;
  return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
}

bool IsSameFile(const StdFile& file, const struct stat& other) {
  struct stat status;
  return fstat(file.Descriptor(), &status) == 0 && status.st_dev == other.st_dev &&
         status.st_ino == other.st_ino;
}

Westring TextOf(int code) {
  if (code == kIncludesItself) return L"The file includes itself";
  if (code == kTooManyFiles) return L"Too many included files";
  return Westring(SystemError(code).Text());
}

void TrimLine(std::string& line) {
  line.erase(0, line.find_first_not_of(kWhiteSpace));
  line.erase(line.find_last_not_of(kWhiteSpace) + 1);
}

bool Continues(const std::string& line) { return !line.empty() && line.back() == '\\'; }

// Editors put one in front of UTF-8.
void DropByteOrderMark(std::string& line) {
  if (line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
}

// Where a line as long as may be was taken; its end may be the last byte of that.
void SkipRestOfLine(StdFile& file, int64_t mostBytes) {
  char c = 0;
  for (file.SeekRelative(-1); c != '\n' && mostBytes >= 0 && file.Read(&c, 1) == 0; --mostBytes) continue;
}

}  // namespace

void CIniStack::Pop() {
  Last();
  Remove();
}

// ---- files -----------------------------------------------------------------

int SyntaxReader::Push(const Westring& path) {
  struct stat status;
  if (const int code = StatPlainFile(path, status)) return code;
  for (int i = 0; i < files.Count(); ++i)
    if (IsSameFile(*files.Peek(i), status)) return kIncludesItself;
  if (files.Count() >= kDeepest || filesOpened >= kMostFiles) return kTooManyFiles;
  auto file = std::make_unique<StdFile>();
  if (const int code = file->Open(path, kOpenRead)) return code;
  files.Append(file.release());
  ++filesOpened;
  return 0;
}

bool SyntaxReader::Open(const Westring& path) {
  directory = Left(path, RFind(path, L'/') + 1);
  const int code = Push(path);
  if (code != 0 && code != ENOENT) Complain(code, path);
  return code == 0;
}

void SyntaxReader::Include(const Westring& path) {
  Westring full = path;
  const bool fits = NormalisePath(path, directory, full, kLongestPath);
  if (const int code = fits ? Push(full) : ENAMETOOLONG) Complain(code, full);
}

// A file that can't be read on ends early.
void SyntaxReader::EndFile() {
  const int code = bytesRead < kMostBytes ? files.Top()->Error() : EFBIG;
  const Westring path = files.Top()->Name();
  files.Pop();
  if (code > 0) Complain(code, path);
}

void SyntaxReader::Complain(int code, const Westring& path) {
  if (!silenced) silenced = ask(TextOf(code), path, kPromptOk) == kEscape;
  // From here on this would come again and again.
  if (code == kTooManyFiles || code == EFBIG) silenced = true;
}

// ---- lines -----------------------------------------------------------------

// False at the end of the topmost file, and of what may be read at all.
bool SyntaxReader::ReadPhysicalLine(std::string& line) {
  StdFile& file = *files.Top();
  const int64_t start = file.Tell();
  char buffer[kLongestPhysicalLine + 1];
  const bool anything = bytesRead < kMostBytes && file.ReadLine(buffer, sizeof buffer) == 0;
  line = anything ? buffer : "";
  if (file.Tell() - start == kLongestPhysicalLine) SkipRestOfLine(file, kMostBytes - bytesRead);
  bytesRead += file.Tell() - start;
  if (start == 0) DropByteOrderMark(line);
  return anything;
}

bool SyntaxReader::Next(std::string& line) {
  while (files.Count() > 0 && !ReadPhysicalLine(line)) EndFile();
  if (files.Count() == 0) return false;
  TrimLine(line);
  // The last line of a file has nothing to continue into and keeps its backslash.
  std::string more;
  while (Continues(line) && ReadPhysicalLine(more)) {
    line.pop_back();
    if (line.size() + more.size() <= kLongestLine) line += more;
  }
  return true;
}
