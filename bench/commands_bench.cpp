// Commands on the grid, from the key that starts them to the last pixels of
// what they wrote, and another terminal doing the same: floods of output, and
// a key's echo. And what the lines that scrolled off cost.
#include <X11/keysym.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "process.h"
#include "scratch.h"
#include "streams.h"
#include "table.h"
#include "watcher.h"

namespace {

constexpr double kFloodLimit = 1, kEchoLimit = 1.5, kMemoryLimit = 1.3;
constexpr int kRounds = 5;
constexpr int kEchoes = 60;  // of a round; they stay within one row
constexpr int kEchoPauseMs = 33;
constexpr int kAboveLetter = 3;            // pixels down the window, in its first row and in no letter x
constexpr unsigned long kMark = 0x7F007F;  // no stream has this ground
constexpr double kBytesInCell = 5;

// ---- who runs them -----------------------------------------------------------

// Both have the font, the size and the mark's colour that ours has by itself.
const std::vector<std::string> kOurs = {ORVANE_BENCH_PROGRAM};
const std::vector<std::string> kOther = {"/usr/bin/env",
                                         "xterm",
                                         "-fa",
                                         "DejaVu Sans Mono",
                                         "-fs",
                                         "12",
                                         "-geometry",
                                         std::to_string(kStreamColumns) + "x" + std::to_string(kStreamRows),
                                         "+sb",
                                         "-b",
                                         "0",
                                         "-bg",
                                         "black",
                                         "-fg",
                                         "gray75",
                                         "-xrm",
                                         "XTerm*color5: #7F007F",
                                         "-e",
                                         "sh"};

struct Stream {
  const char* name;
  const char* script;  // letters, so that it can be typed
  const char* command;
  std::string (*content)();
};
constexpr Stream kStreams[] = {
    {"cat of 20 MB of plain lines", "plain", "cat plain.txt", PlainLines},
    {"cat of 20 MB of coloured listing", "listing", "cat listing.txt", ListedLines},
    {"seq 200000", "numbers", "seq 200000", NumberedLines},
};

// Scripts, each of which leaves its last state on the screen.
class Place {
 public:
  Place() {
    scratch.MakeDirectory("home");
    for (const Stream& stream : kStreams) {
      scratch.Write(std::string("files/") + stream.script + ".txt", stream.content());
      Script(stream.script,
             stream.command + std::string("\nprintf '\\033[45m%79s\\033[0m' ''\nread answer\n"));
    }
    // From here on each letter that cat takes and writes has the mark as its ground.
    Script("echoes", "stty -icanon -echo\nprintf '\\033[2J\\033[H\\033[45m'\nexec cat\n");
  }
  std::string Home() const { return scratch.Path("home"); }
  std::string Files() const { return scratch.Path("files"); }

 private:
  void Script(const std::string& name, const std::string& lines) { scratch.Write("files/" + name, lines); }

  Scratch scratch;
};

// A program on the screen, with the keyboard.
class Running {
 public:
  Running(Watcher& watched, const std::vector<std::string>& command, const Place& place)
      : screen(watched), emptied(AwaitEmpty()), process(command, place.Files(), place.Home()) {
    screen.Await("a window", screen.Whole(), [&] { return screen.FindWindow().window != 0; });
    screen.AwaitRest(screen.Whole(), 300);
    const Watcher::Frame frame = screen.FindWindow();
    window = frame.area;
    screen.GiveKeyboardTo(frame.window);
  }

  // All of the command but Enter.
  void Type(const std::string& command) {
    for (const char c : command) screen.Press(static_cast<KeySym>(c));
    screen.AwaitRest(screen.Whole(), 150);
  }

  // Seconds from Enter until a row of marks stands at the bottom.
  double RunTime() {
    const int x = window.x + window.width / 2, bottom = window.y + window.height - CellHeight() / 2;
    return Seconds([&] {
      screen.Press(XK_Return);
      screen.AwaitInFlood("the last line", [&] { return screen.Pixel(x, bottom) == kMark; });
    });
  }

  void Start() {
    screen.Press(XK_Return);
    screen.AwaitRest(screen.Whole(), 300);
  }

