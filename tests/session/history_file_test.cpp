// The history file over the life of the program.
#include <gtest/gtest.h>

#include <filesystem>

#include "panels/panel.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"

namespace {

constexpr char kFile[] = "home/.orvane/orvane.hst";

std::string LineOf(const Session& s) { return PromptRow(s).substr(PromptRow(s).find('>') + 1); }

}  // namespace

TEST(HistoryFileOfASession, CommandsOfTheLastRunAreThere) {
  Session s({{kFile, "one\r\ntwo\r\n"}});
  s.Keys("Ctrl-e");
  EXPECT_EQ(LineOf(s), "two");
  s.Keys("Ctrl-e");
  EXPECT_EQ(LineOf(s), "one");
}

TEST(HistoryFileOfASession, ACommandIsInTheFileAtOnce) {
  Session s;
  EXPECT_FALSE(s.Exists("home/.orvane"));
  s.Keys("'set A=1' Enter");
  EXPECT_EQ(s.Content(kFile), "set A=1\r\n");
  s.Keys("'  set B=2' Enter 'set A=1' Enter");
  EXPECT_EQ(s.Content(kFile), "set A=1\r\nset B=2\r\nset A=1\r\n");
}

TEST(HistoryFileOfASession, MaxHistOfTheSettingsHoldsForTheStart) {
  Session s({{kFile,
              "one\ntwo\n7\x19"
              "*.c\nthree\n"}},
            {.settings = "MaxHist=2\n"});
  EXPECT_EQ(s.Content(kFile),
            "two\r\nthree\r\n7\x19"
            "*.c\r\n");
  s.Keys("'set A=1' Enter Ctrl-e Ctrl-e Ctrl-e");
  EXPECT_EQ(LineOf(s), "two") << "this run holds more";
}

TEST(HistoryFileOfASession, WhatADialogTookIsInTheFileAtOnceAndOfferedByTheNextRun) {
  const char* const filter =
      "7\x19"
      "*.c\r\n";
  {
    Session s;
    s.Command(kMenuLeftFilter);
    s.Keys("'*.h' Esc");
    EXPECT_FALSE(s.Exists(kFile)) << "a dialog that was cancelled adds nothing";
    s.Command(kMenuLeftFilter);
    s.Keys("'*.c' Enter");
    EXPECT_EQ(s.Content(kFile), filter);
  }
  Session s({{kFile, filter}});
  s.Command(kMenuLeftFilter);
  s.Keys("Alt-Down");
  EXPECT_TRUE(s.FindRow("║*.c ").has_value());
  s.Keys("Enter Enter");
  EXPECT_FALSE(s.FindRow("Filter for").has_value());
  EXPECT_EQ(std::string(ToUtf8(Panels[0].filter).Text()), "*.c");
}

TEST(HistoryFileOfASession, AFileThatCannotBeKeptIsToldOnce) {
  Session s({{"home/.orvane/", ""}}, {.prepare = [](const Sandbox& files) {
              std::filesystem::create_symlink("/no/such/place", files.Path(kFile));
            }});
  s.Keys("'set A=1' Enter");
  EXPECT_TRUE(s.FindRow("No such file or directory").has_value());
  EXPECT_TRUE(s.FindRow(".orvane/orvane.hst ").has_value());
  s.Keys("Enter 'set B=2' Enter");
  EXPECT_FALSE(s.FindRow("No such file or directory").has_value());
  s.Keys("Ctrl-e Ctrl-e");
  EXPECT_EQ(LineOf(s), "set A=1");
}

TEST(HistoryFileOfASession, AnEntryThatCannotBeKeptIsToldAndTheDialogHoldsAllTheSame) {
  Session s({{"home/.orvane/", ""}}, {.prepare = [](const Sandbox& files) {
              std::filesystem::create_symlink("/no/such/place", files.Path(kFile));
            }});
  s.Command(kMenuLeftFilter);
  s.Keys("'*.c' Enter");
  EXPECT_TRUE(s.FindRow("No such file or directory").has_value());
  s.Keys("Enter");
  EXPECT_FALSE(s.FindRow("No such file or directory").has_value());
  EXPECT_FALSE(s.FindRow("Filter for").has_value());
  EXPECT_EQ(std::string(ToUtf8(Panels[0].filter).Text()), "*.c");
  s.Command(kMenuLeftFilter);
  s.Keys("Alt-Down");
  EXPECT_TRUE(s.FindRow("║*.c ").has_value());
}

TEST(HistoryFileOfASession, ADirectoryInItsPlaceIsToldAtTheStart) {
  Session s({{std::string(kFile) + "/", ""}});
  EXPECT_TRUE(s.FindRow("Is a directory").has_value());
  s.Keys("Enter 'x'");
  EXPECT_EQ(LineOf(s), "x");
}

TEST(HistoryFileOfASession, TheFileGoesByTheNameOfTheSettingsFile) {
  Session s({{"other/mine.ini", ""}, {"other/mine.hst", "one\n"}}, {.arguments = {{"other/mine.ini"}}});
  s.Keys("Ctrl-e");
  EXPECT_EQ(LineOf(s), "one");
}
