// A new content for a file, written beside it and put in its place at once: a
// kill at any moment leaves the old or the new file, never a part.
#pragma once

#include "foundation/std_file.h"
#include "foundation/strings.h"

class ReplacementFile {
 public:
  // The scratch file goes unless its content was brought to the disk.
  ~ReplacementFile();

  // Opens the scratch file beside path, or where path is a symbolic link, beside
  // its target. Its name has "!!!" for the last three characters; no other
  // process can have it open this way at the same time. Returns 0 or errno.
  int Open(const Westring& path);
  StdFile& File() { return file; }
  Westring ScratchPath() const { return Westring(scratch.Text()); }

  // Brings the content to the disk and puts it over the old file, whose mode and
  // owner it has got. 0 or errno; after an error the old file is as it was. If it
  // could not be replaced, the scratch file stays beside it with all the content.
  int Commit();

 private:
  int OpenLocked();

  StdFile file;
  Estring target, scratch;
  bool isOurs = false;  // the scratch file may be removed
};
