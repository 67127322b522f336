// The lines of a syntax file and of those that it includes, as one sequence.
#pragma once

#include <functional>
#include <string>

#include "foundation/collections.h"
#include "foundation/std_file.h"

// Shows text and, below it, what it is about, as Prompt() does, with the key that
// ended it for a result.
using SyntaxComplaint = std::function<int(const Westring& text, const Westring& detail, int flags)>;

// The open files, the included on top of the one that asks for it.
class CIniStack : public TObjectStore<StdFile> {
 public:
  StdFile* Top() const { return Peek(Count() - 1); }
  void Pop();
};

class SyntaxReader {
 public:
  static constexpr int kLongestPhysicalLine = 1023;  // bytes; the rest is cut
  static constexpr int kLongestLine = 256 << 10;     // bytes of a line with all that continues it

  // Nobody's files come near these; they end files that include each other on and
  // on, in all the ways in which this can be done.
  static constexpr int kDeepest = 32;
  static constexpr int kMostFiles = 2000;
  static constexpr int64_t kMostBytes = 4 << 20;

  explicit SyntaxReader(const SyntaxComplaint& complaint) : ask(complaint) {}

  // False if the file can't be read, of which a missing one is not complained.
  bool Open(const Westring& path);
  // Puts a file on top, a relative path from the directory of the first one.
  void Include(const Westring& path);

  // The next line of the topmost file that has one, without white space around
  // it. False behind the last one.
  bool Next(std::string& line);

 private:
  int Push(const Westring& path);  // 0, or why not
  bool ReadPhysicalLine(std::string& line);
  void EndFile();
  void Complain(int code, const Westring& path);

  const SyntaxComplaint& ask;
  CIniStack files;
  Westring directory;  // of the first file, with its slash
  int filesOpened = 0;
  int64_t bytesRead = 0;
  bool silenced = false;  // by Esc on a complaint
};
