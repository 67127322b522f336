// What is written to a descriptor.
#pragma once

#include <string>

// Collects what is written to a descriptor (1 or 2) until Stop().
class StreamCapture {
 public:
  explicit StreamCapture(int descriptor);
  ~StreamCapture() { Stop(); }
  StreamCapture(const StreamCapture&) = delete;
  StreamCapture& operator=(const StreamCapture&) = delete;
  std::string Stop();  // the text; the descriptor is as before

 private:
  int captured;
  int kept;  // -1 when stopped
  int file;
};
