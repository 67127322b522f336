// The X screen as seen from outside: what stands on it, when it changes, and
// keys for whoever has the keyboard. No window manager is expected.
//
// Changes are not polled for. The server reports each drawing once it is done,
// so watching costs the watched nothing but these reports.
#pragma once

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <functional>
#include <memory>

struct DisplayClose {
  void operator()(Display* display) const { XCloseDisplay(display); }
};
struct ImageRelease {
  void operator()(XImage* image) const { XDestroyImage(image); }
};
using Image = std::unique_ptr<XImage, ImageRelease>;

struct Area {
  int x = 0, y = 0, width = 0, height = 0;  // pixels of the screen
};

constexpr unsigned long kBlue = 0x00007F, kGreen = 0x007F00, kCyan = 0x007F7F;  // of the palette

// Same size, same pixels; false where one is missing.
bool AreEqual(const Image& a, const Image& b);
// 0xRRGGBB; 0 where there is no image.
unsigned long PixelOf(const Image& image, int x, int y);

// One for a whole benchmark: a server that loses its last client may start anew,
// and refuse the next one meanwhile.
class Watcher {
 public:
  Watcher();  // ends the process if there is no display
  ~Watcher();
  Watcher(const Watcher&) = delete;
  Watcher& operator=(const Watcher&) = delete;

  // The window that is shown, which has to be the only one; all zero for none.
  struct Frame {
    Window window = 0;
    Area area;
  };
  Frame FindWindow() const;
  void GiveKeyboardTo(Window window) const;
  void Press(KeySym key) const;  // down and up, on their way when this returns

  Area Whole() const;
  // Null where the area leaves the screen.
  Image Take(const Area& area) const;
  unsigned long Pixel(int x, int y) const { return PixelOf(Take({x, y, 1, 1}), 0, 0); }

  // Looks once, and again after each drawing that touches the area, until the
  // condition holds. Ends the process with a message if it never does.
  void Await(const char* what, const Area& area, const std::function<bool()>& condition);
  // The same for a flood of drawings, whose reports alone would slow down whoever
  // draws: the server tells of one, and of the next one only milliseconds later.
  void AwaitInFlood(const char* what, const std::function<bool()>& condition);
  // Returns when nothing has been drawn there for that long.
  void AwaitRest(const Area& area, int milliseconds);

 private:
  // False if nothing was drawn there within that time.
  bool AwaitDrawing(const Area& area, int milliseconds);
  void Report(int level);  // drawings, from here on

  std::unique_ptr<Display, DisplayClose> display;
  int firstDamageEvent = 0;
  XID damage = 0;
};
