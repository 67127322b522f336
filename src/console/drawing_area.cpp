// The picture of the grid and its way to the window.
#include <algorithm>

#include "console/console_window.h"

namespace {

// The window's own mask covers these too. Without them here the first motion
// after a press is spent on entering the window from the area.
constexpr int kMouseEvents = GDK_BUTTON_MOTION_MASK | GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK;

}  // namespace

CConsoleDrawingArea::CConsoleDrawingArea() {
  add_events(static_cast<Gdk::EventMask>(kMouseEvents));
  set_double_buffered(false);  // the picture is the buffer
  modify_bg(Gtk::STATE_NORMAL, Gdk::Color("black"));
}

CConsoleDrawingArea::~CConsoleDrawingArea() {
  if (showOwed != 0) g_source_remove(showOwed);
}

void CConsoleDrawingArea::SetPicture(int width, int rowCount, int heightOfRow) {
  cairo.reset();
  copier.reset();
  picture.reset();
  owed.reset(gdk_region_new());
  rows.Reset(rowCount);
  rowHeight = heightOfRow;
  pictureWidth = width;
  pictureHeight = rowCount * rowHeight;
  set_size_request(pictureWidth, pictureHeight);
}

cairo_t* CConsoleDrawingArea::Picture() {
  if (cairo != nullptr) return cairo.get();
  GtkWidget* widget = GTK_WIDGET(gobj());
  if (gtk_widget_get_window(widget) == nullptr) gtk_widget_realize(widget);
  picture.reset(gdk_pixmap_new(gtk_widget_get_window(widget), pictureWidth, pictureHeight, -1));
  copier.reset(gdk_gc_new(GDK_DRAWABLE(picture.get())));
  cairo.reset(gdk_cairo_create(GDK_DRAWABLE(picture.get())));
  cairo_set_source_rgb(cairo.get(), 0, 0, 0);
  cairo_paint(cairo.get());
  return cairo.get();
}

// Rows that go up are taken from the top on, others from the bottom, so that none is
// overwritten before it is copied.
void CConsoleDrawingArea::ScrollPicture(int x, int width, int top, int bottom, int lines) {
  if (width == pictureWidth) {
    rows.Scroll(top, bottom, lines);
    return;
  }
  cairo_surface_t* surface = cairo_get_target(Picture());
  cairo_surface_flush(surface);
  GdkDrawable* drawable = GDK_DRAWABLE(picture.get());
  const int step = lines > 0 ? 1 : -1;
  const int lastSource = step > 0 ? bottom : top, lastTarget = lastSource - lines;
  for (int row = step > 0 ? top : bottom, count = 0; step * (lastTarget - row) >= 0; row += step * count) {
    count = std::min(rows.Run(row, lastTarget, step), rows.Run(row + lines, lastSource, step));
    const int highest = step > 0 ? row : row - count + 1;
    gdk_draw_drawable(drawable, copier.get(), drawable, x, TopOf(highest + lines), x, TopOf(highest), width,
                      count * rowHeight);
  }
  cairo_surface_mark_dirty(surface);
}

// The toolkit's own updates would make a picture of the place, copy ours to it, and
// that to the window; so what is drawn goes past them. It goes when they would, so
// that what is drawn meanwhile goes along.
void CConsoleDrawingArea::Show(int x, int y, int width, int height) {
  if (isHurried) {
    CopyToWindow(x, y, width, height);
    return;
  }
  const GdkRectangle place{x, y, width, height};
  gdk_region_union_with_rect(owed.get(), &place);
  if (showOwed == 0) showOwed = gdk_threads_add_idle_full(GDK_PRIORITY_REDRAW, ShowOwed, this, nullptr);
}

gboolean CConsoleDrawingArea::ShowOwed(gpointer area) {
  CConsoleDrawingArea& self = *static_cast<CConsoleDrawingArea*>(area);
  self.showOwed = 0;
  self.CopyToWindow(*self.owed);
  self.owed.reset(gdk_region_new());
  return FALSE;
}

void CConsoleDrawingArea::BeginHurry() { isHurried = true; }

// A look for events sends what was drawn. It also reads keys and clicks off the
// connection, on which the GUI thread sleeps.
void CConsoleDrawingArea::EndHurry() {
  isHurried = false;
  if (gdk_events_pending()) g_main_context_wakeup(nullptr);
}

// Some window managers leave a window larger than its picture. To the right of it the
// display itself clears what a copy lacks; below it there is nothing to copy.
void CConsoleDrawingArea::CopyToWindow(int x, int y, int width, int height) {
  cairo_surface_flush(cairo_get_target(Picture()));
  GdkWindow* const window = gtk_widget_get_window(GTK_WIDGET(gobj()));
  const int below = y + height - std::max(y, pictureHeight);
  if (below > 0) gdk_window_clear_area(window, x, y + height - below, width, below);
  const int end = std::min(y + height, pictureHeight);
  for (int bottom = 0; y < end; y = bottom) {
    const int row = y / rowHeight;
    bottom = std::min((row + rows.Run(row, (end - 1) / rowHeight)) * rowHeight, end);
    gdk_draw_drawable(window, copier.get(), GDK_DRAWABLE(picture.get()), x, TopOf(row) + y % rowHeight, x, y,
                      width, bottom - y);
  }
}

// Rectangle by rectangle: a step of the cursor changes a few rows far apart,
// and what lies between them is most of the window.
void CConsoleDrawingArea::CopyToWindow(const GdkRegion& region) {
  GdkRectangle* places = nullptr;
  gint count = 0;
  gdk_region_get_rectangles(&region, &places, &count);
  for (const GdkRectangle* place = places; place < places + count; ++place) {
    CopyToWindow(place->x, place->y, place->width, place->height);
  }
  g_free(places);
}

bool CConsoleDrawingArea::on_expose_event(GdkEventExpose* event) {
  CopyToWindow(*event->region);
  return true;
}
