// Whatever keys and clicks come, and whatever the file holds: what was painted piece
// by piece is what a repaint paints.
#include <gtest/gtest.h>

#include <random>

#include "session/viewer_screen.h"

namespace {

const char* const kScripts[] = {
    "Up",         "Down",      "Down Down",  "PgUp",          "PgDn",     "Space",
    "Left",       "Right",     "Ctrl-Left",  "Ctrl-Right",    "Home",     "End",
    "F2",         "F4",        "Alt-1",      "Alt-3",         "Alt-8",    "Alt-H",
    "Ctrl-L",     "Alt-T",     "Alt-F Esc",  "Alt-E Down",    "Alt-E Up", "Alt-L '7'",
    "Alt-L '90'", "Alt-O '3'", "Alt-O '9f'", "Alt-O '2bd'",   "F7 'e'",   "? 'a'",
    "Shift-F7",   "Alt-F7",    "Enter",      "+Shift -Shift", "Esc",
};

class ViewerAnyKeys : public testing::TestWithParam<unsigned> {
 protected:
  ViewerAnyKeys() : random(GetParam()) {}

  unsigned Below(size_t limit) { return static_cast<unsigned>(random() % limit); }

  // Text, or bytes that are none, with long lines and all line ends.
  std::string AnyText() {
    static const std::string kPieces[] = {"\n",   "\r\n", "\r",       "\n\r",           "\t",   " ",
                                          "a",    "line", "\xC3\xA9", "\xE4\xB8\x96",   "\xFF", "\x80",
                                          "\x07", "e ",   "end\n",    std::string(1, 0)};
    const size_t kinds = GetParam() % 2 ? std::size(kPieces) : 10;
    std::string text;
    for (int i = 0; i < 3000; ++i) {
      text += kPieces[Below(kinds)];
      if (Below(200) == 0) text += std::string(Below(500), 'x');
    }
    return text;
  }

  void Act(Session& s) {
    if (Below(5) > 0) {
      const char* const script = kScripts[Below(std::size(kScripts))];
      done += std::string(script) + "; ";
      return s.Keys(script);
    }
    const auto kind = Below(2) ? kMouseWheel : static_cast<MouseKind>(Below(kMouseWheel));
    const int x = static_cast<int>(Below(80)), y = static_cast<int>(Below(kBarRow));
    done += "mouse " + std::to_string(kind) + "; ";
    s.Mouse(kind, x, y, 0, Below(2) ? 1 : -1);
    s.Mouse(kMouseLeftRelease, x, y);
  }

  // The first row in which two pages differ, as bytes; -1 for none.
  static int Difference(const std::string& a, const std::string& b) {
    int row = 0;
    for (size_t i = 0; i < a.size() && i < b.size(); ++i) {
      if (a[i] != b[i]) return row;
      row += a[i] == '\n';
    }
    return a.size() == b.size() ? -1 : row;
  }

  std::string done;
  std::mt19937 random;
};

}  // namespace

TEST_P(ViewerAnyKeys, NothingStaleStays) {
  ViewerSession s(AnyText(), {.settings = "ScrollDelay=1000000\nTranslateCP=866,1251\n"});
  for (int i = 0; i < 200; ++i) {
    Act(s);
    if (!s.IsShown()) s.Keys("F3");
    ASSERT_TRUE(s.IsShown()) << i;
    if (s.FindRow("╔")) s.Keys("Enter");  // a box
    if (s.FindRow("╔")) s.Keys("Enter");  // and what it led to
    if (!s.IsShown()) s.Keys("F3");
    const std::string before = s.Page();
    s.Keys("Ctrl-L");
    ASSERT_EQ(Difference(before, s.Page()), -1) << done;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ViewerAnyKeys, testing::Range(1u, 9u));
