// Any bytes: a guess is made, and what it says of them holds.
#include "viewer/encoding_detection.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "viewer/text_file.h"

namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "not so: %s\n", what);
  abort();
}

// Within what the guess looks at.
void RequireUnits(CTextFile& text, int most) {
  bool hasBlank = false, hasLineFeed = false;
  text.Position = 0;
  for (int c = text.GetChar(); c >= 0 && text.Position <= 32768; c = text.GetChar()) {
    Require(c <= most, "no unit is too large");
    Require(text.BytesPerUnit() == 4 || c != 0, "no unit of UTF-16 is zero");
    hasBlank = hasBlank || c == ' ';
    hasLineFeed = hasLineFeed || c == '\n';
  }
  Require(hasBlank || hasLineFeed, "wide text has blanks or line feeds");
  Require(text.BytesPerUnit() == 4 || (hasBlank && hasLineFeed), "UTF-16 has both");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const int fd = memfd_create("text", 0);
  Require(write(fd, data, size) == static_cast<ssize_t>(size), "the file is written");
  CTextFile text;
  Require(text.Open(Westring(Estring::Format("/proc/self/fd/%d", fd))) == 0, "the file opens");
  Require(text.Encoding >= 0 && text.Encoding < kUnknownEncoding, "an encoding is found");
  Require(text.DataStart == FindMark(text).length && text.Position == text.DataStart,
          "text begins at its start");
  Require(text.HasBOM == (text.DataStart > 0), "a mark has a length");
  const uint8_t* const lookedAt = data + std::min<size_t>(size, 32768);
  if (!text.HasBOM) {
    Require(GuessEncoding(text) == text.Encoding, "a second guess is the first");
    Require(text.Encoding != kUtf8 || std::find(data, lookedAt, 0) == lookedAt, "UTF-8 has no zeros");
    if (text.Encoding < kUtf8) RequireUnits(text, text.BytesPerUnit() == 4 ? 0x10FFFF : 0xFFFF);
  }
  close(fd);
  return 0;
}
