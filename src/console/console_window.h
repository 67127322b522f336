// The window of the console: the only widget of the program. Members marked
// "application" are called by CConsole from the application thread and take
// the toolkit's lock themselves; handlers run in the GUI thread, under it.
#pragma once

#include <gtkmm/drawingarea.h>
#include <gtkmm/window.h>

#include <atomic>
#include <memory>
#include <thread>

#include "console/attached_terminal.h"
#include "console/blink_thread.h"
#include "console/cell_grid.h"
#include "console/cell_painter.h"
#include "console/event_queue.h"
#include "console/key_codes.h"
#include "console/picture_rows.h"
#include "console/screen_size.h"
#include "console/selection.h"
#include "console/update_batch.h"

struct CairoRelease {
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
struct RegionRelease {
  void operator()(GdkRegion* region) const { gdk_region_destroy(region); }
};

// Shows the picture of the grid, which is drawn off the screen.
class CConsoleDrawingArea : public Gtk::DrawingArea {
 public:
  CConsoleDrawingArea();
  ~CConsoleDrawingArea() override;

  // All in pixels, but for rows. Makes the picture forget all and take a new size.
  void SetPicture(int width, int rows, int rowHeight);
  // The picture to draw on; made black at its first use.
  cairo_t* Picture();
  // Where a row of the screen is in the picture.
  int TopOf(int row) const { return rows.At(row) * rowHeight; }
  // Moves what the rows top to bottom show, up by lines or down where it is negative.
  void ScrollPicture(int x, int width, int top, int bottom, int lines);
  // Brings a part of the picture to the window: when the GUI thread comes to it,
  // or in a hurry at once, with all that was drawn on its way at the end.
  void Show(int x, int y, int width, int height);
  void BeginHurry();
  void EndHurry();

 private:
  void CopyToWindow(int x, int y, int width, int height);
  void CopyToWindow(const GdkRegion& region);
  static gboolean ShowOwed(gpointer area);
  bool on_expose_event(GdkEventExpose* event) override;

  bool isHurried = false;
  std::unique_ptr<GdkRegion, RegionRelease> owed{gdk_region_new()};  // to the window
  guint showOwed = 0;                                                // the source that brings it, or 0
  PictureRows rows;
  int rowHeight = 1;
  int pictureWidth = 0, pictureHeight = 0;
  std::unique_ptr<GdkPixmap, ObjectRelease> picture;
  std::unique_ptr<GdkGC, ObjectRelease> copier;
  std::unique_ptr<cairo_t, CairoRelease> cairo;
};

class CConsoleWindow : public Gtk::Window {
 public:
  CConsoleWindow();
  ~CConsoleWindow() override;

  void StartGui();  // application
  void StopGui();   // application; joins the thread

  // Application. An empty family and sizes below 1 stay as they were.
  void SetScreen(int columns, int rows, const Estring& family, int points);
  void SetCursor(int x, int y);
  void SetCursorSize(int percent);
  // Application: draws what a write changed, now or at the end of the batch.
  void Invalidate(const CellRect& changed);
  void EndUpdate();
  // Application: moves the rows of a block, cells and picture.
  void Scroll(const CellRect& block, int lines, uint8_t attribute);
  void SetSelectableRegion(const CellRect& region);
  // Application: from here on keys go to the terminal; and the end of that.
  void AttachTerminal(int masterFd);
  void DetachTerminal();
  AttachedTerminal* Terminal() const { return terminal.get(); }

  // Application, for the terminal: the cursor's place without painting it, all
  // that a terminal has changed, and the bell.
  void PlaceCursor(int x, int y);
  void Paint(const TerminalDamage& damage);
  void Ring();

  // The screen, for CConsole. The application alone writes it, but for the
  // selection, which is changed and read under the lock; the cells have none,
  // for a change that drawing sees half done is drawn again.
  CellGrid grid;
  UpdateBatch batch;
  Selection selection;
  CEventQueue events;
  Estring fontFamily;
  int fontSize;
  int codePage;
  // Place and size of the cursor are changed by a terminal without the lock. Aligned so
  // that every compiler reads a place in one step of the machine.
  struct alignas(8) Place {
    int x = 0, y = 0;
    CellRect Cell() const { return {x, y, x, y}; }
  };
  std::atomic<Place> cursor{};
  std::atomic<int> cursorSize{0};
  uint8_t defaultAttribute;
  std::atomic<uint64_t> drawCount{0};

 private:
  void RunGui();

  // Under the lock.
  void Layout(int columns, int rows, int points);
  bool FitsDisplay(ScreenSize size) const;
  void DrawCells(const CellRect& block);
  void ShowCells(const CellRect& block);  // what the picture has of them, in the window
  void DrawCellRow(cairo_t* cairo, const CellRect& block, int y);
  CellRect WithNeighbours(const CellRect& block) const;
  void Repaint(const CellRect& block);
  void MovePicture(const CellRect& block, int lines);
  void RepaintMoved(const CellRect& drawn, const CellRect& block, int lines);
  void DrawCursorCell() { Repaint(cursor.load().Cell()); }
  bool IsCursorIn(const CellRect& block) const;
  // Cells of the window's pixels, cut towards zero.
  int CellX(double x) const { return static_cast<int>(x) / painter.CellWidth(); }
  int CellY(double y) const { return static_cast<int>(y) / painter.CellHeight(); }

  // Handlers.
  bool on_key_press_event(GdkEventKey* event) override;
  bool on_key_release_event(GdkEventKey* event) override;
  bool on_button_press_event(GdkEventButton* event) override;
  bool on_button_release_event(GdkEventButton* event) override;
  bool on_motion_notify_event(GdkEventMotion* event) override;
  bool on_scroll_event(GdkEventScroll* event) override;
  bool on_delete_event(GdkEventAny* event) override;
  bool on_focus_in_event(GdkEventFocus* event) override;
  bool on_focus_out_event(GdkEventFocus* event) override;
  void HandleKey(GdkEventKey* event);
  void MakeInputMethod();
  void OfferToInputMethod(GdkEventKey* event);
  static void OnCommit(GtkIMContext* context, const gchar* utf8, gpointer window);
  void QueueKey(Key code, uint32_t modifiers, uint32_t hardware);
  void QueueMouse(EventType type, int code, uint32_t modifiers, double x, double y);

  CConsoleDrawingArea area;
  CellPainter painter;
  std::unique_ptr<GtkIMContext, ObjectRelease> inputMethod;
  std::unique_ptr<AttachedTerminal> terminal;  // while a child runs; changed under the lock
  BlinkThread blink;
  std::thread gui;
  std::vector<Cell> rowInWork;
  // Around all that was drawn since the terminal's last paint, by the blinking
  // for example. It is as the cells are now, but moves with what is owed.
  CellRect drawnAhead;
};
