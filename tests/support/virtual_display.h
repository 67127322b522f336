// An X display of the test's own.
#pragma once

#include <sys/types.h>

#include <string>

// Xvfb on a free display number, ended with the object or with the process.
// With ORVANE_TEST_DISPLAY set, that display is used instead, to watch a test.
class VirtualDisplay {
 public:
  VirtualDisplay();
  ~VirtualDisplay();
  VirtualDisplay(const VirtualDisplay&) = delete;
  VirtualDisplay& operator=(const VirtualDisplay&) = delete;

  const std::string& Name() const { return name; }  // ":99"

 private:
  pid_t server = 0;
  std::string name;
};
