// The three fates of a command, through SpawnCommand and through the program.
#include "shell/spawn.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "config/values/options.h"
#include "console/scrollback.h"
#include "foundation/environment.h"
#include "session/command_fixture.h"
#include "support/console_fixture.h"

namespace {

// The file that a command is to open, as the viewer or the editor is asked for it.
std::string Viewed, Edited;

class Spawn : public ConsoleFixture {
 protected:
  Spawn() {
    Variables.Load();
    Viewed = Edited = "";
    Options::ConsoleScrollback = true;
    for (const char* name : {"pipe", "answer"}) EXPECT_EQ(mkfifo(name, 0600), 0);
    // This program links libX11 itself, and leaves a list where it is told to.
    std::filesystem::create_symlink(std::filesystem::read_symlink("/proc/self/exe"), "window program");
  }
  ~Spawn() override {
    TheBuiltIns = before;
    ScrollBack.Clear();
  }

  static int Run(const std::string& command) { return SpawnCommand(Westring(command.c_str()), 0); }

  static bool Links(const std::string& path) { return LinksX11(Westring(path.c_str())); }

  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(name, std::ios::binary) << content;
    chmod(name.c_str(), 0755);
  }

  // Of a pipe, all that is written until it is closed.
  static std::string Content(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }

 private:
  const BuiltInCommands before = TheBuiltIns;
};

constexpr char kListTests[] = "window\\ program --gtest_list_tests";

// The children of this process that have ended and are still there.
int Zombies() {
  int count = 0;
  for (const auto& process : std::filesystem::directory_iterator("/proc")) {
    std::ifstream file(process.path() / "stat");
    std::string stat;
    if (!std::getline(file, stat)) continue;
    char state = 0;
    int parent = 0;
    sscanf(stat.c_str() + stat.rfind(')') + 1, " %c %d", &state, &parent);
    count += state == 'Z' && parent == getpid();
  }
  return count;
}

}  // namespace

// ---- the terminal

TEST_F(Spawn, APlainProgramRunsOnTheTerminalAndItsOutputGoesToTheScrollback) {
  Write("file", "");
  EXPECT_EQ(Run("ls -l file; exit 3"), 3);
  EXPECT_TRUE(Row(kRows - 2).StartsWith("-rwxr-xr-x"));
  const int kept = ScrollBack.Count();
  EXPECT_EQ(Run("seq 100"), 0);
  EXPECT_EQ(ScrollBack.Count(), kept + 100);
}

TEST_F(Spawn, AProgramThatIsNotThereIsToldByTheShell) {
  EXPECT_EQ(Run("no-such-program x"), 127);
  EXPECT_TRUE(Row(kRows - 2).Contains("no-such-program: not found"));
  EXPECT_EQ(Run("./no/such/program"), 127);
  EXPECT_EQ(Run("no-such-program &"), 127);
  EXPECT_EQ(Run(""), 0);
}

TEST_F(Spawn, TheShellReadsAllOfTheLine) {
  EXPECT_EQ(Run("echo a\\ b|tr a x > out; echo \"c  d\" >> out; exit 2"), 2);
  EXPECT_EQ(Content("out"), "x b\nc  d\n");
}

TEST_F(Spawn, AnEscapedBlankIsPartOfTheProgramsName) {
  Write("my file", "#!/bin/sh\nprintf '<%s>' \"$@\" > out\nexit 5\n");
  EXPECT_EQ(Run("./my\\ file one two"), 5);
  EXPECT_EQ(Content("out"), "<one><two>");
}

// ---- programs with windows of their own

TEST_F(Spawn, TheLoaderTellsWhoLinksX11) {
  EXPECT_TRUE(Links("./window program"));
  EXPECT_FALSE(Links("/bin/sh"));
  EXPECT_FALSE(Links("./no-such-program"));
  Write("script", "#!/bin/sh\n# libX11\n");
  EXPECT_FALSE(Links("./script"));
  Write("text", std::string(5000, 'x') + " libX11");
  EXPECT_FALSE(Links("./text"));
  Write("empty", "");
  EXPECT_FALSE(Links("./empty"));
}

TEST_F(Spawn, WhatIsNoFileIsNotReadByTheLoader) {
  EXPECT_FALSE(Links("/"));
  EXPECT_FALSE(Links("/dev/zero"));
  EXPECT_FALSE(Links("./pipe"));  // nobody writes into it
  EXPECT_EQ(Run("./pipe"), 126);
}

