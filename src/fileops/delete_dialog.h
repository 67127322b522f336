// The question before something is deleted.
#pragma once

#include "dialogs/dialog.h"
#include "fileops/file_operation.h"

// What a delete dialog has besides its two texts.
struct DeleteRows {
  bool asksReadOnly = false;  // what to do about read-only files and directories
  bool asksUndelete = false;
};

class CDeleteDlg : public Dialog {
 public:
  CDeleteDlg(const Westring& first, const Westring& second, const DeleteRows& rows, uint8_t colour);

  bool Ask();  // true after Enter

  bool noUndelete = false;
  int32_t readOnlyChoice = kReadOnlyAsk;
};
