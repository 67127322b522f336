// Tagging one entry, all, and those of the last operation.
#include "panels/tags.h"

#include "config/values/options.h"
#include "panels/draw_panel.h"

namespace {

bool TakesTags(const TPanel& panel) { return panel.IsFiles() && !panel.IsTree(); }

void Flip(TPanel& panel, entry& e) {
  e.tagged = !e.tagged;
  panel.taggedCount += e.tagged ? 1 : -1;
  panel.taggedBytes += static_cast<uint64_t>(e.tagged ? e.size : -e.size);
}

}  // namespace

void Tag(TPanel& panel, int index, int mode) {
  if (!TakesTags(panel) || index < 0 || index >= panel.count) return;
  entry& e = *panel.entries[index];
  const bool tag = mode == 0 ? !e.tagged : mode > 0;
  if (IsDotDot(e) || tag == (e.tagged != 0)) return;
  Flip(panel, e);
  DrawEntry(panel, index);
}

void TagAll(TPanel& panel, int mode, bool shift) {
  if (!panel.visible) return;
  const bool clears = mode < 0;
  const bool takesDirectories = clears || Options::TagDirs != shift;
  for (int i = 0; i < panel.count; ++i) {
    const entry& e = *panel.entries[i];
    if (e.IsDirectory() && !takesDirectories) continue;
    if (!clears && IsSystemFile(e.name)) continue;
    Tag(panel, i, mode);
  }
}

void RestoreSelection(TPanel& panel) {
  if (!TakesTags(panel)) return;
  for (int i = 0; i < panel.count; ++i) {
    entry& e = *panel.entries[i];
    if ((e.tagged != 0) != (e.processed != 0)) Flip(panel, e);
  }
  DrawPanel(panel);
}
