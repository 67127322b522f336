// F5 and F6: from the panels and the dialog to the items.
#pragma once

#include "panels/panel.h"

constexpr int kCommandMove = 1;
constexpr int kCommandHere = 2;  // the default destination is the bare name, in the same directory

// Copies or moves the tagged entries of source, or the one under the cursor.
// target, where not null, takes the dialog's place.
void CopyOrMove(TPanel& source, TPanel& other, int flags, const Westring* target);

// What the rooms above add to copying; null where there is nothing yet. The choices
// of the destination dialog fill path and return true where the user chose one.
struct CopyHooks {
  bool (*chooseInTree)(Westring& path) = nullptr;
  bool (*chooseFromHistory)(Westring& path) = nullptr;  // of directories
  // Where one panel browses an archive.
  void (*throughArchive)(TPanel& source, TPanel& other, bool isMove) = nullptr;
};
extern CopyHooks TheCopyHooks;
