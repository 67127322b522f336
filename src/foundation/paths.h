// Paths as text: making them absolute, joining, shortening for display.
#pragma once

#include "foundation/strings.h"

// In characters: what a panel can show, and what the system takes at most.
constexpr int kLongestPanelPath = 511, kLongestPath = 4095;

// Makes path absolute against base (itself absolute) and removes "." and ".."
// components and doubled slashes; a leading "//" keeps its two slashes. ".."
// at the root stays at the root. No symbolic link is followed. Returns false,
// with result untouched, for an empty path, or one over longest when done.
bool NormalisePath(const Westring& path, const Westring& base, Westring& result,
                   int longest = kLongestPanelPath);

// directory + "/" + name, without doubling the slash.
Westring JoinPath(const Westring& directory, const Westring& name);

// The path in at most width characters: the first directory (two of them for
// a path that begins with two slashes), "...", and the tail. A path with no
// usable head, or too narrow a width, is cut with the mark, code 16, as its
// last character.
Westring ShortenPath(const Westring& path, int width);

// The process's current directory; empty on failure.
Westring CurrentDirectory();

// The directory that holds the running program; empty on failure.
Estring ProgramDirectory();

bool FileExists(const Westring& path);  // stat succeeds
bool DirectoryExists(const Westring& path);

// The text of a system error, right-trimmed.
Estring SystemError(int number);
