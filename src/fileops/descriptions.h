// "descript.ion": the file of a directory that describes its files, a line each:
// the name, in double quotes if it has blanks, a blank, and free text.
#pragma once

#include <string>
#include <string_view>

#include "fileops/descriptor.h"
#include "foundation/strings.h"

extern const wchar_t* const kDescriptionsName;
// A name as the system has it, in any case of its letters.
bool IsDescriptionsName(const char* name);

// The description file of one directory. Most directories have none, which costs
// one look and nothing per file. What others write to it meanwhile is seen.
class Descriptions {
 public:
  // Opens the file of the directory; tries for some seconds while access is
  // denied, until the user stops it. With create, an absent file is made. 0 or
  // errno.
  int Open(const Westring& directory, bool forWrite, bool create);
  bool IsOpen() const { return file.IsOpen(); }
  int Close();

  // The text behind the name. False where there is no line of it.
  bool Find(std::string_view name, std::string& text) const;
  // The only line of the name from now on. 0 or errno.
  int Put(std::string_view name, std::string_view text);
  // Takes the lines of the name; a file that is left empty goes. 0 or errno.
  int Remove(std::string_view name);

 private:
  int OpenOnce(int flags);
  int Read(std::string& content) const;
  // Writes what differs from a file's old content. 0 or errno.
  int Replace(const std::string& old, const std::string& content) const;

  Estring path;
  Descriptor file;
};

// As the files themselves: the target gets the source's line, in place of what it
// had; a move takes it from the source's file too. source is the open file of the
// source's directory, or null to look there. Without a line nothing happens.
void CopyDescription(Descriptions* source, const Westring& sourcePath, const Westring& targetPath);
void MoveDescription(Descriptions* source, const Westring& sourcePath, const Westring& targetPath);
// Takes the line of a file that is gone.
void RemoveDescription(const Westring& path);
