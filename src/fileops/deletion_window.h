// The window that names the file being deleted.
#pragma once

#include <memory>

#include "dialogs/win.h"
#include "foundation/strings.h"

class DeletionWindow {
 public:
  // Shows the name of the next file; a longer one gets a wider window.
  void Show(const Westring& path);

 private:
  std::unique_ptr<Win> window;
  int width = 18;  // of the longest name so far
};
