// The copy of one object to one place: a file's bytes, a link's text, a directory
// with all it holds. Asks nothing but what concerns reading and merging; who
// calls it (fileops/copy_item.h) knows what to do about an existing target.
#pragma once

#include "fileops/descriptions.h"
#include "fileops/file_operation.h"

constexpr int kTakeOpenFile = 1;  // also a source that is open for writing

// 0; errno, of which 13 (EACCES) and 17 (EEXIST) may mean that the target exists;
// 5 (EIO) for a read error that the user was told; kSkipped; kSourceOpen; -1.
// With force, an existing target's contents are replaced. With isMove, the source goes
// once the target is flushed, stamped and closed without an error. sources: the
// open description file of the source's directory, or null.
int CopyFile(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, bool force,
             bool isMove, Descriptions* sources, int flags);
