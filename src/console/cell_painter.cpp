// The glyphs of a row are put in their columns together: that is what makes
// drawing fast. Whatever would leave its column is drawn by itself and fitted
// into its cell.
#include "console/cell_painter.h"

#include <algorithm>

#include "console/palette.h"

namespace {

constexpr int kMeasuredGlyph = 65;  // of the font, by its number
constexpr size_t kMostOddGlyphs = 1024;

// No ligatures, no kerning, no forms that depend on the neighbours.
constexpr const char* kPlainFeatures = "liga=0, clig=0, dlig=0, hlig=0, calt=0, kern=0";

// Scripts of which a letter looks the same wherever it stands.
constexpr GUnicodeScript kSimpleScripts[] = {
    G_UNICODE_SCRIPT_COMMON, G_UNICODE_SCRIPT_LATIN, G_UNICODE_SCRIPT_GREEK,   G_UNICODE_SCRIPT_CYRILLIC,
    G_UNICODE_SCRIPT_ARMENIAN, G_UNICODE_SCRIPT_GEORGIAN, G_UNICODE_SCRIPT_BRAILLE,
    G_UNICODE_SCRIPT_HAN, G_UNICODE_SCRIPT_HIRAGANA, G_UNICODE_SCRIPT_KATAKANA, G_UNICODE_SCRIPT_BOPOMOFO,
};

bool StandsAlone(int32_t character) {
  const auto code = static_cast<gunichar>(character);
  if (g_unichar_ismark(code) || g_unichar_iszerowidth(code)) return false;
  const auto script = g_unichar_get_script(code);
  return std::find(std::begin(kSimpleScripts), std::end(kSimpleScripts), script) != std::end(kSimpleScripts);
}

constexpr int32_t kVerticalLine = 0x2502;

bool IsLineDrawing(int32_t character) { return character >= 0x2500 && character <= 0x259F; }

std::string ToBytes(int32_t character) {
  char bytes[6];
  return std::string(bytes, g_unichar_to_utf8(static_cast<gunichar>(character), bytes));
}

void SetColour(cairo_t* cairo, int index) {
  const PaletteColour colour = PaletteEntry(index);
  cairo_set_source_rgb(cairo, colour.red / 65535.0, colour.green / 65535.0, colour.blue / 65535.0);
}

void FillRectangle(cairo_t* cairo, int x, int y, int width, int height) {
  cairo_rectangle(cairo, x, y, width, height);
  cairo_fill(cairo);
}

// Puts an attribute over bytes of the text; the list owns it then.
void AddAttribute(PangoAttrList* list, PangoAttribute* attribute, int firstByte, int endByte) {
  attribute->start_index = static_cast<guint>(firstByte);
  attribute->end_index = static_cast<guint>(endByte);
  pango_attr_list_insert(list, attribute);
}

PangoAttribute* ForegroundAttribute(uint8_t attribute) {
  const PaletteColour colour = PaletteEntry(Foreground(attribute));
  return pango_attr_foreground_new(colour.red, colour.green, colour.blue);
}

LayoutPtr MakeLayout(PangoContext* context) {
  LayoutPtr layout(pango_layout_new(context));
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  pango_layout_set_auto_dir(layout.get(), FALSE);
  return layout;
}

}  // namespace

// ---- the font ----------------------------------------------------------------

void CellPainter::SetFont(Gtk::Widget& widget, const Estring& family, int points) {
  shapes.clear();
  shapes.resize(kPages);
  oddGlyphs.clear();
  context.reset(gtk_widget_create_pango_context(widget.gobj()));
  PangoFontDescription* font = pango_font_description_new();
  // A family that is not there is better replaced by one of a single width.
  pango_font_description_set_family(font, (family + ",monospace").Text());
  pango_font_description_set_size(font, points * PANGO_SCALE);
  pango_context_set_font_description(context.get(), font);
  pango_context_set_base_dir(context.get(), PANGO_DIRECTION_LTR);
  mainFont.reset(pango_context_load_font(context.get(), font));
  pango_font_description_free(font);
  layout = MakeLayout(context.get());
  glyphs.reset(pango_glyph_string_new());
  MeasureCell();
  MeasureAdvance();
  MeasureLines();
}

