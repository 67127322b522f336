// The list of mounts in columns.
#include "panels/mount_list_box.h"

#include <algorithm>

#include "foundation/paths.h"

namespace {

constexpr int kLeastDevice = 10, kLeastMountPoint = 20, kLeastFileSystem = 11;

struct Column {
  int least, width;
  int Spare() const { return width - least; }
};

}  // namespace

MountColumns FitMountColumns(const CMountPointList& list, int room) {
  Column columns[] = {{kLeastDevice, kLeastDevice},
                      {kLeastMountPoint, kLeastMountPoint},
                      {kLeastFileSystem, kLeastFileSystem}};
  auto& [device, mountPoint, fileSystem] = columns;
  for (int i = 0; i < list.Count(); ++i) {
    const TMountPoint& mount = *list.Peek(i);
    device.width = std::max(device.width, Length(mount.device));
    mountPoint.width = std::max(mountPoint.width, Length(mount.mountPoint));
    fileSystem.width = std::max(fileSystem.width, Length(mount.fileSystem));
  }
  const MountColumns wanted{device.width, mountPoint.width, fileSystem.width};
  for (int excess = wanted.Width() - room; excess > 0; --excess) {
    Column& widest = *std::ranges::max_element(columns, {}, &Column::Spare);
    if (widest.width > 0) --widest.width;
  }
  return {device.width, mountPoint.width, fileSystem.width};
}

Westring MountRow(const TMountPoint& mount, const MountColumns& columns) {
  const auto cell = [](const Westring& text, int width) { return LJust(ShortenPath(text, width), width); };
  return cell(mount.device, columns.device) + L" " + cell(mount.mountPoint, columns.mountPoint) + L" " +
         cell(mount.fileSystem, columns.fileSystem);
}

CMountPointListBox::CMountPointListBox(Dialog& dialog, int x, int y, int height, const CMountPointList& list,
                                       const MountColumns& columns, int32_t* selection)
    : ListBoxBase(dialog, dialog.Count(), x, y, true, columns.Width(), height, list.Count(), selection,
                  kListDefault),
      list(list),
      columns(columns) {}

Westring CMountPointListBox::GetItemText(int index) { return MountRow(*list.Peek(index), columns); }