  // Seconds from a key until its letter stands in that column of the first row.
  double EchoTime(int column) {
    const int x = window.x + column * CellWidth() + CellWidth() / 2, y = window.y + kAboveLetter;
    return Seconds([&] {
      screen.Press(XK_x);
      screen.Await("an echo", {x, y, 1, 1}, [&] { return screen.Pixel(x, y) == kMark; });
    });
  }

  int CellWidth() const { return window.width / kStreamColumns; }
  int CellHeight() const { return window.height / kStreamRows; }
  double ResidentBytes() const { return process.ResidentBytes(); }

 private:
  // The window of the run before takes its time to go.
  bool AwaitEmpty() {
    screen.Await("an empty screen", screen.Whole(), [&] { return screen.FindWindow().window == 0; });
    screen.AwaitRest(screen.Whole(), 100);
    return true;
  }
  Watcher& screen;
  bool emptied;
  Process process;
  Area window;
};

// ---- floods ------------------------------------------------------------------

struct FloodTimes {
  std::vector<double> ours, other, alone, grown;
};

double FloodTime(Watcher& screen, const Place& place, const std::vector<std::string>& program,
                 const Stream& stream, std::vector<double>* grown) {
  Running running(screen, program, place);
  running.Type(std::string("sh ") + stream.script);
  const double before = running.ResidentBytes();
  const double time = running.RunTime();
  if (grown != nullptr) grown->push_back(running.ResidentBytes() - before);
  return time;
}

FloodTimes MeasureFlood(Watcher& screen, const Place& place, const Stream& stream) {
  const std::string content = stream.content();
  FloodTimes times;
  for (int round = 0; round < kRounds; ++round) {
    times.ours.push_back(FloodTime(screen, place, kOurs, stream, &times.grown));
    times.other.push_back(FloodTime(screen, place, kOther, stream, nullptr));
    times.alone.push_back(EmulatorTime(content));
  }
  return times;
}

void MeasureFloods(Watcher& screen, const Place& place, std::vector<BenchRow>& rows) {
  for (const Stream& stream : kStreams) {
    const FloodTimes times = MeasureFlood(screen, place, stream);
    const double megabytes = static_cast<double>(stream.content().size()) / 1e6;
    const double ours = Median(times.ours);
    rows.push_back({stream.name, "ms", ours * 1e3, Median(times.other) * 1e3, kFloodLimit});
    rows.push_back({"  emulator alone, beside the window",
                    "MB/s",
                    megabytes / Median(times.alone),
                    megabytes / ours,
                    {}});
    if (stream.content == NumberedLines) {
      rows.push_back({"  memory grown, beside five bytes a cell", "MB", Median(times.grown) / 1e6,
                      kBytesInCell * kStreamColumns * kNumberedLines / 1e6, kMemoryLimit});
    }
  }
}

// ---- echo --------------------------------------------------------------------

void MeasureEchoes(Watcher& screen, const Place& place, const std::vector<std::string>& program, int pauseMs,
                   std::vector<double>& times) {
  Running running(screen, program, place);
  running.Type("sh echoes");
  running.Start();
  for (int column = 0; column < kEchoes; ++column) {
    std::this_thread::sleep_for(std::chrono::milliseconds(pauseMs));
    times.push_back(running.EchoTime(column));
  }
}

BenchRow MeasureEcho(Watcher& screen, const Place& place, const char* what, int pauseMs) {
  std::vector<double> ours, other;
  for (int round = 0; round < kRounds; ++round) {
    MeasureEchoes(screen, place, kOurs, pauseMs, ours);
    MeasureEchoes(screen, place, kOther, pauseMs, other);
  }
  return {what, "us", Median(ours) * 1e6, Median(other) * 1e6, kEchoLimit};
}

}  // namespace

int main() {
  Watcher screen;
  const Place place;
  std::vector<BenchRow> rows;
  MeasureFloods(screen, place, rows);
  rows.push_back(
      MeasureEcho(screen, place, "key to its echo on the pixels, held at 30 a second", kEchoPauseMs));
  rows.push_back(MeasureEcho(screen, place, "  one after the other", 0));
  return PrintRows(rows);
}
