// Asking for the encoding of a text.
#pragma once

#include "dialogs/dialog.h"

// The caller's values are written on Enter only. extraRows are free at the top for
// what a derived dialog adds; its first element's hot letter is "n".
class CFormatSelectDlg : public Dialog {
 public:
  // encoding: TextEncoding. A codePage of 0 shows the usual one.
  CFormatSelectDlg(const char* title, int& encoding, int& codePage, bool& hasBOM, int extraRows = 0);

  // Enter or Escape. May be called again.
  int Execute();

 protected:
  void Store();  // writes the caller's values
  void FocusChanged() override;

 private:
  void AddFormats(int y);
  void AddDetails(int y);

  int& encoding;
  int& codePage;
  bool& hasBOM;
  int32_t format;  // the button chosen
  int32_t page;
  bool mark;
  bool bigEndian;
  int32_t formatShown;  // the format that the mark was last set for
  int32_t formatAtOpening;
  bool markAtOpening;
  bool hasButtons = false;
};
