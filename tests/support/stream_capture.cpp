// What is written to a descriptor; see the header.
#include "support/stream_capture.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

StreamCapture::StreamCapture(int descriptor) : captured(descriptor) {
  std::fflush(nullptr);
  kept = dup(captured);
  char name[] = "/tmp/orvane-output.XXXXXX";
  file = mkstemp(name);
  if (kept < 0 || file < 0) std::abort();
  unlink(name);
  dup2(file, captured);
}

std::string StreamCapture::Stop() {
  if (kept < 0) return "";
  std::fflush(nullptr);
  dup2(kept, captured);
  close(kept);
  kept = -1;
  std::string text;
  char part[4096];
  lseek(file, 0, SEEK_SET);
  for (ssize_t n; (n = read(file, part, sizeof part)) > 0;) text.append(part, static_cast<size_t>(n));
  close(file);
  return text;
}
