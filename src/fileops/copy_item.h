// One item of a copy or move, with the policy: what exists already, what is
// older, what fails, and what the user says to it.
#pragma once

#include "fileops/descriptions.h"
#include "fileops/file_operation.h"

// index counts from 1 to total; sources is the open description file of the
// source's directory, or null. 0 done; -1 or -2 stop the whole command; a
// positive code: skipped or failed, and the command goes on.
int CopyItem(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, int index,
             int total, Descriptions* sources);
int MoveItem(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, int index,
             int total, Descriptions* sources);

// Renames without ever replacing what is there: 17 (EEXIST) where the target
// exists, else errno of the system. 0 when done.
int RenameObject(const Westring& sourcePath, const Westring& targetPath);

// One file by whatever paths: device and inode are the same.
bool IsSameObject(const Westring& a, const Westring& b);
