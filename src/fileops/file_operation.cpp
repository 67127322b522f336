// The questions of a command on files, and what it leaves on the screen.
#include "fileops/file_operation.h"

#include "dialogs/prompt.h"
#include "fileops/copy_progress.h"
#include "fileops/deletion_window.h"

FileOperation::FileOperation() = default;
FileOperation::~FileOperation() = default;

int FileOperation::Ask(const Westring& text, const Westring& subject, int kind) {
  StopProgress();
  return Prompt(text, subject, kind);
}

void FileOperation::StopProgress() {
  if (progress) progress->Stop();
}
