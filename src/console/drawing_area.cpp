// The picture of the grid and its way to the window.
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

void CConsoleDrawingArea::SetPicture(int width, int height) {
  cairo.reset();
  copier.reset();
  picture.reset();
  pictureWidth = width;
  pictureHeight = height;
  set_size_request(width, height);
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

void CConsoleDrawingArea::CopyPicture(int fromX, int fromY, int toX, int toY, int width, int height) {
  cairo_surface_t* surface = cairo_get_target(Picture());
  GdkDrawable* drawable = GDK_DRAWABLE(picture.get());
  cairo_surface_flush(surface);
  gdk_draw_drawable(drawable, copier.get(), drawable, fromX, fromY, toX, toY, width, height);
  cairo_surface_mark_dirty(surface);
}

void CConsoleDrawingArea::Show(int x, int y, int width, int height) {
  if (isHurried)
    CopyToWindow(x, y, width, height);
  else
    queue_draw_area(x, y, width, height);
}

void CConsoleDrawingArea::BeginHurry() { isHurried = true; }

// A look for events sends what was drawn. It also reads keys and clicks off the
// connection, on which the GUI thread sleeps.
void CConsoleDrawingArea::EndHurry() {
  isHurried = false;
  if (gdk_events_pending()) g_main_context_wakeup(nullptr);
}

void CConsoleDrawingArea::CopyToWindow(int x, int y, int width, int height) {
  cairo_surface_flush(cairo_get_target(Picture()));
  gdk_draw_drawable(gtk_widget_get_window(GTK_WIDGET(gobj())), copier.get(), GDK_DRAWABLE(picture.get()), x,
                    y, x, y, width, height);
}

// Rectangle by rectangle: a step of the cursor changes a few rows far apart,
// and what lies between them is most of the window.
bool CConsoleDrawingArea::on_expose_event(GdkEventExpose* event) {
  GdkRectangle* places = nullptr;
  gint count = 0;
  gdk_region_get_rectangles(event->region, &places, &count);
  for (const GdkRectangle* place = places; place < places + count; ++place) {
    CopyToWindow(place->x, place->y, place->width, place->height);
  }
  g_free(places);
  return true;
}
