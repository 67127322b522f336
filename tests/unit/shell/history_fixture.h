// A history file of its own, and what the user was told.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "config/settings_file.h"
#include "config/values/options.h"
#include "dialogs/dialog_history.h"
#include "foundation/environment.h"
#include "shell/history.h"
#include "shell/history_file.h"
#include "unit/scratch_directory.h"

using Strings = std::vector<std::string>;

class HistoryFixture : public testing::Test {
 protected:
  HistoryFixture() {
    const char* old = getenv("HOME");
    if (old) oldHome = old;
    setenv("HOME", home.Path().c_str(), 1);
    Variables.Load();
    ProgramPath = L"/usr/bin/orvane";
    IniFileArgument = L"";
    Options::MaxHist = 500;
    TheSettingsHooks.ask = Ask;
    told.clear();
    LoadHistory();  // there is none: empties what another test left
  }
  ~HistoryFixture() override {
    TheSettingsHooks = SettingsHooks();
    KeepDialogEntry = nullptr;
    CommandHistory.Clear();
    for (WestringStore& history : DialogHistories) history.Clear();
    if (oldHome.empty())
      unsetenv("HOME");
    else
      setenv("HOME", oldHome.c_str(), 1);
    Variables.Load();
  }

  static constexpr char kFile[] = ".orvane/orvane.hst";

  void WriteFile(const std::string& content) {
    home.MakeDirectory(".orvane");
    home.Write(kFile, content);
  }
  void Load(const std::string& content) {
    WriteFile(content);
    LoadHistory();
  }
  std::string File() const { return home.Content(kFile); }

  static Strings Texts(const WestringStore& store) {
    Strings texts;
    for (int i = 0; i < store.Count(); ++i) texts.push_back(ToUtf8(*store.Peek(i)).Text());
    return texts;
  }
  static Strings Commands() { return Texts(CommandHistory); }
  static Strings Entries(int kind) { return Texts(DialogHistories[kind]); }

  unsigned Mode(const std::string& name) const {
    struct stat status {};
    stat(home.Path(name).c_str(), &status);
    return status.st_mode & 07777;
  }

  static int Ask(const Westring& text, const Westring& detail, int) {
    told.push_back(std::string(ToUtf8(text).Text()) + "|" + ToUtf8(detail).Text());
    return 'y';
  }

  static inline Strings told;  // "text|detail" of each message
  ScratchDirectory home;

 private:
  std::string oldHome;
};
