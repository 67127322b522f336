// What the line under a panel's list tells: the first of its cases that holds.
#include "panels/status_line.h"

#include <algorithm>

#include "config/values/colours.h"
#include "dialogs/number_format.h"
#include "foundation/paths.h"
#include "panels/entry_row.h"
#include "panels/entry_source.h"
#include "panels/name_field.h"
#include "panels/tree_row.h"

namespace {

uint8_t PanelColour() { return Options::Colours[kColourPanel]; }
uint8_t TaggedColour() { return Options::Colours[kColourTagged]; }

CellString ErrorLine(TPanel& panel, int) {
  const bool notReady = panel.readError == kDriveNotReady;
  return CellString(notReady ? L" No disk in drive" : L" Error reading drive", TaggedColour());
}

// The end of a long text stays in view, for that is where one types.
CellString SearchLine(TPanel& panel, int width) {
  const Westring label = L"Search: ", text = panel.quickSearch;
  const int room = std::max(width - Length(label), 0);
  return CellString((label + Right(text, room)).Text(), TaggedColour());
}

CellString TaggedLine(TPanel& panel, int width) {
  const Westring tail = Westring(
      Estring::Format(" bytes in %d selected file%s", panel.taggedCount, panel.taggedCount > 1 ? "s" : ""));
  const Westring text = FormatSize(panel.taggedBytes, std::max(width - Length(tail), 0)) + tail;
  CellString line(width + 1);
  line.attribute = TaggedColour();
  line.SetLength(std::max((width - Length(text)) / 2, 0));
  line.Append(text.Text(), line.attribute);
  return line;
}

CellString EmptyLine(TPanel&, int) { return CellString(L"Directory is empty", PanelColour()); }

CellString NameLine(TPanel& panel, int width) {
  const entry* const e = panel.Current();
  if (!e) return CellString(L"", PanelColour());
  CellString line = NameWithTarget(panel, *e, PanelColour(), TaggedColour());
  if (line.Length() > width && width > 0) line[width - 1].character = kCutMark;
  return line;
}

CellString TreeLine(TPanel& panel, int width) {
  return CellString(ShortenPath(TreeRowPath(panel, panel.CurrentIndex()), width).Text(), PanelColour());
}

CellString EntryLine(TPanel& panel, int) {
  return BuildEntryRow(panel, panel.CurrentIndex(), kStyleFull, PanelColour(), nullptr);
}

struct StatusCase {
  bool (*holds)(const TPanel& panel);
  CellString (*build)(TPanel& panel, int width);
};

// In the order of their weight; the last one always holds.
constexpr StatusCase kCases[] = {
    {[](const TPanel& p) { return p.readError != 0; }, ErrorLine},
    {[](const TPanel& p) { return p.quickSearch[0] != 0; }, SearchLine},
    {[](const TPanel& p) { return p.taggedCount != 0; }, TaggedLine},
    {[](const TPanel& p) { return p.count == 0; }, EmptyLine},
    {[](const TPanel& p) { return p.style == kStyleFull; }, NameLine},
    {[](const TPanel& p) { return p.IsTree(); }, TreeLine},
    {[](const TPanel&) { return true; }, EntryLine},
};

}  // namespace

CellString BuildStatusLine(TPanel& panel, int width) {
  const StatusCase* which = kCases;
  while (!which->holds(panel)) ++which;
  CellString line = which->build(panel, width);
  FitCells(line, width);
  return line;
}
