// The X screen as seen from outside.
#include "watcher.h"

#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <poll.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

constexpr int kPatienceMs = 20'000;
constexpr int kFloodPauseMs = 2;
constexpr int kLeastWidth = 200;  // of a window that counts

using Clock = std::chrono::steady_clock;

bool Overlap(const Area& a, const XRectangle& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

[[noreturn]] void GiveUp(const char* what) {
  fprintf(stderr, "Waited in vain for %s.\n", what);
  exit(2);
}

}  // namespace

bool AreEqual(const Image& a, const Image& b) {
  if (!a || !b || a->height != b->height || a->bytes_per_line != b->bytes_per_line) return false;
  return memcmp(a->data, b->data, static_cast<size_t>(a->bytes_per_line) * a->height) == 0;
}

unsigned long PixelOf(const Image& image, int x, int y) {
  return image ? XGetPixel(image.get(), x, y) & 0xFFFFFF : 0;
}

Watcher::Watcher() : display(XOpenDisplay(nullptr)) {
  int firstError = 0;
  if (!display || !XDamageQueryExtension(display.get(), &firstDamageEvent, &firstError)) {
    fputs("This benchmark needs a display with the Damage extension.\n", stderr);
    exit(2);
  }
  // A window may go while it is asked about.
  XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
  Report(XDamageReportRawRectangles);
}

Watcher::~Watcher() = default;

Watcher::Frame Watcher::FindWindow() const {
  Frame frame;
  Window root, parent, *children = nullptr;
  unsigned count = 0;
  Display* const x = display.get();
  if (!XQueryTree(x, DefaultRootWindow(x), &root, &parent, &children, &count)) return frame;
  for (unsigned i = 0; i < count; ++i) {
    XWindowAttributes is;
    if (!XGetWindowAttributes(x, children[i], &is)) continue;
    if (is.map_state != IsViewable || is.width < kLeastWidth) continue;
    frame = {children[i], {is.x, is.y, is.width, is.height}};
  }
  if (children) XFree(children);
  return frame;
}

void Watcher::GiveKeyboardTo(Window window) const {
  XSetInputFocus(display.get(), window, RevertToParent, CurrentTime);
  XSync(display.get(), False);
}

void Watcher::Press(KeySym key) const {
  const KeyCode code = XKeysymToKeycode(display.get(), key);
  XTestFakeKeyEvent(display.get(), code, True, CurrentTime);
  XTestFakeKeyEvent(display.get(), code, False, CurrentTime);
  XFlush(display.get());
}

Area Watcher::Whole() const {
  const int number = DefaultScreen(display.get());
  return {0, 0, DisplayWidth(display.get(), number), DisplayHeight(display.get(), number)};
}

Image Watcher::Take(const Area& area) const {
  return Image(XGetImage(display.get(), DefaultRootWindow(display.get()), area.x, area.y,
                         static_cast<unsigned>(area.width), static_cast<unsigned>(area.height), AllPlanes,
                         ZPixmap));
}

void Watcher::Await(const char* what, const Area& area, const std::function<bool()>& condition) {
  while (!condition()) {
    if (!AwaitDrawing(area, kPatienceMs)) GiveUp(what);
  }
}

void Watcher::Report(int level) {
  if (damage != 0) XDamageDestroy(display.get(), damage);
  damage = XDamageCreate(display.get(), DefaultRootWindow(display.get()), level);
}

void Watcher::AwaitInFlood(const char* what, const std::function<bool()>& condition) {
  Report(XDamageReportNonEmpty);
  XDamageSubtract(display.get(), damage, None, None);
  while (!condition()) {
    if (!AwaitDrawing(Whole(), kPatienceMs)) GiveUp(what);
    std::this_thread::sleep_for(std::chrono::milliseconds(kFloodPauseMs));
    // What is drawn from here on is told of, and what was before is looked at.
    XDamageSubtract(display.get(), damage, None, None);
  }
  Report(XDamageReportRawRectangles);
}

void Watcher::AwaitRest(const Area& area, int milliseconds) {
  while (AwaitDrawing(area, milliseconds)) continue;
}

bool Watcher::AwaitDrawing(const Area& area, int milliseconds) {
  const auto deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
  bool drawn = false;
  while (true) {
    // All that is there: one look at the screen answers for many drawings.
    while (XPending(display.get()) > 0) {
      XEvent event;
      XNextEvent(display.get(), &event);
      if (event.type != firstDamageEvent + XDamageNotify) continue;
      drawn |= Overlap(area, reinterpret_cast<const XDamageNotifyEvent&>(event).area);
    }
    if (drawn) return true;
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    if (left <= 0) return false;
    pollfd connection = {ConnectionNumber(display.get()), POLLIN, 0};
    poll(&connection, 1, static_cast<int>(left));
  }
}
