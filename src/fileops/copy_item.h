// One item of a copy or move, with the policy: what exists already, what is
// older, what fails, and what the user says to it.
#pragma once

#include "fileops/descriptions.h"
#include "fileops/file_operation.h"

// The item is moved, and the command ends behind it.
constexpr int kMovedThenStop = -2;

// index counts from 1 to total; sources is the open description file of the
// source's directory, or null. 0 done; kStopCommand and kMovedThenStop end the
// whole command; a positive code: skipped or failed, and the command goes on.
int CopyItem(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, int index,
             int total, Descriptions* sources);
int MoveItem(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, int index,
             int total, Descriptions* sources);

// Renames without ever replacing what is there: 17 (EEXIST) where the target
// exists, else errno of the system. 0 when done.
int RenameObject(const Westring& sourcePath, const Westring& targetPath);

// One object by whatever paths: device and inode are the same. Also a link and
// what it leads to, for to put the one in the place of the other would lose it.
bool IsSameObject(const Westring& a, const Westring& b);
