// An object that is to be deleted. Inside a tree it is a name in an open
// directory: no path gets too long then, and no part of one can be exchanged for
// a link while the tree is walked.
#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <string>
#include <vector>

#include "fileops/file_operation.h"

class DoomedObject;

struct DoomedName {
  std::string name;  // as the system has it; empty behind the last
  unsigned char type = DT_UNKNOWN;
};

// A directory of a tree, open while its contents go.
class DoomedFolder {
 public:
  // The object must outlive the folder.
  explicit DoomedFolder(const DoomedObject& directory) : object(directory) {}
  ~DoomedFolder() { Close(); }
  DoomedFolder(const DoomedFolder&) = delete;
  DoomedFolder& operator=(const DoomedFolder&) = delete;

  const DoomedObject& Object() const { return object; }

  int Open();  // follows no link. 0 or errno
  // Gives its descriptor back, and keeps the names that are still to come.
  void Suspend();
  // Opens it by the way up from a folder in it. 0, or errno: ENOENT where that
  // leads somewhere else by now.
  int Resume(const DoomedFolder& below);

  // The next one but for the two that every directory has. 0 or errno.
  int Next(DoomedName& next);
  void Rewind();
  // Once, so that files in a directory without descriptions cost nothing.
  void LookForDescriptions();
  int Descriptor() const { return dirfd(stream); }

  bool hasDescriptions = false;  // that may be written

 private:
  int Adopt(int fd);
  void Close();
  int Read(DoomedName& next);

  const DoomedObject& object;
  DIR* stream = nullptr;

  // Since it was suspended: its stream no longer tells where the walk is.
  bool wasSuspended = false;
  dev_t device = 0;
  ino_t inode = 0;
  std::vector<DoomedName> rest;  // the next one last
  int restCode = 0;              // what reading them ended with
};

class DoomedObject {
 public:
  explicit DoomedObject(const Westring& path);
  // Both must outlive the object. name is as the system has it.
  DoomedObject(DoomedFolder& folder, const char* name);
  DoomedObject(const DoomedObject&) = delete;
  DoomedObject& operator=(const DoomedObject&) = delete;

  Westring Path() const;
  DoomedFolder* Folder() const { return folder; }  // null outside a tree
  // For the system's calls that count a name from an open directory.
  int Directory() const;
  const char* Name() const { return name; }
  const char* LastName() const;  // without the path that leads to it

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
  const char* const name;
};
