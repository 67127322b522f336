// Any bytes in any pieces: a terminal stays on its screen, tells of all that it
// changes, and comes to the same as in one go.
//
// The first two bytes give the screen's size, the third one begins the sizes of
// the pieces; all others are output.
#include <cstdio>
#include <cstdlib>
#include <random>

#include "config/values/options.h"
#include "support/terminal_run.h"

namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "not so: %s\n", what);
  abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr size_t kHead = 3;
  if (size < kHead) return 0;
  Options::ConsoleScrollback = true;
  const int columns = 1 + data[0] % 100, rows = 1 + data[1] % 40;
  const std::string_view output(reinterpret_cast<const char*>(data) + kHead, size - kHead);
  const TerminalResult whole = RunTerminal(output, columns, rows);
  Require(whole.IsSane(), "the screen is sane");
  Require(RunTerminal(output, columns, rows, [] { return 1; }) == whole, "byte by byte it is the same");
  std::minstd_rand random(1u + data[2]);
  Require(RunTerminal(output, columns, rows, [&] { return 1 + random() % 16; }) == whole,
          "in pieces it is the same");
  return 0;
}
