// The terminal by itself, without a window: bytes a second of three streams,
// and what the scrollback costs.
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "config/values/options.h"
#include "console/scrollback.h"
#include "console/terminal.h"
#include "table.h"

namespace {

constexpr int kColumns = 80, kRows = 25;
constexpr size_t kStreamBytes = 20 << 20;
constexpr int kMostLines = 1 << 18;  // each is kept
constexpr size_t kPiece = 1023;      // what one read of a child's output brings
constexpr int kRounds = 5;
constexpr int kScrolledRows = 200000;
constexpr double kMostOfFiveBytes = 1.05;

class BareScreen : public TerminalScreen {
 public:
  CellGrid& Grid() override { return grid; }
  void GetCursor(int& x, int& y) const override { x = cursorX, y = cursorY; }
  void SetCursor(int x, int y) override { cursorX = x, cursorY = y; }
  int CursorSize() const override { return cursorSize; }
  void SetCursorSize(int percent) override { cursorSize = percent; }
  void Beep() override {}
  void Changed(const CellRect&) override {}
  void Scrolled(const CellRect&, int) override {}

 private:
  CellGrid grid{kColumns, kRows};
  int cursorX = 0, cursorY = 0, cursorSize = 15;
};

template <class Line>
std::string Stream(Line line) {
  std::string stream;
  for (int i = 0; i < kMostLines && stream.size() < kStreamBytes; ++i) stream += line(i);
  return stream;
}

std::string PlainLine(int i) {
  static const std::string kText =
      "It was the habit of the house to put every paper where the last one had lain, and so on. ";
  const size_t begin = i % 20, length = 40 + i % 37;
  return kText.substr(begin, length) + "\r\n";
}

std::string ListedLine(int i) {
  char line[200];
  snprintf(line, sizeof line,
           "drwxr-xr-x  2 root root %8d Jan %2d 12:%02d \033[0m\033[01;34mdirectory%d\033[0m  "
           "\033[01;32mprogram%d\033[0m\r\n",
           i * 4096 % 90000000, 1 + i % 28, i % 60, i, i % 977);
  return line;
}

std::string NumberLine(int i) { return std::to_string(i + 1) + "\r\n"; }

void Feed(CTerminal& terminal, const std::string& stream) {
  for (size_t at = 0; at < stream.size(); at += kPiece) {
    terminal.Write(stream.data() + at, static_cast<int>(std::min(kPiece, stream.size() - at)));
  }
}

BenchRow Speed(const std::string& what, const std::string& stream) {
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    BareScreen screen;
    CTerminal terminal(screen, -1);
    times.push_back(Seconds([&] { Feed(terminal, stream); }));
    ScrollBack.Clear();
  }
  const double megabytes = static_cast<double>(stream.size()) / 1e6;
  return {what, "MB/s", megabytes / Median(times), {}, {}};
}

size_t BytesInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

BenchRow ScrollbackMemory() {
  BareScreen screen;
  CTerminal terminal(screen, -1);
  const size_t before = BytesInUse();
  while (ScrollBack.Count() < kScrolledRows) terminal.Write("line\r\n", 6);
  const auto used = static_cast<double>(BytesInUse() - before);
  ScrollBack.Clear();
  return {"scrollback of 200,000 rows", "bytes", used, 5.0 * kColumns * kScrolledRows, kMostOfFiveBytes};
}

}  // namespace

int main() {
  Options::ConsoleScrollback = true;
  return PrintRows({Speed("plain lines", Stream(PlainLine)), Speed("coloured listing", Stream(ListedLine)),
                    Speed("numbers", Stream(NumberLine)), ScrollbackMemory()});
}
