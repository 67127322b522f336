// A window's life on the screen: what it covers, its frame and its shadow.
#include "dialogs/win.h"

#include <algorithm>

#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/win_geometry.h"

namespace {

constexpr int32_t kTopLeft = 0x2554, kHorizontal = 0x2550, kTopRight = 0x2557;
constexpr int32_t kVertical = 0x2551, kBottomLeft = 0x255A, kBottomRight = 0x255D;

int Width(const CellRect& rect) { return rect.right - rect.left + 1; }
int Height(const CellRect& rect) { return rect.bottom - rect.top + 1; }

std::unique_ptr<Cell[]> Save(const CellRect& rect) {
  if (rect.IsEmpty()) return nullptr;
  return Console->SaveBlock(rect.left, rect.top, Width(rect), Height(rect));
}

void Restore(const CellRect& rect, const Cell* cells) {
  if (cells != nullptr) Console->RestoreBlock(rect.left, rect.top, Width(rect), Height(rect), cells);
}

// What lies in the shadow keeps its characters.
void Darken(const CellRect& rect) {
  const std::unique_ptr<Cell[]> cells = Save(rect);
  if (cells == nullptr) return;
  std::for_each(cells.get(), cells.get() + Width(rect) * Height(rect),
                [](Cell& cell) { cell.attribute = ShadowAttribute(cell.attribute); });
  Restore(rect, cells.get());
}

void DrawShadow(const CellRect& window) {
  Darken({window.left + 2, window.bottom + 1, window.right + 2, window.bottom + 1});
  Darken({window.right + 1, window.top + 1, window.right + 2, window.bottom});
}

void FrameRow(const CellRect& window, int y, int32_t first, int32_t last, uint8_t attribute) {
  Console->PutRepeated(window.left, y, 1, {first, attribute});
  Console->PutRepeated(window.left + 1, y, Width(window) - 2, {kHorizontal, attribute});
  Console->PutRepeated(window.right, y, 1, {last, attribute});
}

void DrawFrame(const CellRect& window, uint8_t attribute) {
  FrameRow(window, window.top, kTopLeft, kTopRight, attribute);
  for (int y = window.top + 1; y < window.bottom; ++y) {
    Console->PutRepeated(window.left, y, 1, {kVertical, attribute});
    Console->PutRepeated(window.right, y, 1, {kVertical, attribute});
  }
  FrameRow(window, window.bottom, kBottomLeft, kBottomRight, attribute);
}

}  // namespace

Win::Win(int left, int top, int right, int bottom, int attribute, int frameAttribute, bool noShadow) {
  const CellRect window = PlaceWindow(left, top, right, bottom, ScreenColumns, ScreenRows);
  this->left = originX = window.left;
  this->top = originY = window.top;
  this->right = window.right;
  this->bottom = window.bottom;
  this->attribute = static_cast<uint8_t>(std::max(attribute, 0));
  hasFrame = frameAttribute >= 0;
  hasShadow =
      Options::Shadows && hasFrame && !noShadow && HasRoomForShadow(window, ScreenColumns, ScreenRows);
  savedCells = Save(Covered());

  Console->BeginUpdate();
  if (attribute >= 0) {
    Console->FillBlank(window.left, window.top, Width(window), Height(window), this->attribute);
  }
  if (hasShadow) DrawShadow(window);
  if (hasFrame) {
    DrawFrame(window, static_cast<uint8_t>(frameAttribute));
    ++originX;
    ++originY;
  }
  Console->EndUpdate();
}

Win::~Win() {
  if (!hidden) Restore(Covered(), savedCells.get());
}

void Win::SetHidden(bool hide) {
  if (hide == hidden) return;
  hidden = hide;
  std::unique_ptr<Cell[]> shown = Save(Covered());
  Restore(Covered(), savedCells.get());
  savedCells = std::move(shown);
}

CellRect Win::Covered() const {
  const CellRect window{left, top, right, bottom};
  return hasShadow ? WithShadow(window) : window;
}

int Win::InnerWidth() const { return right - left + 1 - (hasFrame ? 2 : 0); }

int Win::InnerHeight() const { return bottom - top + 1 - (hasFrame ? 2 : 0); }
