// The window that names the file being deleted.
#pragma once

#include <chrono>
#include <memory>

#include "dialogs/win.h"
#include "foundation/strings.h"

class DeletionWindow {
 public:
  // False for a short while after a name was shown: files go faster than anybody
  // reads, and painting them all would take longer than deleting them.
  bool IsDue() const { return Clock::now() >= nextDue; }
  // Shows the name of the next file; a longer one gets a wider window.
  void Show(const Westring& path);

 private:
  using Clock = std::chrono::steady_clock;

  std::unique_ptr<Win> window;
  int width = 18;  // of the longest name so far
  Clock::time_point nextDue;
};
