// Life of the window, and cells turned into pixels. Start at DrawCells().
#include "console/console_window.h"

#include <gtkmm/main.h>

#include <algorithm>

#include "config/values/colours.h"
#include "console/input.h"
#include "console/screen_size.h"
#include "console/toolkit_lock.h"

namespace {

constexpr ScreenSize kFirstSize{80, 25};
constexpr int kFirstFontSize = 12;
constexpr int kMostFontSize = 1000;  // where shrinking begins
constexpr int kFirstCodePage = 850;
constexpr int kFirstCursorSize = 15;

constexpr int kEvents = GDK_BUTTON_MOTION_MASK | GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK |
                        GDK_KEY_PRESS_MASK | GDK_KEY_RELEASE_MASK;

// In points. A larger one is a slip in the settings: the window is then kept
// within the display, so that the slip can be mended in it.
constexpr int kLargestWantedFont = 96;

// Runs in the loop itself: a quit from outside is lost when the loop has been
// made but does not yet turn.
gboolean QuitLoop(gpointer) {
  gtk_main_quit();
  return FALSE;
}

uint32_t HeldModifiers() {
  ToolkitCall call;
  GdkModifierType state{};
  gdk_display_get_pointer(gdk_display_get_default(), nullptr, nullptr, nullptr, &state);
  return static_cast<uint32_t>(state) & kModMask;
}

}  // namespace

// ---- life --------------------------------------------------------------------

CConsoleWindow::CConsoleWindow()
    : grid(kFirstSize.columns, kFirstSize.rows),
      fontFamily("DejaVu Sans Mono"),
      fontSize(kFirstFontSize),
      codePage(kFirstCodePage),
      cursorSize(kFirstCursorSize),
      defaultAttribute(Options::Colours[kColourCommandLine]) {
  add_events(static_cast<Gdk::EventMask>(kEvents));
  set_resizable(false);
  Layout(kFirstSize.columns, kFirstSize.rows, fontSize);
  add(area);
  area.show();
}

CConsoleWindow::~CConsoleWindow() {
  if (inputMethod != nullptr) gtk_im_context_set_client_window(inputMethod.get(), nullptr);
}

void CConsoleWindow::StartGui() { gui = std::thread(&CConsoleWindow::RunGui, this); }

void CConsoleWindow::RunGui() {
  blink.Start([this] {
    ToolkitLock lock;
    if (cursorSize > 0) DrawCursorCell();
  });
  {
    ToolkitLock lock;
    Gtk::Main::run(*this);
  }
  blink.Stop();
}

void CConsoleWindow::StopGui() {
  {
    ToolkitLock lock;
    gdk_threads_add_idle_full(G_PRIORITY_DEFAULT, QuitLoop, nullptr, nullptr);
  }
  gui.join();
}

// ---- size --------------------------------------------------------------------

void CConsoleWindow::SetScreen(int columns, int rows, const Estring& family, int points) {
  ToolkitCall call;
  if (!family.IsEmpty() && g_utf8_validate(family.Text(), -1, nullptr)) fontFamily = family;
  if (columns < 1) columns = grid.Columns();
  if (rows < 1) rows = grid.Rows();
  Layout(columns, rows, points < 1 ? fontSize : points);
}

bool CConsoleWindow::FitsDisplay(ScreenSize size) const {
  return size.columns * painter.CellWidth() <= gdk_screen_width() &&
         size.rows * painter.CellHeight() <= gdk_screen_height();
}

