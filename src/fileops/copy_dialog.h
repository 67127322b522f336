// The dialog of a copy or move: where to, and what about files that exist.
#pragma once

#include "dialogs/dialog.h"
#include "fileops/file_operation.h"

// What is asked, and the answers in the same place.
struct CopyQuestion {
  Westring title;
  Westring destination;        // what is offered, then what the user left
  Westring otherDirectory;     // of the other panel
  bool asksOverwrite = false;  // with the row of overwrite modes
  bool flips = false;          // keys take the directory away and put the other one in front
  int32_t overwriteMode = kOverwriteAsk;
};

class CCopyDlg : public Dialog {
 public:
  // The question must outlive the dialog.
  explicit CCopyDlg(CopyQuestion& question);

  bool Ask();  // false after Esc

 private:
  struct KeyRow;
  static const KeyRow kKeys[];

  void AddOverwriteRow(int y);
  void ChooseInTree();
  void ChooseFromHistory();
  void FlipDirectory();

  CopyQuestion& question;
  int field = 0;
};