void CellPainter::MeasureCell() {
  PangoRectangle extents{};
  pango_font_get_glyph_extents(mainFont.get(), kMeasuredGlyph, nullptr, &extents);
  cellWidth = std::max(extents.width / PANGO_SCALE, 1);
  cellHeight = std::max(extents.height / PANGO_SCALE, 1);
  baseline = PANGO_PIXELS(-extents.y);
}

// In a font with one width for all, a width that is no whole number of pixels
// is stretched to the cell's. In any other font only the glyphs that happen to
// be as wide as a cell are regular.
void CellPainter::MeasureAdvance() {
  plainShaping.reset(pango_attr_list_new());
  AddAttribute(plainShaping.get(), pango_attr_font_features_new(kPlainFeatures), 0, G_MAXINT);
  spacedShaping.reset(pango_attr_list_copy(plainShaping.get()));
  const int cell = cellWidth * PANGO_SCALE;
  advance = AdvanceOf('0');
  if (PangoLayoutRun* run = LayOut("0", 1, plainShaping.get())) {
    mainFont.reset(PANGO_FONT(g_object_ref(run->item->analysis.font)));
  }
  const bool oneWidth = AdvanceOf('i') == advance && AdvanceOf('M') == advance && advance > 0;
  if (!oneWidth) advance = cell;
  if (advance != cell) {
    AddAttribute(spacedShaping.get(), pango_attr_letter_spacing_new(cell - advance), 0, G_MAXINT);
  }
}

// Frames must join from row to row.
void CellPainter::MeasureLines() {
  const std::string line = ToBytes(kVerticalLine);
  LayOut(line.data(), static_cast<int>(line.size()), plainShaping.get());
  PangoRectangle ink{};
  pango_layout_line_get_pixel_extents(pango_layout_get_line_readonly(layout.get(), 0), &ink, nullptr);
  lineTop = ink.y;
  lineHeight = std::max(ink.height, 1);
  stretchesLines = lineTop > -baseline || lineTop + lineHeight < cellHeight - baseline;
}

PangoLayoutRun* CellPainter::LayOut(const char* utf8, int bytes, PangoAttrList* attributes) {
  pango_layout_set_attributes(layout.get(), attributes);
  pango_layout_set_text(layout.get(), utf8, bytes);
  PangoLayoutLine* line = pango_layout_get_line_readonly(layout.get(), 0);
  const bool oneRun = line->runs != nullptr && line->runs->next == nullptr;
  return oneRun ? static_cast<PangoLayoutRun*>(line->runs->data) : nullptr;
}

int CellPainter::AdvanceOf(char character) {
  PangoLayoutRun* run = LayOut(&character, 1, plainShaping.get());
  return run != nullptr ? pango_glyph_string_get_width(run->glyphs) : 0;
}

const CellPainter::Shape& CellPainter::ShapeOf(int32_t character) {
  std::unique_ptr<ShapePage>& page = shapes[character / kPageSize];
  if (page == nullptr) page = std::make_unique<ShapePage>();
  Shape& shape = (*page)[character % kPageSize];
  if (shape.fit == Fit::Unknown) shape = ProbeShape(character);
  return shape;
}

CellPainter::Shape CellPainter::ProbeShape(int32_t character) {
  const std::string utf8 = ToBytes(character);
  PangoLayoutRun* run = LayOut(utf8.data(), static_cast<int>(utf8.size()), plainShaping.get());
  if (pango_layout_get_unknown_glyphs_count(layout.get()) > 0) return {Fit::Missing, {}};
  const bool regular = run != nullptr && run->item->analysis.font == mainFont.get() &&
                       run->item->analysis.level % 2 == 0 && run->glyphs->num_glyphs == 1 &&
                       run->glyphs->glyphs[0].geometry.width == advance && StandsAlone(character);
  if (!regular) return {Fit::Odd, {}};
  return {Fit::Regular, run->glyphs->glyphs[0]};
}

