// Asking for the encoding of a text.
#pragma once

#include "dialogs/dialog.h"

// The caller's values are written on Enter only. extraRows are free at the top for
// what a derived dialog adds.
class CFormatSelectDlg : public Dialog {
 public:
  CFormatSelectDlg(const char* title, int& encoding, int& codePage, bool& hasBOM, int extraRows = 0);

  // Enter or Escape.
  int Execute();

 protected:
  void Accept();  // writes the caller's values

 private:
  int& encoding;
  int& codePage;
  bool& hasBOM;
  int format;
  bool bigEndian;
  int formatAtOpening;
  bool markAtOpening;
};
