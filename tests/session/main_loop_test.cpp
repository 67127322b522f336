// What the start leaves behind, and what a pass of the main loop paints.
#include <gtest/gtest.h>
#include <unistd.h>

#include "console/console.h"
#include "foundation/paths.h"
#include "session/main_screen.h"
#include "support/stream_capture.h"

namespace {

std::string Directory() { return ToUtf8(CurrentDirectory()).Text(); }

}  // namespace

TEST(StartAgain, ASecondRunActivatesItsSideAnew) {
  Session first;
  EXPECT_EQ(Directory(), first.Path("left"));
  first.Quit();
  Session second;
  EXPECT_EQ(Directory(), second.Path("left"));
}

TEST(StartUp, TheEditorIsRefusedWhenTheViewerWasLeft) {
  StreamCapture errors(STDERR_FILENO);
  Session s({{"a", "text\n"}}, {.arguments = {{"-e", "b", "-v", "a"}}});
  EXPECT_TRUE(s.Row(1).StartsWith("text "));
  s.Keys("Esc");
  EXPECT_EQ(s.ExitCode(), 1);
  EXPECT_EQ(errors.Stop(), "orvane: the internal editor is not part of this version\n");
}

// Three rows tell of each directory that is not there. Of eight rows those and the
// line feeds need nine, so that the first one leaves the screen.
TEST(StartUp, TwoLineFeedsPartTheConsoleTextFromThePrompt) {
  const std::string missing = "/" + std::string(200, 'x');
  Session s({}, {.settings = "Lines=8\n",
                 .arguments = std::vector<std::string>{"-l", missing + "/left", "-r", missing + "/right"}});
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.FindRow("x/left "), 1);
  EXPECT_EQ(s.FindRow("x/right "), 4);
  EXPECT_EQ(s.Row(5).Trimmed(), "");
}

TEST(MainLoop, WithTheCursorTheOtherSidesStatusLineIsPaintedToo) {
  Session s({{"left/a", ""}, {"right/b", ""}});
  Console->PutString(45, 21, L"mark", 0x07);
  s.Keys("Down");
  EXPECT_EQ(s.Text(40, 21, 8), "║..     ");
  Console->PutString(45, 21, L"mark", 0x07);
  s.Keys("'x'");  // leaves the cursor where it is
  EXPECT_EQ(s.Text(45, 21, 4), "mark");
}
