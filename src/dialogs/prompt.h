// Prompt: the message box of the whole program.
#pragma once

#include "console/key_codes.h"
#include "foundation/strings.h"

class StdFile;

// The button set in the low bits, and the colour.
enum PromptFlags {
  kPromptOk = 0,
  kPromptOkCancel = 1,
  kPromptOkCancelSkipAllNone = 2,
  kPromptRetrySkipCancel = 3,
  kPromptAllOlder = 4,
  kPromptNoButtons = 5,
  kPromptMessage = 16,  // in the colour of messages, not of errors
};

// Shows text, and detail shortened below it, and waits for an answer: 'y', 'r',
// 's', 'a', 'e', 'd' or 27. Enter gives the first button.
int Prompt(const Westring& text, const Westring& detail, int flags);

// The same after closing file, which may be null.
int PromptForFile(StdFile* file, const Westring& text, const Westring& detail, int flags);
