// Following a file that grows: a note in the last row, and whether it is on.
#pragma once

#include <memory>

#include "dialogs/win.h"

class FollowMode {
 public:
  bool IsOn() const { return note != nullptr; }
  void Start();  // nothing where it is on
  void Stop();
  // While what lies below the note is painted.
  void SetHidden(bool hide);

 private:
  std::unique_ptr<Win> note;
};
