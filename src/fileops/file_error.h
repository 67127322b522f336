// System errors of file operations, told to the user: the one place that knows
// their texts, subjects and buttons.
#pragma once

#include "fileops/file_operation.h"

// How an error is told.
struct FileErrorText {
  Westring text;
  bool aboutTarget;  // the place that was to be reached, where there is one; otherwise the source
  int kind;          // of Prompt (dialogs/prompt.h)
};
FileErrorText DescribeFileError(int code);

// Tells code about source, or about target where the text is about a place and
// target is not empty. Esc turns code into -1. stop is false for "Retry" only.
void ShowFileError(FileOperation& operation, int& code, bool& stop, const Westring& source,
                   const Westring& target = Westring());

// The same for one error of a loop: true where the user wants another try; code
// becomes -1 where he stops the command.
bool WantsRetry(FileOperation& operation, int& code, const Westring& source,
                const Westring& target = Westring());
