// Where a copy or move goes, from what the user typed.
#pragma once

#include "foundation/strings.h"

struct CopyDestination {
  Westring path;                // absolute, with a closing "/" where one was typed
  bool namesDirectory = false;  // by that, or as ".."
  // Left as it was offered: what it has of "$", "*" and "?" belongs to names.
  bool isLiteral = false;
};

// Fills all but isLiteral, which is read. False, and the user was told, where
// typed is no path.
bool ResolveDestination(const Westring& typed, const Westring& base, CopyDestination& destination);

// For many names: the directory has to be there, or a device that takes them all.
// False, and the user was told, where it is not.
bool HasRoomForMany(const CopyDestination& destination);

// The path of one object in it, copied alone or as one of many.
Westring TargetOfOne(const CopyDestination& destination, const Westring& source);
Westring TargetOfTagged(const CopyDestination& destination, const Westring& source);

// True where both directories are of one file system, or one can't be looked at.
bool AreOnOneDevice(const Westring& a, const Westring& b);

// The directory that the last component of path is in, or path itself where it
// is to hold all that is copied.
Westring DirectoryForMany(const CopyDestination& destination);
