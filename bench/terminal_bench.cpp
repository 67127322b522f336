// The terminal by itself, without a window: bytes a second of three streams,
// and what the scrollback costs.
#include <malloc.h>

#include <string>
#include <vector>

#include "bare_screen.h"
#include "config/values/options.h"
#include "console/scrollback.h"
#include "streams.h"
#include "table.h"

namespace {

constexpr int kRounds = 5;
constexpr int kScrolledRows = 200000;
constexpr double kMostOfFiveBytes = 1.05;

BenchRow Speed(const std::string& what, const std::string& stream) {
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) times.push_back(EmulatorTime(stream));
  return {what, "MB/s", static_cast<double>(stream.size()) / 1e6 / Median(times), {}, {}};
}

size_t BytesInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

BenchRow ScrollbackMemory() {
  BareScreen screen(kStreamColumns, kStreamRows);
  CTerminal terminal(screen, -1);
  const size_t before = BytesInUse();
  while (ScrollBack.Count() < kScrolledRows) terminal.Write("line\r\n", 6);
  const auto used = static_cast<double>(BytesInUse() - before);
  ScrollBack.Clear();
  return {"scrollback of 200,000 rows", "bytes", used, 5.0 * kStreamColumns * kScrolledRows,
          kMostOfFiveBytes};
}

}  // namespace

int main() {
  Options::ConsoleScrollback = true;
  return PrintRows({Speed("plain lines", PlainLines()), Speed("coloured listing", ListedLines()),
                    Speed("numbers", NumberedLines()), ScrollbackMemory()});
}
