// Where a listing's entries come from: a directory, or a level of an archive.
#pragma once

#include <memory>

#include "foundation/strings.h"
#include "panels/entry.h"

constexpr int kNoMoreEntries = 0x40000001;
constexpr int kDriveNotReady = 0x40000002;

// Yields entries one at a time; a yielded block belongs to the caller. 0 while
// there are entries, then kNoMoreEntries or an error.
class EntrySource {
 public:
  virtual ~EntrySource() = default;
  virtual int First(entry*& e) = 0;
  virtual int Next(entry*& e) = 0;
};

enum ScanAttribute : uint32_t {
  kScanHidden = 8,  // without it names that begin with "." are left out
  kScanAll = 1 + 2 + 8,
  kScanDirectories = 1 << 17,  // only directories
};

// The plain directory scanner: names that match mask ("?" and "*",
// case-sensitive), "." and ".." included. An unreadable directory fails in
// First with errno.
std::unique_ptr<EntrySource> ScanDirectory(const Westring& path, const wchar_t* mask, uint32_t attributes);

// One entry for the object at directory/name, as the scanner makes it. 0, or
// errno with e untouched.
int StatEntry(const Westring& path, const wchar_t* name, entry*& e);

// One level of browsing in an archive. The panel owns the innermost level and
// each level its parent.
class ArchiveLevel {
 public:
  virtual ~ArchiveLevel() = default;

  const Westring& Path() const { return path; }  // as the panel shows it
  virtual bool StillThere() const = 0;           // its file exists
  // Entries of the interior directory, ".." first.
  virtual std::unique_ptr<EntrySource> Open(const Westring& interior) = 0;
  // The attributes of an interior path; false if there is none.
  virtual bool Lookup(const Westring& interior, uint16_t& attributes) = 0;

  std::unique_ptr<ArchiveLevel> parent;

 protected:
  explicit ArchiveLevel(const Westring& shownPath) : path(shownPath) {}

 private:
  Westring path;
};

// Opens the file at path, inside parent where it is not null, as an archive;
// null if it is none. Unset as long as no archive format is known.
extern std::unique_ptr<ArchiveLevel> (*OpenArchive)(const Westring& path, ArchiveLevel* parent);
