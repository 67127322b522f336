// What copying and moving one item have in common: a look at what is there, and
// the questions whose answers hold for the rest of the command.
#pragma once

#include <cstdint>

#include "console/input.h"
#include "fileops/descriptions.h"
#include "fileops/directory_names.h"
#include "fileops/file_operation.h"

// What is at a path. A link counts as what it leads to, or as itself where that
// is nothing; its time is its own.
struct ObjectState {
  bool exists = false;
  bool isLink = false;
  bool isDirectory = false;
  bool isDevice = false;  // also a FIFO or socket: written to, never replaced
  uint64_t modified = 0;  // as FileTime::Order

  bool IsFile() const { return exists && !isDirectory && !isDevice; }
};
ObjectState LookAt(const Westring& path);

// One item on its way.
struct TransferItem {
  FileOperation& operation;
  const Westring& source;
  const Westring& target;
  Descriptions* sources;
  int flags;  // of CopyFile

  TransferItem(FileOperation& command, const Westring& sourcePath, const Westring& targetPath,
               Descriptions* descriptions);
  void StartPainter();
  void StopPainter();
};

// True where the item is to be tried again after code, which is none of those
// that an existing target gives. Else code is what the item ends with.
bool RetriesAfter(TransferItem& item, int& code);

// The question about a file that is in the way, and what becomes of it. kind is
// of Prompt.
enum class Overwrite { Replace, Skip, TryAgain, Stop };
Overwrite AskToOverwrite(TransferItem& item, int kind);

// Removes the file that is in the way: true for another try, which finds it gone,
// or tells what has happened to the source meanwhile. Else code is what the item
// ends with, unchanged for a file that was kept.
bool RemovesTarget(TransferItem& item, bool isMove, int& code);

// For a name whose bytes do not come back from its characters: the path would
// lead elsewhere. It stays where it is, unless somebody gives it another one
// meanwhile: kSkipped or kStopCommand, or 0 where it has gone.
int RefuseName(FileOperation& operation, const DirectoryNames& names, const char* name, const Westring& path);

// False where to take the old target away would be for nothing: the source can
// not be read where that is needed, or, for a move, not be taken out of its
// directory.
bool CanGiveSource(const TransferItem& item, bool isMove);
