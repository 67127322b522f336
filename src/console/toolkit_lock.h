// The toolkit's one lock. It guards the widgets, the picture of the grid and
// all that is drawn; handlers of the toolkit hold it already.
#pragma once

#include <gdk/gdk.h>

class ToolkitLock {
 public:
  ToolkitLock() { gdk_threads_enter(); }
  ~ToolkitLock() { gdk_threads_leave(); }
  ToolkitLock(const ToolkitLock&) = delete;
  ToolkitLock& operator=(const ToolkitLock&) = delete;
};

// The lock for a call that may wait for an answer of the display. While it
// waits it also reads keys and clicks off the connection, on which the GUI
// thread sleeps; the end makes that thread look for them.
class ToolkitCall {
 public:
  ToolkitCall() { gdk_threads_enter(); }
  ~ToolkitCall() {
    gdk_threads_leave();
    g_main_context_wakeup(nullptr);
  }
  ToolkitCall(const ToolkitCall&) = delete;
  ToolkitCall& operator=(const ToolkitCall&) = delete;
};
