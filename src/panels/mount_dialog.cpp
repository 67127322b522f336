// The list of mounts, to take a panel to one of them or eject it.
#include "panels/mount_dialog.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "config/values/colours.h"
#include "console/console.h"
#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "panels/navigation.h"
#include "panels/panel_path.h"

MountHooks TheMountHooks;

namespace {

constexpr uint32_t kEjectPatienceMs = 15000;

constexpr int kMargin = 4;       // frame and a blank at both sides
constexpr int kRowsAround = 4;   // frame, column heads and the line under them
constexpr int kFreeColumns = 3;  // of the screen, beside the box
constexpr int kFreeRows = 5;

int ListRows(const CMountPointList& mounts) {
  return std::max(std::min(mounts.Count() + kRowsAround, ScreenRows - kFreeRows) - kRowsAround, 1);
}

}  // namespace

CMountPointDlg::CMountPointDlg(const CMountPointList& mounts, int32_t* row)
    : CMountPointDlg(mounts, row, FitMountColumns(mounts, ScreenColumns - kFreeColumns - kMargin)) {}

CMountPointDlg::CMountPointDlg(const CMountPointList& mounts, int32_t* row, const MountColumns& columns)
    : Dialog(-1, -3, columns.Width() + kMargin, ListRows(mounts) + kRowsAround,
             Options::Colours[kColourMenu]) {
  constexpr wchar_t kLeftJoint = 0x255F, kLine = 0x2500, kRightJoint = 0x2562;
  PrintCentred(-1, L" Mount Points ");
  Print(1, 0, MountRow({L"Device", L"Mount Point", L"File System"}, columns));
  Print(-1, 1,
        Westring(&kLeftJoint, 1) + Westring::Replicate(kLine, InnerWidth()) + Westring(&kRightJoint, 1));
  PrintCentred(InnerHeight(), L" Alt-E=Eject ");
  Add(new CMountPointListBox(*this, 1, 2, ListRows(mounts), mounts, columns, row));
  AddExitKey(kAltE);
}

namespace {

// One visit to the dialog, with what it leaves to be done when the box is gone:
// the panels are read only then, since reading paints.
class MountVisit {
 public:
  MountVisit(TPanel& visitor, bool filterless) : panel(visitor), all(filterless) {}

  void Run() {
    CMountPointList mounts;
    while (Read(mounts) && ShowOnce(mounts)) continue;
    ReadMovedPanels();
  }

 private:
  bool Read(CMountPointList& mounts) const {
    if (!TheMountHooks.readMounts(mounts, all)) ShowPathError(errno, kMountTable);
    return mounts.Count() > 0;
  }

  // True if the list is out of date and to be shown anew.
  bool ShowOnce(const CMountPointList& mounts) {
    CMountPointDlg dialog(mounts, &row);
    for (;;) {
      const int key = dialog.Run();
      const TMountPoint& mount = *mounts.Peek(row);
      if (key == CMountPointDlg::kAltE) {
        if (Eject(mount.mountPoint)) return true;
      } else if (key != kEnter || Choose(mount.mountPoint)) {
        return false;
      }
    }
  }

  bool Choose(const Westring& mountPoint) {
    if (ChangeDirectory(panel, mountPoint)) {
      moved[panel.Side()] = true;
      return true;
    }
    Prompt(L"Invalid directory", mountPoint, kPromptOk);
    return false;
  }

  bool Eject(const Westring& mountPoint) {
    // A process that stands on the medium keeps it busy.
    const Westring before = CurrentDirectory();
    const bool standsThere =
        IsPathInside(panel.path, mountPoint.Text()) || IsPathInside(before.Text(), mountPoint.Text());
    if (standsThere) ChangeProcessDirectory(Above(mountPoint));

    Westring error;
    const EjectResult result = EjectBehindBox(mountPoint, error);
    if (result == EjectResult::Ejected) {
      LeaveMount(mountPoint);
      return true;
    }
    if (standsThere) ChangeProcessDirectory(before);
    if (result == EjectResult::TimedOut)
      Prompt(L"eject failed", L"", kPromptOk);
    else
      ShowEjectError(error);
    return false;
  }

  static EjectResult EjectBehindBox(const Westring& mountPoint, Westring& error) {
    constexpr wchar_t kText[] = L"Ejecting...";
    Dialog box(-1, -3, Length(kText) + kMargin, 3, Options::Colours[kColourMessages]);
    box.PrintCentred(0, kText);
    return TheMountHooks.eject(mountPoint, kEjectPatienceMs, error);
  }

  // A box shortens its detail like a path, and the reason stands at the end of
  // what the desktop tells: a long one becomes part of the text, which is broken
  // into lines.
  static void ShowEjectError(const Westring& error) {
    constexpr wchar_t kText[] = L"Error ejecting";
    if (Length(error) < ScreenColumns - 8 && Find(error, L'\n') < 0)
      Prompt(kText, error, kPromptOk);
    else
      Prompt(Westring(kText) + L"\n" + error, L"", kPromptOk);
  }

  static Westring Above(const Westring& mountPoint) {
    Westring above = L"/";
    NormalisePath(L"..", mountPoint, above);
    return above;
  }

  // The process keeps its directory where the new one can't be entered.
  static void ChangeProcessDirectory(const Westring& directory) {
    [[maybe_unused]] const int error = chdir(ToUtf8(directory).Text());
  }

  void LeaveMount(const Westring& mountPoint) {
    for (int side = 0; side < 2; ++side) {
      if (!IsPathInside(Panels[side].path, mountPoint.Text())) continue;
      CopyText(Panels[side].path, Above(mountPoint).Text());
      moved[side] = true;
    }
  }

  void ReadMovedPanels() const {
    for (int side = 0; side < 2; ++side)
      if (moved[side]) Enter(side, L"", false, -1, 0);
    // The process stands in the panel read last.
    if (moved[0] || moved[1]) FollowPath(ActivePanel());
  }

  TPanel& panel;
  const bool all;
  int32_t row = 0;
  bool moved[2] = {false, false};  // panels whose path is no longer that of their listing
};

}  // namespace

void MountDialog(TPanel& panel, bool filterless) { MountVisit(panel, filterless).Run(); }
