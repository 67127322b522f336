// A file of lines that several running copies of the program add to and replace:
// opened, it is locked against the others until the object's end.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "foundation/strings.h"

class SharedFile {
 public:
  SharedFile() = default;
  ~SharedFile() { Close(); }
  SharedFile(const SharedFile&) = delete;
  SharedFile& operator=(const SharedFile&) = delete;

  // Both give 0 or errno. EBUSY: another copy has held the lock for more than a
  // second and may have been stopped; the file is open without it.
  int OpenToRead(const Westring& path);    // also what may not be written
  int OpenToAppend(const Westring& path);  // made with mode 0600 if it is missing

  int Read(std::string& content);  // 0 or errno; EFBIG over 256 MB

  // The lines with their ends, in one write; a last line without an end gets
  // one first. After an error the file is as it was.
  int Append(std::string_view lines);

  // Puts a new file in the place of this one at once, while the lock is held,
  // and behind it what others have appended without the lock since Read. The
  // user's own protection of the file holds for that, too. 0 or errno.
  int Replace(std::string_view content);

 private:
  int Open(const Westring& path, int creation);
  int OpenPlain(int creation);
  bool IsStillThere() const;
  int ReadFrom(off_t start, std::string& content);
  int AppendHere(std::string_view lines);
  int CarryOver();
  void Close();

  Westring path;
  int fd = -1;
  off_t readSize = 0;  // what Read has given
  bool locked = false, writable = false;
};
