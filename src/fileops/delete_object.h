// The steps of deleting that know their object, for paths and for walks alike;
// fileops/delete_file.h has what the others call.
#pragma once

#include "fileops/doomed_object.h"

// DeleteFile, and DeleteDirectory without its way into a tree.
int DeleteFileObject(FileOperation& operation, const DoomedObject& object, int mode);

// A directory that should be empty. 1 removed, 0 skipped, -1 stop; where it is not
// empty, notEmpty is set and 0 returned without a word. One that was cleared
// needs no other look.
int DeleteEmptyDirectory(FileOperation& operation, const DoomedObject& object, bool wasCleared,
                         bool& notEmpty);

// What the user says to the deletion of something read-only. All and None are
// remembered in the operation.
enum class Consent { Yes, Skip, Stop };
Consent AskReadOnly(FileOperation& operation, const wchar_t* text, const DoomedObject& object);
