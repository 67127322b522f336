// What a command on files carries through all its items: the answers that hold
// for the rest of it, and what it shows meanwhile.
#pragma once

#include <memory>

#include "foundation/strings.h"

class CopyProgress;
class DeletionWindow;

// Results of operations besides errno; -1 stops the whole command.
constexpr int kSkipped = 0x10000;
constexpr int kSourceOpen = 0x10001;  // for writing, by another program
constexpr int kStopCommand = -1;

// As the radio buttons of the copy dialog.
enum OverwriteMode { kOverwriteAsk = 0, kOverwriteAlways = 1, kOverwriteNever = 2, kOverwriteIfOlder = 3 };
enum ReadOnlyMode { kReadOnlyAsk = 0, kReadOnlyAll = 1, kReadOnlyNone = 2 };
enum OpenFilesMode { kOpenFilesNever = -1, kOpenFilesAsk = 0, kOpenFilesAlways = 1 };

// Made where a command starts and handed down to everything it does.
struct FileOperation {
  FileOperation();
  ~FileOperation();  // its windows leave the screen
  FileOperation(const FileOperation&) = delete;
  FileOperation& operator=(const FileOperation&) = delete;

  int overwriteMode = kOverwriteAsk;
  int readOnlyMode = kReadOnlyAsk;
  int openFilesMode = kOpenFilesAsk;
  bool mergeAll = false;      // directories are merged without a question
  bool caseFilterOn = false;  // the source's file system shows names in lower case
  bool noUndelete = false;    // carried for the dialog; nothing reads it
  bool treeAll = false;       // trees are deleted without a question
  int treeDepth = 0;          // only the outermost tree asks

  CopyProgress* progress = nullptr;                // of a copy or move; null without one
  std::unique_ptr<DeletionWindow> deletionWindow;  // made by the first file that shows its name

  // Of the directory of the file deleted last, so that a directory without
  // descriptions is not searched for each of its files.
  Westring describedDirectory;
  bool hasDescriptions = false;

  // A question of Prompt (dialogs/prompt.h), asked with the progress painter
  // stopped. The answer's lower-case letter or 27.
  int Ask(const Westring& text, const Westring& subject, int kind);
  // To be called before any other question draws.
  void StopProgress();
};