// A font too large for any usable screen is made smaller; after that the
// screen is cut to what fits.
void CConsoleWindow::Layout(int columns, int rows, int points) {
  const ScreenSize usable{std::min(columns, kFirstSize.columns), std::min(rows, kFirstSize.rows)};
  const bool isSlip = points > kLargestWantedFont;
  for (points = std::min(points, kMostFontSize); true; points = points * 3 / 4) {
    painter.SetFont(*this, fontFamily, points);
    if (points == 1) break;
    const ScreenSize fitting = BoundScreen(usable, painter.CellWidth(), painter.CellHeight());
    if (fitting.columns < usable.columns || fitting.rows < usable.rows) continue;
    if (!isSlip || points <= kFirstFontSize || FitsDisplay(usable)) break;
  }
  const ScreenSize size = BoundScreen({columns, rows}, painter.CellWidth(), painter.CellHeight());
  fontSize = points;
  grid.Reset(size.columns, size.rows);
  selection.Clear();
  const int width = size.columns * painter.CellWidth(), height = size.rows * painter.CellHeight();
  area.SetPicture(width, size.rows, painter.CellHeight());
  area.queue_draw();  // the window may keep its size and still show the old screen
  resize(width, height);
  check_resize();  // now: whoever sees what is done next sees the new size too
}

// ---- drawing -----------------------------------------------------------------

// The cells outside of the block are drawn for what reaches into it from them.
void CConsoleWindow::DrawCells(const CellRect& block) {
  cairo_t* cairo = area.Picture();
  const int left = block.left * painter.CellWidth(),
            width = (block.right - block.left + 1) * painter.CellWidth();
  const CellRect drawn = WithNeighbours(block);
  for (int y = block.top; y <= block.bottom; ++y) {
    cairo_save(cairo);
    cairo_rectangle(cairo, left, area.TopOf(y), width, painter.CellHeight());
    cairo_clip(cairo);
    DrawCellRow(cairo, drawn, y);
    cairo_restore(cairo);
  }
  const Place at = cursor;
  if (block.Contains(at.x, at.y) && cursorSize > 0 && blink.IsCursorPhase()) {
    painter.DrawCursor(cairo, at.x * painter.CellWidth(), area.TopOf(at.y), cursorSize,
                       grid.At(at.x, at.y).attribute);
  }
  ShowCells(block);
}

void CConsoleWindow::ShowCells(const CellRect& block) {
  area.Show(block.left * painter.CellWidth(), block.top * painter.CellHeight(),
            (block.right - block.left + 1) * painter.CellWidth(),
            (block.bottom - block.top + 1) * painter.CellHeight());
}

void CConsoleWindow::DrawCellRow(cairo_t* cairo, const CellRect& block, int y) {
  const Cell* const row = grid.Row(y);  // asked once: a terminal may be turning the rows meanwhile
  rowInWork.assign(row + block.left, row + block.right + 1);
  const CellRect selected = Intersection(selection.Selected(), {block.left, y, block.right, y});
  for (int x = selected.left; x <= selected.right; ++x) {
    uint8_t& attribute = rowInWork[x - block.left].attribute;
    attribute = SwapNibbles(attribute);
  }
  painter.DrawRow(cairo, rowInWork.data(), static_cast<int>(rowInWork.size()),
                  block.left * painter.CellWidth(), area.TopOf(y));
}

bool CConsoleWindow::IsCursorIn(const CellRect& block) const {
  const Place at = cursor;
  return block.Contains(at.x, at.y);
}

// Glyphs may be a little wider than their cells, so the cells beside those that
// changed are drawn as well.
CellRect CConsoleWindow::WithNeighbours(const CellRect& block) const {
  if (block.IsEmpty()) return {};
  return Intersection({block.left - 1, block.top, block.right + 1, block.bottom}, grid.Bounds());
}

void CConsoleWindow::Repaint(const CellRect& block) {
  const CellRect visible = WithNeighbours(block);
  if (visible.IsEmpty()) return;
  DrawCells(visible);
  drawnAhead = Union(drawnAhead, visible);
}

void CConsoleWindow::Invalidate(const CellRect& changed) {
  if (changed.IsEmpty()) return;
  if (batch.IsOpen()) {
    batch.Add(changed);
    return;
  }
  ToolkitLock lock;
  Repaint(changed);
  ++drawCount;
}

void CConsoleWindow::EndUpdate() {
  const CellRect dirty = batch.End();
  if (!dirty.IsEmpty()) Invalidate(dirty);
}

