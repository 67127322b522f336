// The lines and paths of tree rows.
#include "panels/tree_row.h"

#include "foundation/collections.h"
#include "foundation/paths.h"

namespace {

constexpr wchar_t kLineDown = 0x2502, kBranch = 0x251C, kLastBranch = 0x2514, kLineAcross = 0x2500;

// Bit k + 1 of the size tells whether the level's line goes on below this row.
bool GoesOn(const entry& e, int level) {
  constexpr int kMaskBits = 64;
  return level + 1 < kMaskBits && static_cast<uint64_t>(e.size) >> (level + 1) & 1;
}

}  // namespace

void AppendTreeLines(CellString& row, const entry& e) {
  const int ownLevel = TreeDepth(e) - 1;
  for (int level = 0; level < ownLevel; ++level) {
    row.Append(GoesOn(e, level) ? kLineDown : L' ');
    row.Append(L' ');
  }
  if (ownLevel < 0) return;
  row.Append(GoesOn(e, ownLevel) ? kBranch : kLastBranch);
  row.Append(kLineAcross);
}

Westring TreeRowPath(const TPanel& panel, int index) {
  if (index < 0 || index >= panel.count) return Westring();
  const entry* at = panel.entries[index];
  Westring path = at->name;
  for (int i = index; i >= 0 && TreeDepth(*at) > 0; --i) {
    if (TreeDepth(*panel.entries[i]) >= TreeDepth(*at)) continue;
    at = panel.entries[i];
    path = JoinPath(at->name, path);
  }
  return path;
}
