// Tagging one entry.
#include "panels/tags.h"

#include "panels/draw_panel.h"

void Tag(TPanel& panel, int index, int mode) {
  if (!panel.IsFiles() || panel.IsTree() || index < 0 || index >= panel.count) return;
  entry& e = *panel.entries[index];
  const bool tag = mode == 0 ? !e.tagged : mode > 0;
  if (IsDotDot(e) || tag == (e.tagged != 0)) return;

  e.tagged = tag;
  panel.taggedCount += tag ? 1 : -1;
  panel.taggedBytes += static_cast<uint64_t>(tag ? e.size : -e.size);
  DrawEntry(panel, index);
}
