// The list of mounts, to take a panel to one of them or eject it.
#pragma once

#include "console/mount_eject.h"
#include "panels/mount_list_box.h"
#include "panels/panel.h"

// Where the mounts come from and how one is ejected.
struct MountHooks {
  bool (*readMounts)(CMountPointList& list, bool all) = ReadMounts;
  EjectResult (*eject)(const Westring& mountPoint, uint32_t patienceMs, Westring& error) = EjectMount;
};
extern MountHooks TheMountHooks;

// The box: Run gives 13 for the row at *row, kAltE to eject it, 27 to leave. Its
// rows are the caller's.
class CMountPointDlg : public Dialog {
 public:
  static constexpr int kAltE = 0x10012;

  CMountPointDlg(const CMountPointList& mounts, int32_t* row);

 private:
  CMountPointDlg(const CMountPointList& mounts, int32_t* row, const MountColumns& columns);
};

// filterless shows every mount, also those without blocks. Ejecting and choosing
// take panels elsewhere: those are read, and the process stands in the active one.
void MountDialog(TPanel& panel, bool filterless);