TEST_F(Spawn, AProgramThatLinksX11GoesApartAndTheCallReturns) {
  const auto before = Snapshot();
  EXPECT_EQ(Run(std::string("./") + kListTests + " > pipe; echo end > answer"), 0);  // waits for a reader
  EXPECT_NE(Content("pipe").find("Spawn."), std::string::npos);
  EXPECT_EQ(Content("answer"), "end\n");
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(Spawn, AHashKeepsItOnTheTerminal) {
  EXPECT_EQ(Run(std::string("#./") + kListTests + "; exit 9"), 9);
  EXPECT_TRUE(Row(kRows - 2).StartsWith("  "));  // the list
  EXPECT_EQ(Run("#exit 4"), 4);
  EXPECT_EQ(Run("##exit 4"), 0);  // to the shell a comment
}

TEST_F(Spawn, AnAmpersandSendsAnyProgramAway) {
  const auto before = Snapshot();
  EXPECT_EQ(Run("sh -c 'echo text; tty > answer; exit 9'  &"), 0);
  EXPECT_EQ(Content("answer"), "not a tty\n");
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(Spawn, AHashInFrontLeavesTheAmpersandToTheShell) {
  EXPECT_EQ(Run("#cat pipe > out && echo end > answer &"), 0);
  EXPECT_EQ(Run("#exit 3 &"), 0);
}

TEST_F(Spawn, FiftyDetachedProgramsLeaveNoZombies) {
  for (int i = 0; i < 50; ++i) ASSERT_EQ(Run("sh -c 'exit 3' &"), 0);
  EXPECT_EQ(Run("exit 6"), 6);
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (Zombies() > 0 && std::chrono::steady_clock::now() < deadline) sched_yield();
  EXPECT_EQ(Zombies(), 0);
}

// ---- what runs inside

TEST_F(Spawn, TheViewerAndTheEditorAreCommands) {
  TheBuiltIns = {.view = [](const Westring& file) { Viewed = ToUtf8(file).Text(); },
                 .edit = [](const Westring& file) { Edited = ToUtf8(file).Text(); }};
  EXPECT_EQ(Run("$view /etc/passwd"), 0);
  EXPECT_EQ(Viewed, "/etc/passwd");
  EXPECT_EQ(Run("$VIEW   my\\ file  "), 0);
  EXPECT_EQ(Viewed, "my file");
  EXPECT_EQ(Run("#$View forced"), 0);
  EXPECT_EQ(Viewed, "forced");
  EXPECT_EQ(Edited, "");
  EXPECT_EQ(Run("$Edit a|b"), 0);
  EXPECT_EQ(Edited, "a|b");
  EXPECT_EQ(Run("$edit '\n'two'\n'lines\\ "), 0);
  EXPECT_EQ(Edited, "\ntwo\nlines ");
  EXPECT_EQ(Run("$edit"), 0);
  EXPECT_EQ(Edited, "");
}

TEST_F(Spawn, OtherWordsWithADollarGoToTheShell) {
  EXPECT_EQ(Run("$viewer x"), 127);
  EXPECT_EQ(Run("$SHELL -c 'exit 8'"), 8);
}

// ---- the environment, through the whole program

TEST(SpawnEnvironment, SettingsReachEveryKindOfChild) {
  Session s({}, {.settings = "PathAppend=/more/programs\n[Environment]\nOWN_NAME=own value\n",
                 .prepare = [](const Sandbox& files) { mkfifo(files.Path("left/pipe").c_str(), 0600); }});
  const std::string tell = "sh -c 'echo \"$OWN_NAME,$TERM,$PATH\"' > ";
  const std::string told = std::string("own value,xterm,") + getenv("PATH") + ":/more/programs\n";
  RunLine(s, tell + "out");
  EXPECT_EQ(s.Content("left/out"), told);
  RunLine(s, tell + "pipe &");
  EXPECT_EQ(s.Content("left/pipe"), told);
}

TEST(SpawnEnvironment, WhatIsSetReachesEveryKindOfChild) {
  Session s({}, {.prepare = [](const Sandbox& files) { mkfifo(files.Path("left/pipe").c_str(), 0600); }});
  RunLine(s, "set OWN_NAME=two words");
  RunLine(s, "set TERM=dumb");
  const std::string tell = "sh -c 'echo \"$OWN_NAME,$TERM\"' > ";
  RunLine(s, tell + "out");
  EXPECT_EQ(s.Content("left/out"), "two words,xterm\n");
  RunLine(s, tell + "pipe &");
  EXPECT_EQ(s.Content("left/pipe"), "two words,xterm\n");
}

TEST(SpawnEnvironment, AProgramOfPathAppendIsFound) {
  Session s({{"more/tool", "#!/bin/sh\necho on > ../ran\n"}}, {.prepare = [](const Sandbox& files) {
              chmod(files.Path("more/tool").c_str(), 0755);
              std::filesystem::create_directory(files.Path("home/.orvane"));
              std::ofstream(files.Path("home/.orvane/orvane.ini"))
                  << "PathAppend=" << files.Path("more") << "\n";
            }});
  RunLine(s, "tool");
  EXPECT_EQ(s.Content("ran"), "on\n");
}

TEST(SpawnEnvironment, AChildOnTheScreenOfTheProgramHasItsSize) {
  Session s;
  RunLine(s, "stty size > out");
  EXPECT_EQ(s.Content("left/out"), "25 80\n");
  s.Keys("Alt-F9");
  RunLine(s, "stty size > out");
  EXPECT_EQ(s.Content("left/out"), "50 80\n");
}