void CConsoleWindow::SetCursor(int x, int y) {
  blink.Restart();
  const Place old = cursor;
  if (x == old.x && y == old.y) return;
  cursor = {x, y};
  if (cursorSize == 0) return;
  Invalidate(old.Cell());
  Invalidate({x, y, x, y});
}

void CConsoleWindow::SetCursorSize(int percent) {
  blink.Restart();
  percent = std::clamp(percent, 0, 100);
  if (percent == cursorSize) return;
  {
    ToolkitLock lock;
    cursorSize = percent;
  }
  Invalidate(cursor.load().Cell());
}

void CConsoleWindow::Scroll(const CellRect& block, int lines, uint8_t attribute) {
  ToolkitLock lock;
  const int size = cursorSize;
  if (IsCursorIn(block) && size > 0) {
    cursorSize = 0;  // or its picture would move along
    DrawCursorCell();
    cursorSize = size;
  }
  grid.Scroll(block, lines, attribute);
  batch.AddScrolled(block, lines);

  MovePicture(block, lines);
  Repaint(ScrollVacated(block, lines));
  ++drawCount;
  RepaintMoved(selection.Selected(), block, lines);
  if (IsCursorIn(block) && size > 0) DrawCursorCell();
}

// The rows that stay in a block, on the picture and in the window.
void CConsoleWindow::MovePicture(const CellRect& block, int lines) {
  const CellRect target = ScrollTarget(block, lines);
  if (target.IsEmpty()) return;
  area.ScrollPicture(block.left * painter.CellWidth(), (block.right - block.left + 1) * painter.CellWidth(),
                     block.top, block.bottom, lines);
  ShowCells(target);
}

// What stays where it is on the screen, though its picture went along.
void CConsoleWindow::RepaintMoved(const CellRect& drawn, const CellRect& block, int lines) {
  CellRect moved = Intersection(drawn, block);
  if (moved.IsEmpty()) return;
  Repaint(moved);
  moved.top -= lines;
  moved.bottom -= lines;
  Repaint(Intersection(moved, block));
}

void CConsoleWindow::SetSelectableRegion(const CellRect& region) {
  ToolkitLock lock;
  const CellRect selected = selection.Selected();
  selection.Clear();
  selection.SetRegion(region);
  Repaint(selected);
}

// ---- the terminal of a child ---------------------------------------------------

void CConsoleWindow::AttachTerminal(int masterFd) {
  auto fresh = std::make_unique<AttachedTerminal>(*this, masterFd);
  ToolkitLock lock;
  terminal = std::move(fresh);
}

// The old screen, where the child left another one, comes back with its end. What
// was pressed or let go meanwhile was the child's, or another window's: no key
// will tell of it.
void CConsoleWindow::DetachTerminal() {
  std::unique_ptr<AttachedTerminal> old;
  {
    ToolkitLock lock;
    old = std::move(terminal);
  }
  old.reset();
  Invalidate(grid.Bounds());
  CurrentModifiers = HeldModifiers();
}

void CConsoleWindow::PlaceCursor(int x, int y) {
  blink.Restart();
  cursor = {x, y};
}

void CConsoleWindow::Paint(const TerminalDamage& damage) {
  ToolkitLock lock;
  area.BeginHurry();
  const TerminalDamage::Move& move = damage.OwedMove();
  if (move.lines != 0) {
    MovePicture(move.block, move.lines);
    RepaintMoved(drawnAhead, move.block, move.lines);
    RepaintMoved(selection.Selected(), move.block, move.lines);
  }
  bool isCursorDrawn = false;
  for (const CellRect& block : damage.Blocks()) {
    Repaint(block);
    isCursorDrawn |= IsCursorIn(block);
  }
  if (!isCursorDrawn) DrawCursorCell();
  drawnAhead = cursor.load().Cell();
  ++drawCount;
  area.EndHurry();
}

void CConsoleWindow::Ring() {
  ToolkitCall call;
  gdk_beep();
  gdk_display_flush(gdk_display_get_default());
}
