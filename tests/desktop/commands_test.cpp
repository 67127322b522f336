// Commands typed with real keys, and programs of the whole screen used with them.
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/desktop.h"

namespace {

constexpr int kBlack = 0, kBlue = 1;

bool IsInstalled(const std::string& program) {
  return system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

#define NEEDS(program) \
  if (!IsInstalled(program)) GTEST_SKIP() << program << " is not installed"

std::string ManyLines() {
  std::string text;
  for (int i = 1; i <= 200; ++i) text += "Line " + std::to_string(i) + "\n";
  return text;
}

class Commands : public testing::Test {
 protected:
  Commands() : d({{"left/text", ManyLines()}, {"right/other", ""}}) {}

  // As the panels stood before any command.
  void SetUp() override { atStart = PanelRows(); }

  // Without the frame at the top, whose lines reach into the blanks of the title.
  std::string PanelRows() const {
    std::string rows;
    for (int y = 1; y < 23; ++y) rows += d.Row(y) + "\n";
    return rows;
  }

  void Run(const std::string& line) {
    std::string script = "'";
    for (const char ch : line) script += ch == '\'' ? std::string("''") : std::string(1, ch);
    d.Keys(script + "' Enter");
  }

  // Until the child is there, keys are the program's own.
  [[nodiscard]] bool RunAndAwait(const std::string& line) {
    Run("echo up; " + line);
    return d.EventuallyShows("\nup ");
  }

  bool PanelsAreBackIntact() const {
    const bool areBack = d.Eventually([&] { return PanelRows() == atStart; });
    if (!areBack) ADD_FAILURE() << "They stood as\n" << atStart << "and now\n" << PanelRows();
    return areBack;
  }

  bool EventuallyIs(const std::string& name, const std::string& content) const {
    return d.Eventually([&] { return d.Content(name) == content; });
  }

  Desktop d;
  std::string atStart;
};

}  // namespace

TEST_F(Commands, OutputIsSeenBehindThePanels) {
  Run("echo seen; echo $((6 * 7)) > ../home/done");
  ASSERT_TRUE(EventuallyIs("home/done", "42\n"));
  EXPECT_TRUE(PanelsAreBackIntact());
  d.Keys("Ctrl-O");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(22).starts_with("seen ") || d.Row(21).starts_with("seen "); }));
  EXPECT_EQ(d.Background(5, 10), kBlack);
  d.Keys("Ctrl-O");
  EXPECT_TRUE(PanelsAreBackIntact());
  EXPECT_EQ(d.Background(5, 10), kBlue);
}

TEST_F(Commands, ControlCEndsASleep) {
  ASSERT_TRUE(RunAndAwait("sleep 1000"));
  d.Keys("Ctrl-c");
  EXPECT_TRUE(PanelsAreBackIntact());
}

TEST_F(Commands, KeysReachTheChildThroughTheLineEditingOfItsTerminal) {
  ASSERT_TRUE(RunAndAwait("cat > ../home/typed"));
  d.Keys("'onx' Backspace 'e two' Enter 'three' Enter Ctrl-d");
  EXPECT_TRUE(EventuallyIs("home/typed", "one two\nthree\n"));
  EXPECT_TRUE(PanelsAreBackIntact());
}

TEST_F(Commands, TheCursorLeavesNothingOnARowThatScrolls) {
  ASSERT_TRUE(RunAndAwait("cat"));
  d.Keys("'text'");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("text") && d.Row(24)[4] != ' '; }));
  d.Keys("Enter");
  const std::string row = "text" + std::string(76, ' ');
  EXPECT_TRUE(d.Eventually([&] { return d.Row(22) == row && d.Row(23) == row; }));
  d.Keys("Ctrl-d");
  EXPECT_TRUE(PanelsAreBackIntact());
}

// Where a shell and its job take turns, keys that come in between get lost: each
// of them shows first that it has the terminal.
TEST_F(Commands, ControlZStopsAJobOfAShellAndControlDLeavesIt) {
  NEEDS("bash");
  const auto promptsAre = [&](int count) {
    return d.Eventually([&] {
      int found = 0;
      const std::string screen = d.Screen();
      for (size_t at = 0; (at = screen.find("\nready: ", at)) != std::string::npos; ++at) ++found;
      return found == count;
    });
  };
  Run("PS1='ready: ' bash --norc --noprofile");
  ASSERT_TRUE(promptsAre(1));
  Run("sh -c 'echo up; exec sleep 1000'");
  ASSERT_TRUE(d.EventuallyShows("\nup "));
  d.Keys("Ctrl-z");
  ASSERT_TRUE(promptsAre(2));
  EXPECT_TRUE(d.EventuallyShows("Stopped"));
  Run("kill -KILL %1; wait; echo $((6 * 7)) > ../home/ended");
  EXPECT_TRUE(EventuallyIs("home/ended", "42\n"));
  ASSERT_TRUE(promptsAre(3));
  d.Keys("Ctrl-d");
  EXPECT_TRUE(PanelsAreBackIntact());
}

TEST(Modifiers, LetGoWhileAChildHasTheKeysAreHeldNoMore) {
  Desktop d({}, "Background=!\n");
  d.Keys("'echo up; read x' +Alt Enter");
  ASSERT_TRUE(d.EventuallyShows("\nup "));
  d.Keys("-Alt Enter");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1Help   2Menu"); }));
}

TEST(Modifiers, PressedWhileAChildHasTheKeysAreHeldAtItsEnd) {
  Desktop d;
  d.Keys("'echo up; read x' Enter");
  ASSERT_TRUE(d.EventuallyShows("\nup "));
  d.Keys("+Shift Enter");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1Manual 2MnMenu"); }));
  d.Keys("-Shift");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1Help   2Menu"); }));
}

TEST_F(Commands, APagerIsUsedAndLeft) {
  NEEDS("less");
  Run("less text");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(23).starts_with("Line 24 "); }));
  d.Keys("Down PgDn");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(0).starts_with("Line 26 "); }));
  d.Keys("End");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(23).starts_with("Line 200 "); }));
  d.Keys("q");
  EXPECT_TRUE(PanelsAreBackIntact());
}

TEST_F(Commands, AnEditorIsUsedAndLeft) {
  NEEDS("vi");
  Run("vi -u NONE -n text");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(23).starts_with("Line 24 "); }));
  d.Keys("Down d d i 'new ' Esc");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(1).starts_with("new Line 3 "); }));
  d.Keys("':w! ../home/saved' Enter ':q!' Enter");
  EXPECT_TRUE(PanelsAreBackIntact());
  EXPECT_TRUE(d.Content("home/saved").starts_with("Line 1\nnew Line 3\nLine 4\n"));
}
