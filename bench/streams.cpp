// What programs write, and the terminal by itself.
#include "streams.h"

#include <algorithm>
#include <cstdio>

#include "bare_screen.h"
#include "config/values/options.h"
#include "console/scrollback.h"
#include "table.h"

namespace {

constexpr size_t kStreamBytes = 20'000'000;
constexpr size_t kPiece = 4095;  // what one read of a flood brings

template <class Line>
std::string Stream(Line line) {
  std::string stream;
  for (int i = 0; stream.size() < kStreamBytes; ++i) stream += line(i);
  return stream;
}

std::string PlainLine(int i) {
  static const std::string kText =
      "It was the habit of the house to put every paper where the last one had lain, and so on. ";
  const size_t begin = static_cast<size_t>(i) % 20, length = 40 + static_cast<size_t>(i) % 37;
  return kText.substr(begin, length) + "\n";
}

std::string ListedLine(int i) {
  char line[200];
  snprintf(line, sizeof line,
           "drwxr-xr-x  2 root root %8d Jan %2d 12:%02d \033[0m\033[01;34mdirectory%d\033[0m  "
           "\033[01;32mprogram%d\033[0m\n",
           static_cast<int>(i * 4096L % 90'000'000), 1 + i % 28, i % 60, i, i % 977);
  return line;
}

// As the line discipline hands them on.
std::string WithReturns(const std::string& stream) {
  std::string result;
  for (const char c : stream) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

}  // namespace

std::string PlainLines() { return Stream(PlainLine); }
std::string ListedLines() { return Stream(ListedLine); }

std::string NumberedLines() {
  std::string stream;
  for (int i = 1; i <= kNumberedLines; ++i) stream += std::to_string(i) + "\n";
  return stream;
}

double EmulatorTime(const std::string& stream) {
  const std::string output = WithReturns(stream);
  BareScreen screen(kStreamColumns, kStreamRows);
  CTerminal terminal(screen, -1);
  Options::ConsoleScrollback = true;
  const double time = Seconds([&] {
    for (size_t at = 0; at < output.size(); at += kPiece) {
      terminal.Write(output.data() + at, static_cast<int>(std::min(kPiece, output.size() - at)));
    }
  });
  ScrollBack.Clear();
  return time;
}
