// Whatever keys and clicks come, in whatever order, the screen stays in order:
// each panel is where the program thinks it is, with one cursor bar between them.
#include <gtest/gtest.h>

#include <cwchar>
#include <random>

#include "panels/panel.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"
#include "support/faults.h"

namespace {

const char* const kScripts[] = {
    "Up",           "Down",           "Left",         "Right",        "PgUp",
    "PgDn",         "Home",           "End",          "Ins",          "Del",
    "Backspace",    "Enter",          "Tab",          "Shift-Tab",    "Esc",
    "Ctrl-O",       "Ctrl-P",         "Ctrl-U",       "Ctrl-L",       "Ctrl-R",
    "Ctrl-H",       "Ctrl-F1",        "Ctrl-F2",      "Ctrl-F3",      "Ctrl-F6",
    "Ctrl-F7",      "Ctrl-F8",        "Ctrl-E",       "Ctrl-X",       "Ctrl-Enter",
    "Ctrl-f",       "Ctrl-Left",      "Ctrl-Right",   "Ctrl-[",       "Ctrl-]",
    "Ctrl-\\",      "Ctrl--",         "Ctrl-Shift-'", "Ctrl-PgUp",    "Ctrl-PgDn",
    "Ctrl-G",       "Ctrl-1",         "Ctrl-Shift-1", "Ctrl-9",       "Alt-Up",
    "Alt-Down",     "Alt-Home",       "Alt-Right",    "Alt-Shift-F1", "Alt-Shift-F2",
    "Alt-Shift-F3", "Alt-Shift-F4",   "Alt-Shift-F5", "Alt-F9",       "Alt-Shift-F9",
    "'ab cd'",      "-Shift F10 Esc", "+Shift",       "-Shift",       "+Ctrl",
    "-Ctrl",        "+Alt",           "-Alt",
};

// Styles, information, re-reads and toggles of the menus.
constexpr Key kCommands[] = {0x10000D, 0x10000E, 0x100010, 0x100014, 0x100019, 0x10001B, 0x100000, 0x100193,
                             0x100013, 0x10019B, 0x10012E, 0x10012F, 0x100131, 0x100132, 0x100136, 0x100137};

class AnyKeys : public testing::TestWithParam<unsigned> {
 protected:
  AnyKeys() : random(GetParam()) {}

  unsigned Below(size_t limit) { return static_cast<unsigned>(random() % limit); }

  void Act(Session& s) {
    const unsigned what = Below(10);
    if (what < 6) {
      s.Keys(kScripts[Below(std::size(kScripts))]);
    } else if (what < 7) {
      s.Command(kCommands[Below(std::size(kCommands))]);
    } else {
      // Not on the bar, whose keys lead anywhere, nor where the right button brings up the menus.
      const auto kind = static_cast<MouseKind>(Below(kMouseWheel + 1));
      const unsigned top = kind == kMouseRightPress ? 1 : 0;
      s.Mouse(kind, static_cast<int>(Below(s.Columns())), static_cast<int>(top + Below(s.Rows() - 1 - top)),
              0, Below(2) ? 1 : -1);
    }
  }

  std::mt19937 random;
};

int CountBars(const Session& s, SessionSide side) {
  int bars = 0;
  for (int y = 1; y <= PanelRows; ++y) {
    bool hasBar = false;
    for (int x = FirstColumn(s, side); x < FirstColumn(s, side) + s.Columns() / 2; ++x) {
      const int attribute = s.Attribute(x, y);
      hasBar |= attribute == 0x30 || attribute == 0x20 || attribute == 0x3E;
    }
    bars += hasBar;
  }
  return bars;
}

void ExpectOrder(const Session& s, SessionSide side) {
  const TPanel& panel = Panels[side];
  ASSERT_EQ(IsShown(s, side), panel.visible);
  if (!panel.IsVisibleFiles()) return;
  ASSERT_GE(panel.topIndex, 0);
  ASSERT_GE(panel.cursorRow, 0);
  ASSERT_LT(panel.cursorRow, panel.visibleEntries);
  ASSERT_LT(panel.CurrentIndex(), panel.count);
  ASSERT_EQ(CountBars(s, side), side == s.Active() ? 1 : 0);
}

// Every cell but those of the clock's row and of the bar, which follow the time and the modifiers.
std::string Cells(const Session& s) {
  std::string cells;
  for (int y = 1; y < s.Rows() - 1; ++y) {
    cells += s.Row(y).String();
    for (int x = 0; x < s.Columns(); ++x) cells += static_cast<char>(s.Attribute(x, y));
  }
  return cells;
}

// What was painted piece by piece is what a full redraw paints.
void ExpectNothingStale(Session& s) {
  const std::string before = Cells(s);
  for (int i = 0; i < 2; ++i) s.Command(kMenuThousandSep);  // each redraws both panels
  ASSERT_EQ(Cells(s), before);
}

// Out of directories that are another machine's business, or change by themselves.
void ComeBack(Session& s) {
  for (SessionSide side : {kLeftSide, kRightSide}) {
    if (s.PanelPath(side).compare(0, s.Path().size(), s.Path()) == 0) continue;
    wcscpy(Panels[side].path, Westring(s.Path("left").c_str()).Text());
    s.Command(side == kLeftSide ? kMenuLeftReRead : kMenuRightReRead);
  }
}

}  // namespace

TEST_P(AnyKeys, LeaveTheScreenInOrder) {
  FileList files = NumberedFiles("left", 70);
  files.insert(files.end(), {{"left/dir/inner/x", ""}, {"right/.hidden", ""}, {"right/sub/y", ""}});
  Session s(files, {.settings = "ScrollDelay=0\n",
                    .environment = {{"PATH", "/nonexistent"}, {"SHELL", "/bin/true"}}});
  const ReadOnlyOutside contained(s.Path());
  for (int step = 0; step < 1000; ++step) {
    Act(s);
    ASSERT_FALSE(s.HasEnded());
    if (s.FindRow("[ OK ]")) continue;
    ComeBack(s);
    for (SessionSide side : {kLeftSide, kRightSide}) {
      ExpectOrder(s, side);
      if (HasFatalFailure()) FAIL() << "in step " << step << ", side " << side;
    }
    if (step % 5 == 0) ExpectNothingStale(s);
    if (HasFatalFailure()) FAIL() << "in step " << step;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyKeys, testing::Values(1u, 2u, 3u));
