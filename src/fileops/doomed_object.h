// An object that is to be deleted. Inside a tree it is a name in an open
// directory: no path gets too long then, and no part of one can be exchanged for
// a link while the tree is walked.
#pragma once

#include <dirent.h>

#include "fileops/file_operation.h"

class DoomedObject;

// A directory of a tree, open while its contents go.
class DoomedFolder {
 public:
  explicit DoomedFolder(const Westring& shownPath) : path(shownPath) {}
  ~DoomedFolder() { Close(); }
  DoomedFolder(const DoomedFolder&) = delete;
  DoomedFolder& operator=(const DoomedFolder&) = delete;

  // Follows no link. 0 or errno.
  int Open(const DoomedObject& object);
  void Close();
  // The next one but for the two that every directory has. Null at the end and,
  // with errno set, after an error.
  const dirent* NextName();
  void Rewind() { rewinddir(stream); }
  // Once, so that files in a directory without descriptions cost nothing.
  void LookForDescriptions();
  int Descriptor() const { return dirfd(stream); }

  const Westring path;
  bool hasDescriptions = false;  // that may be written

 private:
  DIR* stream = nullptr;
};

class DoomedObject {
 public:
  explicit DoomedObject(const Westring& path);
  // Both must outlive the object. name is as the system has it.
  DoomedObject(DoomedFolder& folder, const char* name);
  DoomedObject(const DoomedObject&) = delete;
  DoomedObject& operator=(const DoomedObject&) = delete;

  Westring Path() const;
  bool IsInTree() const { return folder != nullptr; }
  // For the system's calls that count a name from an open directory.
  int Directory() const { return directory; }
  const char* Name() const { return name; }

  // Each 0 or errno.
  int OpenDirectory(int& fd) const;  // follows no link
  int Access() const;                // 0 if it may be written; a link's target counts
  int ParentAccess() const;
  int Unlink() const;
  int RemoveDirectory() const;
  bool IsLink() const;
  bool Exists() const;

  // Takes its line from its directory's description file.
  void RemoveDescriptionLine(FileOperation& operation) const;

 private:
  Estring bytes;  // of a path
  DoomedFolder* const folder = nullptr;
  const int directory;
  const char* const name;
};
