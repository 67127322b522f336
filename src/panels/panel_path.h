// Paths of panels as text; no file system is asked.
#pragma once

#include "foundation/strings.h"

// "/", also in its form with two slashes.
bool IsRootPath(const wchar_t* path);

// True for directory itself and for what lies below it: "/a" holds "/a/b", and
// not "/ab".
bool IsPathInside(const wchar_t* path, const wchar_t* directory);

// The directory that holds path; the root for what has none.
Westring ParentPath(const wchar_t* path);

bool EndsInSlash(const Westring& path);

// What stands behind the last "/".
const wchar_t* LastComponent(const wchar_t* path);
