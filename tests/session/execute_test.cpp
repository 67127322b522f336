// Enter on an entry: directories, files with an association, programs, archives.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "panels/entry_source.h"
#include "session/command_fixture.h"

namespace {

using Strings = std::vector<std::string>;

const char kTellNameAndDirectory[] = "#!/bin/sh\nprintf '%s\\n' \"$0\" \"$(pwd)\"\n";

// Makes files of the left panel executable.
SessionSetup Programs(const Strings& names, const std::string& settings = "") {
  return {.settings = settings, .prepare = [names](const Sandbox& files) {
            for (const std::string& name : names) chmod(files.Path("left/" + name).c_str(), 0755);
          }};
}

SessionSetup Settings(const std::string& text) { return {.settings = text}; }

std::string LineOf(const Session& s) { return PromptRow(s).substr(PromptRow(s).find('>') + 1); }

}  // namespace

TEST(Execute, ATemplateWithoutAMacroGetsTheFileBehindIt) {
  Session s({{"left/a b.txt", "text"}}, Settings("[Associations]\n*.txt: cp -t ../right\n"));
  s.Keys("Down Enter");
  EXPECT_EQ(s.Content("right/a b.txt"), "text");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "a b.txt"}));
  s.Keys("Ctrl-E");
  EXPECT_EQ(LineOf(s), "cp -t ../right a\\ b.txt");  // it can be run again
}

TEST(Execute, ATemplatesMacrosStandForTheFile) {
  Session s({{"left/a.txt", "text"}}, Settings("[Associations]\n*.txt: cp !f ../right/!x-!x\n"));
  s.Keys("Down Enter");
  EXPECT_EQ(s.Content("right/a-a"), "text");
}

TEST(Execute, AFileOfAnyNameIsTheArgument) {
  for (const std::string name : {"a&", "b ", "c\\", "#d", "-e", "f\n", "g;", "h!", "i$HOME", "j\\&"}) {
    Session s({{"left/" + name, ""}}, Settings("[Associations]\n*: printf %s > ../out\n"));
    s.Keys("Down Enter");
    EXPECT_EQ(s.Content("out"), name);
  }
}

TEST(Execute, AProgramOfAnyNameRuns) {
  for (const std::string name : {"a&", "b ", "c\\", "#d", "-e", "f\n", "g;", "h!", "i$HOME", "j\\&"}) {
    Session s({{"left/" + name, "#!/bin/sh\ntouch ../ran\n"}}, Programs({name}));
    s.Keys("Down Enter");
    EXPECT_TRUE(s.Exists("ran")) << name;
  }
}

TEST(Execute, TheFirstRuleThatFitsWins) {
  Session s({{"left/a.txt", "text"}},
            Settings("[Associations]\n*.c: touch ../c\na*: touch ../first\n*.txt: touch ../second\n"));
  s.Keys("Down Enter");
  EXPECT_TRUE(s.Exists("first"));
  EXPECT_FALSE(s.Exists("second"));
}

TEST(Execute, AnAssociationComesBeforeRunningTheFile) {
  Session s({{"left/run.sh", "#!/bin/sh\ntouch ../ran\n"}},
            Programs({"run.sh"}, "[Associations]\n*.sh: cp -t ../right\n"));
  s.Keys("Down Enter");
  EXPECT_TRUE(s.Exists("right/run.sh"));
  EXPECT_FALSE(s.Exists("ran"));
}

TEST(Execute, AProgramRunsByItsWholePathInThePanelsDirectory) {
  Session s({{"left/run it", kTellNameAndDirectory}}, Programs({"run it"}));
  s.Keys("Down Enter");
  const Strings text = ConsoleText(s);
  EXPECT_EQ(text, (Strings{Prompt(s) + s.Path("left/run\\ it"), s.Path("left/run it"), s.Path("left"), ""}));
}

TEST(Execute, AnyExecuteBitMakesAProgram) {
  Session s({{"left/run", "#!/bin/sh\ntouch ../ran\n"}},
            {.prepare = [](const Sandbox& files) { chmod(files.Path("left/run").c_str(), 0401); }});
  s.Keys("Down Enter");
  EXPECT_EQ(ConsoleText(s)[0], Prompt(s) + s.Path("left/run"));
}

TEST(Execute, ThePromptDoublesTheMacroCharacterAndTheCommandDoesNot) {
  Session s({{"left/wow!", "#!/bin/sh\ntouch ../ran\n"}}, Programs({"wow!"}));
  s.Keys("Down Enter");
  EXPECT_TRUE(s.Exists("ran"));
  EXPECT_EQ(ConsoleText(s)[0], Prompt(s) + s.Path("left/wow\\!!"));
}

TEST(Execute, WithoutThePathPromptItBeginsWithTheRoot) {
  Session s({{"left/run", "#!/bin/sh\n"}}, Programs({"run"}, "PathPrompt=off\n"));
  s.Keys("Down Enter");
  EXPECT_EQ(ConsoleText(s)[0], "/:>" + s.Path("left/run"));
  RunLine(s, "true");
  EXPECT_EQ(ConsoleText(s)[2], "/t>true");
}

TEST(Execute, ALongPathIsShortenedInThePrompt) {
  const std::string name = "left/" + std::string(60, 'd');
  Session s({{name + "/run", "#!/bin/sh\n"}},
            {.prepare = [&](const Sandbox& files) { chmod(files.Path(name + "/run").c_str(), 0755); }});
  const std::string prompt = "/tmp/..." + std::string(31, 'd') + ">";
  s.Keys("Down Enter Down Enter");
  EXPECT_EQ(ConsoleText(s)[0], (prompt + s.Path(name + "/run")).substr(0, 80));
  RunLine(s, "true");
  EXPECT_EQ(ConsoleText(s)[2], prompt + "true");
}

