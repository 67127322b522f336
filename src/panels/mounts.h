// The mounted file systems.
#pragma once

#include "foundation/collections.h"

struct TMountPoint {
  Westring device;
  Westring mountPoint;
  Westring fileSystem;
};

class CMountPointList : public TObjectStore<TMountPoint> {};

constexpr char kMountTable[] = "/etc/mtab";

// Reads the mount table in its order. Without all, "tmpfs" and file systems
// with no blocks are left out. False, with the reason in errno and an empty
// list, if the table can't be read.
bool ReadMounts(CMountPointList& list, bool all);

// The same from any file in the form of the mount table.
bool ReadMountTable(const char* table, CMountPointList& list, bool all);

// The longest mount point that holds path; false if there is none.
bool FindMount(const Westring& path, Westring& fileSystem, Westring& mountPoint);

// The same in a list at hand; null if there is none. Of two mounts on one point
// the first.
const TMountPoint* FindMountIn(const CMountPointList& list, const Westring& path);
