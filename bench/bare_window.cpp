// The toolkit alone, as a reference. "start" opens a window and paints one
// layout. "row COUNT PAUSE" draws one row of text that often, with a pause of
// that many milliseconds before each, and prints the median time of a drawing
// in microseconds.
#include <gtkmm.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "table.h"

namespace {

constexpr int kColumns = 132;
constexpr guint16 kHalf = 0x7FFF;

class BareArea : public Gtk::DrawingArea {
 public:
  // A count of 0 only shows something.
  BareArea(int rowCount, int pauseMs) : count(rowCount), pause(pauseMs) {}

 private:
  bool on_expose_event(GdkEventExpose*) override {
    const Glib::RefPtr<Pango::Layout> layout = create_pango_layout("");
    layout->set_font_description(Pango::FontDescription("DejaVu Sans Mono 12"));
    if (count > 0)
      MeasureRow(layout);
    else
      Draw(get_window(), layout, "one layout");
    return true;
  }

  // White on blue.
  void Draw(const Glib::RefPtr<Gdk::Drawable>& target, const Glib::RefPtr<Pango::Layout>& layout,
            const std::string& text) {
    Pango::AttrList attributes;
    Pango::Attribute white = Pango::Attribute::create_attr_foreground(0xFFFF, 0xFFFF, 0xFFFF);
    Pango::Attribute blue = Pango::Attribute::create_attr_background(0, 0, kHalf);
    attributes.insert(white);
    attributes.insert(blue);
    layout->set_text(text);
    layout->set_attributes(attributes);
    target->draw_layout(get_style()->get_black_gc(), 0, 0, layout);
  }

  // Until the server has drawn it.
  void MeasureRow(const Glib::RefPtr<Pango::Layout>& layout) {
    const Glib::RefPtr<Gdk::Pixmap> pixmap = Gdk::Pixmap::create(get_window(), 1600, 40);
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
      Glib::usleep(static_cast<gulong>(pause) * 1000);
      std::string text(kColumns, ' ');
      for (int k = 0; k < kColumns; ++k) text[k] = static_cast<char>('!' + (i + k) % 90);
      times.push_back(Seconds([&] {
        Draw(pixmap, layout, text);
        gdk_flush();
      }));
    }
    printf("%f\n", Median(times) * 1e6);
    Gtk::Main::quit();
  }

  int count, pause;
};

}  // namespace

int main(int argc, char** argv) {
  Gtk::Main toolkit(argc, argv);
  BareArea area(argc > 2 ? atoi(argv[2]) : 0, argc > 3 ? atoi(argv[3]) : 0);
  Gtk::Window window;
  window.set_default_size(800, 475);
  window.add(area);
  area.show();
  Gtk::Main::run(window);
  return 0;
}
