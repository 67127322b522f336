// Starting the toolkit.
#include "console/toolkit.h"

#include <gtkmm/main.h>

struct Toolkit::Main {
  Main(int& argc, char**& argv) : kit(argc, argv, true) {}
  Gtk::Main kit;
};

Toolkit::Toolkit(int& argc, char**& argv) {
  // Older versions of the thread library needed it, newer ones ignore it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  g_thread_init(nullptr);
#pragma GCC diagnostic pop
  gdk_threads_init();
  // The wrapper ends the process if there is no display; this asks first.
  if (gtk_init_check(&argc, &argv)) main = std::make_unique<Main>(argc, argv);
}

Toolkit::~Toolkit() = default;
