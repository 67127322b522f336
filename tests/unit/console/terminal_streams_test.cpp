// What real programs have written to terminals, as recorded in tests/streams,
// and the screens that another terminal made of it.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "terminal_fixture.h"

namespace {

const std::filesystem::path kStreams = ORVANE_SOURCE_DIR "/tests/streams";

std::string Content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

class TerminalStreams : public TerminalTest {
 protected:
  TerminalStreams() {
    columns = 80;
    rows = 25;
  }

  // In the form of the recorded screens. Behind the last column the cursor of
  // other terminals stands on it.
  std::string Screen() const {
    std::string screen;
    for (int y = 0; y < rows; ++y) screen += Row(y) + "\n";
    return screen + "cursor " + std::to_string(std::min(result.x, columns - 1)) + " " +
           std::to_string(result.y) + "\n";
  }
};

}  // namespace

TEST_F(TerminalStreams, EndOnTheScreenOfAnotherTerminal) {
  int checked = 0;
  for (const auto& entry : std::filesystem::directory_iterator(kStreams)) {
    if (entry.path().extension() != ".raw") continue;
    const std::string name = entry.path().stem();
    const std::string output = Content(entry.path());
    result = RunTerminal(output, columns, rows);
    EXPECT_TRUE(result.IsSane()) << name;
    EXPECT_EQ(Screen(), Content(std::filesystem::path(entry.path()).replace_extension(".screen"))) << name;
    for (const int size : {1, 7, 64, 1023}) {
      EXPECT_TRUE(RunTerminal(output, columns, rows, [&] { return size; }) == result) << name << " by " << size;
    }
    ++checked;
  }
  EXPECT_GE(checked, 10);
}