bool CellPainter::IsRegular(int32_t character) {
  if (stretchesLines && IsLineDrawing(character)) return false;
  return FitOf(character) == Fit::Regular;
}

// ---- drawing -----------------------------------------------------------------

int32_t CellPainter::Drawable(int32_t character) {
  character = ShownCharacter(character);
  if (character == ' ' || FitOf(character) != Fit::Missing) return character;
  return FitOf(kReplacement) != Fit::Missing ? kReplacement : '?';
}

void CellPainter::DrawRow(cairo_t* cairo, const Cell* cells, int count, int x, int y) {
  shown.assign(cells, cells + count);
  for (Cell& cell : shown) cell.character = Drawable(cell.character);
  cairo_save(cairo);
  cairo_rectangle(cairo, x, y, count * cellWidth, cellHeight);
  cairo_clip(cairo);
  DrawBackgrounds(cairo, x, y);
  SplitRow(shown.data(), count, [this](int32_t character) { return IsRegular(character); }, stretches);
  for (const Stretch& stretch : stretches) {
    const int left = x + stretch.first * cellWidth;
    if (stretch.isRegular) {
      DrawStretch(cairo, stretch, left, y);
    } else {
      DrawAlone(cairo, shown[stretch.first], left, y);
    }
  }
  cairo_restore(cairo);
}

void CellPainter::DrawBackgrounds(cairo_t* cairo, int x, int y) const {
  const int count = static_cast<int>(shown.size());
  for (int first = 0, end = 0; first < count; first = end) {
    const uint8_t background = Background(shown[first].attribute);
    while (end < count && Background(shown[end].attribute) == background) ++end;
    SetColour(cairo, background);
    FillRectangle(cairo, x + first * cellWidth, y, (end - first) * cellWidth, cellHeight);
  }
}

// Where glyphs are as wide as cells their places are known, and nothing has to
// be laid out.
void CellPainter::DrawStretch(cairo_t* cairo, const Stretch& stretch, int x, int y) {
  if (advance == cellWidth * PANGO_SCALE)
    DrawGlyphs(cairo, &shown[stretch.first], stretch.end - stretch.first, x, y);
  else
    DrawLayout(cairo, stretch, x, y);
}

// One call for each run of one colour; blanks are of any.
void CellPainter::DrawGlyphs(cairo_t* cairo, const Cell* cells, int count, int x, int y) {
  for (int first = 0, end = 0; first < count; first = end) {
    const uint8_t colour = Foreground(cells[first].attribute);
    const auto isOfRun = [&](const Cell& cell) {
      return cell.character == ' ' || Foreground(cell.attribute) == colour;
    };
    while (end < count && isOfRun(cells[end])) ++end;
    pango_glyph_string_set_size(glyphs.get(), end - first);
    for (int i = first; i < end; ++i) glyphs->glyphs[i - first] = GlyphOf(cells[i].character);
    SetColour(cairo, colour);
    cairo_move_to(cairo, x + first * cellWidth, y + baseline);
    pango_cairo_show_glyph_string(cairo, mainFont.get(), glyphs.get());
  }
}

// Blanks are not asked for their shape, and may have none of their own.
PangoGlyphInfo CellPainter::GlyphOf(int32_t character) {
  if (character != ' ') return ShapeOf(character).glyph;
  PangoGlyphInfo blank{};
  blank.glyph = PANGO_GLYPH_EMPTY;
  blank.geometry.width = advance;
  return blank;
}

