// "descript.ion": the file of a directory that describes its files, a line each:
// the name, in double quotes if it has blanks, a blank, and free text.
#pragma once

#include "foundation/std_file.h"

extern const wchar_t* const kDescriptionsName;
bool IsDescriptionsName(const Westring& name);  // in any case of letters

// The description file of one directory. Most directories have none, which costs
// one look and nothing per file.
class Descriptions {
 public:
  // Opens the file of the directory; tries for some seconds while access is
  // denied. With create, an absent file is made. 0 or errno.
  int Open(const Westring& directory, bool forWrite, bool create);
  bool IsOpen() const { return file.IsOpen(); }
  int Close();

 private:
  Westring path;
  StdFile file;
};

// As the files themselves: the target gets the source's line, in place of what it
// had; a move takes it from the source's file too. source is the open file of the
// source's directory, or null to look there. Without a line nothing happens.
void CopyDescription(Descriptions* source, const Westring& sourcePath, const Westring& targetPath);
void MoveDescription(Descriptions* source, const Westring& sourcePath, const Westring& targetPath);
// Takes the line of a file that is gone.
void RemoveDescription(const Westring& path);
