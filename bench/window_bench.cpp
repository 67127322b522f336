// What a user waits for: the start until both panels are painted, and a key
// until its pixels are there, in the panels and in the viewer. And what the idle
// program costs.
#include <X11/keysym.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "process.h"
#include "scratch.h"
#include "table.h"
#include "watcher.h"

namespace {

constexpr double kStartLimit = 2, kKeyLimit = 8;
constexpr int kColumns = 132, kRows = 50;
constexpr int kListRows = kRows - 6;  // the first in row 1 of the screen

// A home with settings, and a directory for both panels.
class Place {
 public:
  Place(int files, const std::string& settings) {
    scratch.Write("home/.orvane/orvane.ini", settings);
    scratch.Write("files/00000.txt", "");
    for (int i = 1; i < files; ++i) {
      char name[32];
      snprintf(name, sizeof name, "files/%05d.txt", i);
      scratch.MakeEmptyFile(name);
    }
  }
  void Write(const std::string& name, const std::string& content) const { scratch.Write(name, content); }
  std::string Home() const { return scratch.Path("home"); }
  std::string Files() const { return scratch.Path("files"); }

 private:
  Scratch scratch;
};

class RunningProgram : public Process {
 public:
  explicit RunningProgram(const Place& place)
      : Process({ORVANE_BENCH_PROGRAM}, place.Files(), place.Home()) {}
};

// ---- start -----------------------------------------------------------------

// How much of an area has that colour, 0 to 1.
double Share(const Image& image, unsigned long colour) {
  if (!image) return 0;
  int count = 0;
  for (int y = 0; y < image->height; ++y) {
    for (int x = 0; x < image->width; ++x) count += PixelOf(image, x, y) == colour;
  }
  return static_cast<double>(count) / (image->width * image->height);
}

// Both panels, and the function-key bar, which comes last.
bool ShowsPanels(const Watcher& screen) {
  const Area window = screen.FindWindow().area;
  if (window.width == 0) return false;
  const int half = window.width / 2, middle = window.y + window.height / 2;
  return Share(screen.Take({window.x, middle, half, 1}), kBlue) > 0.5 &&
         Share(screen.Take({window.x + half, middle, half, 1}), kBlue) > 0.5 &&
         Share(screen.Take({window.x, window.y + window.height - 3, window.width, 1}), kCyan) > 0.5;
}

bool ShowsLayout(const Watcher& screen) {
  const Area window = screen.FindWindow().area;
  return window.width > 0 && screen.Pixel(window.x + 1, window.y + 1) == kBlue;
}

// The window of the run before takes its time to go.
void AwaitEmptyScreen(Watcher& screen) {
  screen.Await("an empty screen", screen.Whole(), [&] { return screen.FindWindow().window == 0; });
  screen.AwaitRest(screen.Whole(), 100);
}

double StartTime(Watcher& screen, const std::vector<std::string>& command, const Place& place,
                 bool (*isPainted)(const Watcher&)) {
  AwaitEmptyScreen(screen);
  std::unique_ptr<Process> program;
  return Seconds([&] {
    program = std::make_unique<Process>(command, place.Files(), place.Home());
    screen.Await("the window", screen.Whole(), [&] { return isPainted(screen); });
  });
}

BenchRow MeasureStart(Watcher& screen) {
  const Place place(50, "");
  return CompareTimes(
      "start to both panels painted", 15, kStartLimit,
      [&] { return StartTime(screen, {ORVANE_BENCH_PROGRAM}, place, ShowsPanels); },
      [&] {
        return StartTime(screen, {ORVANE_BENCH_BARE_WINDOW, "start"}, place, ShowsLayout);
      });
}

// ---- keys ------------------------------------------------------------------

// The left panel at 132 by 50, and its cursor bar.
class PanelWatch {
 public:
  explicit PanelWatch(Watcher& watched) : screen(watched) {
    const Watcher::Frame frame = screen.FindWindow();
    window = frame.area;
    cellWidth = window.width / kColumns;
    cellHeight = window.height / kRows;
    screen.GiveKeyboardTo(frame.window);
    AwaitRest();
  }

  // Presses Down and waits for the bar on that row of the list.
  double StepTime(int row) {
    return Seconds([&] {
      screen.Press(XK_Down);
      AwaitBar(row, kCyan);
    });
  }

