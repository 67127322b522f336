// Any bytes in any encoding: characters and lines move on, forward and backward,
// stay in the file and come to its end.
//
// The first byte gives the encoding and how it is read, the second one the longest
// line; all others are the file.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "viewer/text_file.h"

namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "not so: %s\n", what);
  abort();
}

void WalkLines(CTextFile& text, int most) {
  int length = 0;
  for (text.Position = 0;;) {
    const int64_t start = text.Position;
    const wchar_t* const line = text.ReadLine(length, most);
    if (!line) break;
    Require(text.Position > start, "a line moves on");
    Require(most < 1 || length <= most, "a line keeps its limit");
    Require(line[length] == 0, "a line ends in a zero");
  }
  Require(text.Position >= text.FileSize, "the lines come to the end");
}

void WalkCharacters(CTextFile& text) {
  for (text.Position = text.DataStart;;) {
    const int64_t start = text.Position;
    if (text.GetChar() < 0) break;
    Require(text.Position > start, "a character moves on");
  }
  Require(text.Position >= text.FileSize, "the characters come to the end");
  for (;;) {
    const int64_t start = text.Position;
    if (text.PrevChar() < 0) break;
    Require(text.Position < start, "a step back moves back");
  }
  Require(text.Position < 0, "the way back comes to the beginning");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr size_t kHead = 2;
  if (size < kHead) return 0;
  const int fd = memfd_create("text", 0);
  Require(write(fd, data + kHead, size - kHead) == static_cast<ssize_t>(size - kHead), "the file is written");
  CTextFile text;
  Require(text.Open(Westring(Estring::Format("/proc/self/fd/%d", fd))) == 0, "the file opens");
  text.Encoding = data[0] % (kUnknownEncoding + 1);
  text.KeepNul = data[0] & 0x80;
  text.CodePage = data[0] & 0x40 ? 866 : 932;
  WalkLines(text, data[1]);
  WalkCharacters(text);
  close(fd);
  return 0;
}
