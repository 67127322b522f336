// The list of mounts in columns: how wide they are, a row of them, and the list
// box that shows the rows.
#pragma once

#include "dialogs/list_box.h"
#include "panels/mounts.h"

// Widths in cells.
struct MountColumns {
  int device, mountPoint, fileSystem;
  int Width() const { return device + mountPoint + fileSystem + 2; }  // with the blanks between them
};

// Each as wide as its longest text and its least width ask for, but the row not
// wider than room: the columns that have the most above their least width give
// it up.
MountColumns FitMountColumns(const CMountPointList& list, int room);

// Paths that are too long lose their middle.
Westring MountRow(const TMountPoint& mount, const MountColumns& columns);

class CMountPointListBox : public ListBoxBase {
 public:
  // The list is the caller's.
  CMountPointListBox(Dialog& dialog, int x, int y, int height, const CMountPointList& list,
                     const MountColumns& columns, int32_t* selection);

  Westring GetItemText(int index) override;

 private:
  const CMountPointList& list;
  const MountColumns columns;
};