  // The same where the bar stays in the last row and another entry comes there.
  double ScrollTime() {
    const Image before = LastName();
    return Seconds([&] {
      screen.Press(XK_Down);
      AwaitLastName([&](const Image& name) { return HasBar(name, kCyan) && !AreEqual(before, name); });
    });
  }

  // Many at once, until the bar is on that entry in the last row.
  double BurstTime(int keys, const Image& entry) {
    return Seconds([&] {
      for (int i = 0; i < keys; ++i) screen.Press(XK_Down);
      AwaitLastName([&](const Image& name) { return AreEqual(entry, name); });
    });
  }

  void GoHome() {
    screen.Press(XK_Home);
    AwaitBar(0, kGreen);  // on a directory
    AwaitRest();
  }

  // Of the list's last row.
  Image LastName() const { return screen.Take(Name(kListRows - 1)); }

 private:
  // "00000.txt" and blanks, of the wider column.
  static constexpr int kNameWidth = 12;

  Area Name(int row) const {
    return {window.x + cellWidth, window.y + (row + 1) * cellHeight, kNameWidth * cellWidth, cellHeight};
  }
  // Name and bar are told from one picture: between two, much may be drawn.
  static bool HasBar(const Image& name, unsigned long colour) {
    return name && PixelOf(name, name->width - 1, name->height / 2) == colour;
  }
  void AwaitBar(int row, unsigned long colour) {
    const Area name = Name(row);
    screen.Await("the cursor bar", name, [&] { return HasBar(screen.Take(name), colour); });
  }
  void AwaitLastName(const std::function<bool(const Image&)>& condition) {
    screen.Await("a scrolled list", Name(kListRows - 1), [&] { return condition(LastName()); });
  }
  // Until nothing moves; the command line with its cursor is outside.
  void AwaitRest() { screen.AwaitRest({window.x, window.y, window.width / 2, (kRows - 3) * cellHeight}, 50); }

