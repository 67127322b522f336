// A console together with the test's own connection to its display, and the
// console's window as the display knows it.
#pragma once

#include <X11/Xlib.h>

#include <chrono>
#include <memory>

#include "support/console_fixture.h"

struct DisplayClose {
  void operator()(Display* display) const { XCloseDisplay(display); }
};

class DisplayFixture : public ConsoleFixture {
 protected:
  static constexpr auto kPatience = std::chrono::seconds(10);

  DisplayFixture() : display(XOpenDisplay(nullptr)) { FindWindow(); }

  std::unique_ptr<_XDisplay, DisplayClose> display;
  Window window = 0;
  int width = 0, height = 0;  // of the window, pixels

 private:
  // The toolkit has small windows of its own.
  void FindWindow() {
    Window root, parent, *children = nullptr;
    unsigned count = 0;
    auto* const x = display.get();
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (window == 0 && std::chrono::steady_clock::now() < deadline) {
      XQueryTree(x, DefaultRootWindow(x), &root, &parent, &children, &count);
      for (unsigned i = 0; i < count; ++i) {
        XWindowAttributes is;
        if (XGetWindowAttributes(x, children[i], &is) && is.map_state == IsViewable && is.width > kColumns)
          window = children[i], width = is.width, height = is.height;
      }
      if (children) XFree(children);
    }
  }
};