TEST(Execute, APlainFileDoesNothing) {
  Session s({{"left/plain", "#!/bin/sh\ntouch ../ran\n"}}, {.prepare = [](const Sandbox& files) {
              ASSERT_EQ(symlink("nowhere", files.Path("left/dangling").c_str()), 0);
            }});
  for (const char* keys : {"Down", "Down"}) {
    s.Keys(keys);
    const std::string before = s.Screen();
    s.Keys("Enter Alt-Enter");
    EXPECT_EQ(s.Screen(), before);
  }
  EXPECT_FALSE(s.Exists("ran"));
  EXPECT_EQ(ConsoleText(s), Strings{});
}

TEST(Execute, ACancelledQuestionRunsNothing) {
  Session s({{"left/a.txt", ""}}, Settings("[Associations]\n*.txt: touch ../ran !i\n"));
  const std::string before = s.Screen();
  s.Keys("Down Up");
  s.Keys("Down Enter Esc Up");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_FALSE(s.Exists("ran"));
}

TEST(Execute, AltEnterPutsTheFilesCommandIntoTheTemplate) {
  Session s({{"left/a.txt", "text"}, {"left/run", "#!/bin/sh\necho ran >> ../log\n"}},
            Programs({"run"}, "Background=! && !\n[Associations]\n*.txt: cat >> ../log\n"));
  s.Keys("Down Alt-Enter");
  EXPECT_EQ(s.Content("log"), "texttext");
  s.Keys("Ctrl-E");
  EXPECT_EQ(LineOf(s), "cat >> ../log a.txt && cat >> ../log a.txt");
  s.Keys("Esc Down Alt-Enter");
  EXPECT_EQ(s.Content("log"), "texttextran\nran\n");
}

TEST(Execute, AnAssociationMayChangeTheDirectory) {
  Session s({{"left/a.go", ""}}, Settings("[Associations]\n*.go: cd ../right!n\n"));
  s.Keys("Down Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
}

TEST(Execute, ADirectoryIsEnteredWhateverTheRulesSay) {
  Session s({{"left/a.txt/x", ""}}, Settings("[Associations]\n*: touch ../ran\n"));
  s.Keys("Down Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a.txt"));
  EXPECT_FALSE(s.Exists("ran"));
}

TEST(Execute, NothingIsDoneOnAnInformationPanelOrBehindHiddenPanels) {
  Session s({{"left/run", "#!/bin/sh\ntouch ../ran\n"}}, Programs({"run"}));
  s.Keys("Down Ctrl-O Enter Alt-Enter Ctrl-O Tab Ctrl-L Enter Tab Tab");
  EXPECT_FALSE(s.Exists("ran"));
}

TEST(Execute, ADoubleClickIsEnter) {
  Session s({{"left/run", "#!/bin/sh\ntouch ../ran\n"}}, Programs({"run"}));
  s.Mouse(kMouseLeftDouble, 3, 2);
  EXPECT_TRUE(s.Exists("ran"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "run"}));
}

namespace {

class NoEntries : public EntrySource {
 public:
  int First(entry*&) override { return kNoMoreEntries; }
  int Next(entry*&) override { return kNoMoreEntries; }
};

class EmptyArchive : public ArchiveLevel {
 public:
  explicit EmptyArchive(const Westring& path) : ArchiveLevel(path) {}
  bool StillThere() const override { return true; }
  std::unique_ptr<EntrySource> Open(const Westring&) override { return std::make_unique<NoEntries>(); }
  bool Lookup(const Westring&, uint16_t&) override { return false; }
};

// Files named "*.box" are archives, while it lives.
class Boxes {
 public:
  Boxes() {
    OpenArchive = [](const Westring& path, ArchiveLevel*) -> std::unique_ptr<ArchiveLevel> {
      if (Find(path, L".box") < 0) return nullptr;
      return std::make_unique<EmptyArchive>(path);
    };
  }
  ~Boxes() { OpenArchive = nullptr; }
};

}  // namespace

TEST(Execute, AFileWithoutACommandIsTriedAsAnArchive) {
  const Boxes boxes;
  Session s({{"left/a.box", ""}});
  s.Keys("Down Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a.box"));
  s.Keys("Ctrl-PgUp");
  EXPECT_EQ(s.Under(kLeftSide), "a.box");
}

TEST(Execute, AnAssociationComesBeforeTheArchive) {
  const Boxes boxes;
  Session s({{"left/a.box", ""}}, Settings("[Associations]\n*.box: touch ../ran\n"));
  s.Keys("Down Enter");
  EXPECT_TRUE(s.Exists("ran"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(Execute, ACancelledQuestionOpensTheArchive) {
  const Boxes boxes;
  Session s({{"left/a.box", ""}}, Settings("[Associations]\n*.box: touch ../ran !i\n"));
  s.Keys("Down Enter Esc");
  EXPECT_FALSE(s.Exists("ran"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a.box"));
}

TEST(Execute, InAnArchiveCommandsRunInTheDirectoryThatHoldsIt) {
  const Boxes boxes;
  Session s({{"left/a.box", ""}});
  s.Keys("Down Enter");
  RunLine(s, "pwd > where");
  EXPECT_EQ(s.Content("left/where"), s.Path("left") + "\n");
}