  Watcher& screen;
  Area window;
  int cellWidth = 0, cellHeight = 0;
};

// As a user holds a key, and as fast as each step can be shown. The first finds
// caches that others have used, so its reference draws at the same pace.
struct Pace {
  const char* name;
  int pauseMs;  // before each key, and before each row that the reference draws
  int scrolls;
  int referenceRows;
};
constexpr Pace kPaces[] = {{"held at 30 a second", 33, 40, 80}, {"one after the other", 0, 157, 1000}};
constexpr int kPaceCount = std::size(kPaces);
constexpr int kSteps = kListRows - 1;
constexpr int kRounds = 5;

// Seconds of each key, of all rounds.
struct KeyTimes {
  std::vector<double> step, scroll, burst, row;
};

double RowTime(const Pace& pace) {
  const std::string numbers = std::to_string(pace.referenceRows) + " " + std::to_string(pace.pauseMs);
  return NumberPrintedBy("'" ORVANE_BENCH_BARE_WINDOW "' row " + numbers) / 1e6;
}

void Rest(const Pace& pace) { std::this_thread::sleep_for(std::chrono::milliseconds(pace.pauseMs)); }

void MeasureKeysOnPanel(PanelWatch& panel, const Pace& pace, KeyTimes& times) {
  panel.GoHome();
  for (int row = 1; row <= kSteps; ++row) {
    Rest(pace);
    times.step.push_back(panel.StepTime(row));
  }
  for (int i = 0; i < pace.scrolls; ++i) {
    Rest(pace);
    times.scroll.push_back(panel.ScrollTime());
  }
  const Image entry = panel.LastName();
  const int keys = kSteps + pace.scrolls;
  panel.GoHome();
  times.burst.push_back(panel.BurstTime(keys, entry) / keys);
}

void MeasureRound(Watcher& screen, const Place& place, const Pace& pace, KeyTimes& times) {
  AwaitEmptyScreen(screen);
  times.row.push_back(RowTime(pace));
  AwaitEmptyScreen(screen);
  const RunningProgram program(place);
  screen.Await("the panels", screen.Whole(), [&] { return ShowsPanels(screen); });
  PanelWatch panel(screen);
  MeasureKeysOnPanel(panel, pace, times);
}

void MeasureKeys(Watcher& screen, std::vector<BenchRow>& rows) {
  const Place place(10'000, "Lines=50\r\nColumns=132\r\n");
  KeyTimes times[kPaceCount];
  for (int round = 0; round < kRounds; ++round) {
    for (int i = 0; i < kPaceCount; ++i) MeasureRound(screen, place, kPaces[i], times[i]);
  }
  for (int i = 0; i < kPaceCount; ++i) {
    const double row = Median(times[i].row) * 1e6;
    const std::string pace = kPaces[i].name;
    rows.push_back({"Down at 132x50 to pixels, " + pace, "us", Median(times[i].step) * 1e6, row, kKeyLimit});
    rows.push_back({"  where the list scrolls", "us", Median(times[i].scroll) * 1e6, row, {}});
    if (kPaces[i].pauseMs == 0)
      rows.push_back({"  200 at once, for each", "us", Median(times[i].burst) * 1e6, row, {}});
  }
}

// ---- the viewer --------------------------------------------------------------

// The beginning of its last row of text, while it scrolls.
class ViewerWatch {
 public:
  explicit ViewerWatch(Watcher& watched) : screen(watched) {
    screen.Await("the viewer", screen.Whole(), [&] { return ShowsViewer(); });
    const Watcher::Frame frame = screen.FindWindow();
    const int cellHeight = frame.area.height / kRows;
    lastRow = {frame.area.x, frame.area.y + (kRows - 2) * cellHeight, kShown * frame.area.width / kColumns,
               cellHeight};
    screen.GiveKeyboardTo(frame.window);
    screen.AwaitRest(frame.area, 100);
  }

  // Presses Down and waits until the next line stands there.
  double ScrollTime() {
    const Image before = screen.Take(lastRow);
    return Seconds([&] {
      screen.Press(XK_Down);
      screen.Await("a scrolled text", lastRow, [&] {
        const Image now = screen.Take(lastRow);
        return Share(now, kBlue) < 1 && !AreEqual(before, now);
      });
    });
  }

 private:
  static constexpr int kShown = 12;  // columns, with the line's number

  bool ShowsViewer() const {
    const Area window = screen.FindWindow().area;
    if (window.width == 0) return false;
    return Share(screen.Take({window.x, window.y + window.height / 2, window.width, 1}), kBlue) > 0.5 &&
           Share(screen.Take({window.x, window.y + window.height - 3, window.width, 1}), kCyan) > 0.5;
  }

  Watcher& screen;
  Area lastRow;
};

void MeasureViewer(Watcher& screen, std::vector<BenchRow>& rows) {
  constexpr int kLines = 10'000;
  const Place place(0, "Lines=50\r\nColumns=132\r\n");
  std::string text;
  for (int i = 0; i < kLines; ++i) text += std::to_string(i) + " is the number of this line of text\n";
  place.Write("files/text.txt", text);
  for (const Pace& pace : kPaces) {
    std::vector<double> scroll, row;
    for (int round = 0; round < kRounds; ++round) {
      AwaitEmptyScreen(screen);
      row.push_back(RowTime(pace));
      AwaitEmptyScreen(screen);
      const Process program({ORVANE_BENCH_PROGRAM, "-v", "text.txt"}, place.Files(), place.Home());
      ViewerWatch viewer(screen);
      for (int i = 0; i < pace.scrolls; ++i) {
        Rest(pace);
        scroll.push_back(viewer.ScrollTime());
      }
    }
    rows.push_back({std::string("viewer, a row down to pixels, ") + pace.name, "us", Median(scroll) * 1e6,
                    Median(row) * 1e6, kKeyLimit});
  }
}

// ---- idle ------------------------------------------------------------------

// The cursor ticks ten times a second, and the clock is looked at once. What is
// more is the window's thread, which two of the ticks make repaint the cursor.
BenchRow MeasureIdle(Watcher& screen) {
  constexpr int kDueInSecond = 11, kLimit = 2, kSeconds = 10;
  const Place place(50, "");
  AwaitEmptyScreen(screen);
  const RunningProgram program(place);
  screen.Await("the panels", screen.Whole(), [&] { return ShowsPanels(screen); });
  std::this_thread::sleep_for(std::chrono::seconds(1));

  const long before = program.Sleeps();
  std::this_thread::sleep_for(std::chrono::seconds(kSeconds));
  const double perSecond = static_cast<double>(program.Sleeps() - before) / kSeconds;
  return {"idle program, wake-ups of all its threads", "/s", perSecond, kDueInSecond, kLimit};
}

}  // namespace

int main() {
  Watcher screen;
  std::vector<BenchRow> rows;
  rows.push_back(MeasureStart(screen));
  MeasureKeys(screen, rows);
  MeasureViewer(screen, rows);
  rows.push_back(MeasureIdle(screen));
  return PrintRows(rows);
}
