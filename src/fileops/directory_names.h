// The names in a directory, all read before anything happens to one of them: what
// a walk does to the directory, or somebody else meanwhile, can't lead it astray.
#pragma once

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <string>

#include "foundation/strings.h"

class DirectoryNames {
 public:
  // Follows no link to the directory. 0 or errno.
  int Read(const Westring& path);

  // The next name as the system has it, without "." and ".."; null behind the last.
  const char* Next();

  // Looks at the object itself, not where it may lead. False where it has gone.
  bool Look(const char* name, struct stat& status) const;
  // Looks where a link leads.
  bool LooksLikeDirectory(const char* name) const;

 private:
  struct Closer {
    void operator()(DIR* stream) const { closedir(stream); }
  };
  std::unique_ptr<DIR, Closer> stream;
  std::string names;  // each with a zero
  size_t position = 0;
};

// False where the text does not lead back to the name: bytes that are no UTF-8,
// or a spelling of it that reads as some other name. text is good for showing then.
bool DecodeName(const char* name, Westring& text);
