// The rows of a panel's list, each field after the other by its style's table.
#include "panels/entry_row.h"

#include <algorithm>

#include "config/values/associations.h"
#include "config/values/colours.h"
#include "panels/columns.h"
#include "panels/expression.h"
#include "panels/name_field.h"
#include "panels/tree_row.h"

namespace {

constexpr wchar_t kSeparator = 0x2502;

Westring DateField(const entry& e, int width) { return DateText(e.modified, width); }
Westring TimeField(const entry& e, int width) { return TimeText(e.modified, width); }
Westring PermissionField(const entry& e, int width) {
  return LJust(PermissionText(e.mode), std::max(width, 0));
}

// What a column shows; null where it is the name. As many rows and columns as
// ColumnTable has.
using FieldText = Westring (*)(const entry& e, int width);
constexpr FieldText kName = nullptr;
constexpr FieldText kFields[kColumnStyles][kMaxColumns] = {
    /* brief */ {kName, kName, kName},
    /* full */ {kName, SizeText, DateField, TimeField},
    /* wide */ {SizeText, kName},
    /* briefwide */ {kName, kName},
    /* unix */ {kName, SizeText, PermissionField, OwnerText, GroupText},
};

// One row under construction.
struct RowStyle {
  TPanel& panel;
  const entry& e;
  uint8_t colour;
  int32_t* scroll;
};

Cell SeparatorIn(uint8_t colour) {
  const int foreground = Foreground(Options::Colours[kColourPanel]);
  return {kSeparator, MakeAttribute(foreground, Background(colour))};
}

CellString EmptyRow(uint8_t colour) {
  CellString row(InnerColumns() + 1);  // and the end that printing appends
  row.attribute = colour;
  return row;
}

// The name gives up what a field takes beyond its column.
CellString BuildColumnsRow(const RowStyle& in, int style) {
  const int columns = ColumnCount(style);
  Westring texts[kMaxColumns];
  int nameWidth = NameWidth(style);
  for (int column = 0; column < columns; ++column) {
    if (kFields[style][column] == kName) continue;
    const int width = ColumnTable[style][column].width;
    texts[column] = kFields[style][column](in.e, width);
    nameWidth -= Length(texts[column]) - width;
  }
  CellString row = EmptyRow(in.colour);
  for (int column = 0; column < columns; ++column) {
    if (column > 0) row.Append(SeparatorIn(in.colour));
    if (kFields[style][column] == kName)
      row.Append(BuildNameField(in.panel, in.e, nameWidth, in.colour, in.scroll));
    else
      row.Append(texts[column].Text(), in.colour);
  }
  FitCells(row, InnerColumns());
  return row;
}

CellString BuildTreeRow(const RowStyle& in, int style) {
  const int width = style == kStyleTree ? InnerColumns() : kTreeDialogWidth;
  CellString row = EmptyRow(in.colour);
  AppendTreeLines(row, in.e);
  row.Append(BuildNameField(in.panel, in.e, width - row.Length(), in.colour, in.scroll));
  FitCells(row, width);
  return row;
}

CellString BuildFieldRow(const RowStyle& in, int style, int index) {
  const int column = SlotColumn(style, PanelRows, index - in.panel.topIndex);
  return BuildNameField(in.panel, in.e, NameWidth(style, column), in.colour, in.scroll);
}

bool ShowsFieldsOnly(int style) { return NameColumns(style) > 1; }

// Blanks and the separators of a style.
CellString BuildBlankRow(int style) {
  const uint8_t colour = Options::Colours[kColourPanel];
  CellString row = EmptyRow(colour);
  FitCells(row, InnerColumns());
  int borders[kMaxColumns];
  const int count = ColumnBorders(style, borders);
  for (int i = 0; i < count; ++i) row[borders[i]] = SeparatorIn(colour);
  return row;
}

CellString BlankFor(const TPanel& panel, int index, int style) {
  if (!ShowsFieldsOnly(style)) return BuildBlankRow(style);
  CellString field = EmptyRow(Options::Colours[kColourPanel]);
  FitCells(field, NameWidth(style, SlotColumn(style, PanelRows, index - panel.topIndex)));
  return field;
}

// Copies as much of the field into the row as there is room for from x on.
void Overlay(CellString& row, int x, const CellString& field) {
  const int count = std::min(field.Length(), row.Length() - x);
  if (count > 0) std::copy_n(field.Cells(), count, row.Cells() + x);
}

}  // namespace

CellString BuildEntryRow(TPanel& panel, int index, int style, int forcedColour, int32_t* scroll) {
  if (index < 0 || index >= panel.count) return BlankFor(panel, index, style);
  const entry& e = *panel.entries[index];
  const uint8_t colour =
      forcedColour == kNoForcedColour ? EntryColour(e) : static_cast<uint8_t>(forcedColour);
  const RowStyle in = {panel, e, colour, scroll};
  if (ShowsFieldsOnly(style)) return BuildFieldRow(in, style, index);
  return ColumnCount(style) > 0 ? BuildColumnsRow(in, style) : BuildTreeRow(in, style);
}

CellString BuildListRow(TPanel& panel, int y) {
  const int first = panel.topIndex + y;
  if (!ShowsFieldsOnly(panel.style))
    return BuildEntryRow(panel, first, panel.style, kNoForcedColour, nullptr);
  CellString row = BuildBlankRow(panel.style);
  for (int column = 0; column < NameColumns(panel.style); ++column) {
    const int slot = column * PanelRows + y;
    if (panel.topIndex + slot >= panel.count) break;
    int x, slotRow;
    SlotPosition(panel.style, PanelRows, slot, x, slotRow);
    Overlay(row, x, BuildEntryRow(panel, panel.topIndex + slot, panel.style, kNoForcedColour, nullptr));
  }
  return row;
}

uint8_t EntryColour(const entry& e) {
  if (e.tagged) return Options::Colours[kColourTagged];
  const bool directory = e.IsDirectory();
  const uint8_t colour = Options::Colours[directory ? kColourDirectories : kColourPanel];
  AssociationSet& rules = directory ? DirectoryColours : FileColours;
  Westring text;
  if (rules.Count() == 0 || !TestRuleList(rules, e, text)) return colour;
  return ApplyColourText(colour, text.Text());
}