void CellPainter::DrawLayout(cairo_t* cairo, const Stretch& stretch, int x, int y) {
  const int count = stretch.end - stretch.first;
  BuildRowText(&shown[stretch.first], count, rowText);
  const AttributesPtr attributes(pango_attr_list_copy(spacedShaping.get()));
  for (const AttributeRun& run : rowText.runs) {
    AddAttribute(attributes.get(), ForegroundAttribute(run.attribute), run.firstByte, run.endByte);
  }
  LayOut(rowText.utf8.data(), static_cast<int>(rowText.utf8.size()), attributes.get());
  if (IsAligned(count)) {
    cairo_move_to(cairo, x, y + baseline);
    pango_cairo_show_layout_line(cairo, pango_layout_get_line_readonly(layout.get(), 0));
    return;
  }
  for (int i = 0; i < count; ++i) DrawAlone(cairo, shown[stretch.first + i], x + i * cellWidth, y);
}

// True if the laid out text has one glyph for each cell, in its column.
bool CellPainter::IsAligned(int cells) const {
  int glyphs = 0, position = 0;
  const PangoLayoutLine* line = pango_layout_get_line_readonly(layout.get(), 0);
  for (const GSList* node = line->runs; node != nullptr; node = node->next) {
    const PangoGlyphString* string = static_cast<PangoLayoutRun*>(node->data)->glyphs;
    for (int i = 0; i < string->num_glyphs; ++i, ++glyphs) {
      if (position != glyphs * cellWidth * PANGO_SCALE) return false;
      position += string->glyphs[i].geometry.width;
    }
  }
  return glyphs == cells;
}

void CellPainter::DrawAlone(cairo_t* cairo, const Cell& cell, int x, int y) {
  if (cell.character == ' ') return;
  const OddGlyph& odd = GlyphOfOdd(cell.character);
  cairo_save(cairo);
  if (odd.overhangs) {
    cairo_rectangle(cairo, x, y, cellWidth, cellHeight);
    cairo_clip(cairo);
  }
  cairo_translate(cairo, x, y + odd.baseline);
  cairo_scale(cairo, odd.scaleX, odd.scaleY);
  SetColour(cairo, Foreground(cell.attribute));
  cairo_move_to(cairo, 0, 0);
  pango_cairo_show_layout_line(cairo, pango_layout_get_line_readonly(odd.layout.get(), 0));
  cairo_restore(cairo);
}

// Wider characters are squeezed, so that all of them can be seen, and lines are
// drawn over the whole cell, so that they join.
const CellPainter::OddGlyph& CellPainter::GlyphOfOdd(int32_t character) {
  if (oddGlyphs.size() >= kMostOddGlyphs) oddGlyphs.clear();
  OddGlyph& odd = oddGlyphs[character];
  if (odd.layout != nullptr) return odd;
  const std::string utf8 = ToBytes(character);
  odd.layout = MakeLayout(context.get());
  pango_layout_set_attributes(odd.layout.get(), plainShaping.get());
  pango_layout_set_text(odd.layout.get(), utf8.data(), static_cast<int>(utf8.size()));
  odd.baseline = baseline;
  PangoRectangle ink{}, logical{};
  pango_layout_get_pixel_extents(odd.layout.get(), &ink, &logical);
  const bool isLine = IsLineDrawing(character);
  if (logical.width > cellWidth || (isLine && logical.width > 0)) {
    odd.scaleX = static_cast<double>(cellWidth) / logical.width;
  }
  if (isLine && stretchesLines) {
    odd.scaleY = static_cast<double>(cellHeight) / lineHeight;
    odd.baseline = -lineTop * odd.scaleY;
  }
  odd.overhangs = ink.x < 0 || (ink.x + ink.width) * odd.scaleX > cellWidth;
  return odd;
}

void CellPainter::DrawCursor(cairo_t* cairo, int x, int y, int percent, uint8_t attribute) const {
  const int height = percent * cellHeight / 100;
  if (HasWhiteCursor(attribute)) {
    cairo_set_source_rgb(cairo, 1, 1, 1);
  } else {
    cairo_set_source_rgb(cairo, 0, 0, 0);
  }
  FillRectangle(cairo, x, y + cellHeight - height, cellWidth, height);
}
