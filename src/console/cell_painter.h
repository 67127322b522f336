// Draws rows of cells in a font, each character in its own cell whatever the
// font makes of it.
#pragma once

#include <gtkmm/widget.h>

#include <array>
#include <memory>
#include <unordered_map>
#include <vector>

#include "console/cell.h"
#include "console/row_text.h"
#include "foundation/strings.h"

// Lets smart pointers hold the toolkit's objects.
struct ObjectRelease {
  void operator()(void* object) const { g_object_unref(object); }
};
struct AttributesRelease {
  void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
};
struct GlyphsRelease {
  void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
};
using GlyphsPtr = std::unique_ptr<PangoGlyphString, GlyphsRelease>;
using LayoutPtr = std::unique_ptr<PangoLayout, ObjectRelease>;
using AttributesPtr = std::unique_ptr<PangoAttrList, AttributesRelease>;

class CellPainter {
 public:
  // Takes the font that comes nearest to the family. All of this runs under
  // the toolkit's lock.
  void SetFont(Gtk::Widget& widget, const Estring& family, int points);
  int CellWidth() const { return cellWidth; }    // pixels
  int CellHeight() const { return cellHeight; }  // pixels

  // Draws count cells; (x, y) is the top left pixel of the first.
  void DrawRow(cairo_t* cairo, const Cell* cells, int count, int x, int y);
  // A cursor of percent of the cell's height, in the colour that suits the
  // attribute under it.
  void DrawCursor(cairo_t* cairo, int x, int y, int percent, uint8_t attribute) const;

 private:
  // How a character fits into a cell.
  enum class Fit : uint8_t {
    Unknown,
    Regular,  // the main font draws it as one glyph of the cell's width
    Odd,      // from another font, of another width, joined or right to left
    Missing,  // no font has it
  };
  // A character made to fit into its cell.
  struct OddGlyph {
    LayoutPtr layout;
    double scaleX = 1, scaleY = 1;
    double baseline = 0;     // pixels below the cell's top
    bool overhangs = false;  // its picture leaves the cell to a side
  };
  static constexpr int kPageSize = 256, kPages = 0x110000 / kPageSize;
  struct Shape {
    Fit fit = Fit::Unknown;
    PangoGlyphInfo glyph{};  // of a regular character
  };
  using ShapePage = std::array<Shape, kPageSize>;

  void MeasureCell();
  void MeasureAdvance();
  void MeasureLines();
  const Shape& ShapeOf(int32_t character);
  Shape ProbeShape(int32_t character);
  Fit FitOf(int32_t character) { return ShapeOf(character).fit; }
  bool IsRegular(int32_t character);
  int32_t Drawable(int32_t character);

  // Lays text out on the common layout; its one run, or null if there are more.
  PangoLayoutRun* LayOut(const char* utf8, int bytes, PangoAttrList* attributes);
  int AdvanceOf(char character);

  void DrawBackgrounds(cairo_t* cairo, int x, int y) const;
  void DrawStretch(cairo_t* cairo, const Stretch& stretch, int x, int y);
  void DrawGlyphs(cairo_t* cairo, const Cell* cells, int count, int x, int y);
  PangoGlyphInfo GlyphOf(int32_t character);
  void DrawLayout(cairo_t* cairo, const Stretch& stretch, int x, int y);
  void DrawAlone(cairo_t* cairo, const Cell& cell, int x, int y);
  bool IsAligned(int cells) const;
  const OddGlyph& GlyphOfOdd(int32_t character);

  std::unique_ptr<PangoContext, ObjectRelease> context;
  LayoutPtr layout;  // of the text in work
  std::unique_ptr<PangoFont, ObjectRelease> mainFont;
  AttributesPtr plainShaping;   // each character by itself
  AttributesPtr spacedShaping;  // the same, and glyphs set at the cell's width
  int cellWidth = 0, cellHeight = 0;
  int baseline = 0;                 // pixels below the cell's top
  int advance = 0;                  // of a regular glyph, in Pango units
  bool stretchesLines = false;      // the font's vertical line is shorter than a cell
  int lineTop = 0, lineHeight = 1;  // of that line, in pixels from the baseline

  std::vector<std::unique_ptr<ShapePage>> shapes;  // by character / kPageSize
  std::unordered_map<int32_t, OddGlyph> oddGlyphs;

  std::vector<Cell> shown;  // the row in work
  std::vector<Stretch> stretches;
  RowText rowText;
  GlyphsPtr glyphs;  // of the run in work
};
