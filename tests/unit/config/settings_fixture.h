// A home of its own for tests of the settings, and what the user was asked.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "config/environment_additions.h"
#include "config/settings_file.h"
#include "config/settings_sections.h"
#include "config/values/options.h"
#include "console/console.h"
#include "foundation/environment.h"
#include "unit/scratch_directory.h"

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() {
    const char* old = getenv("HOME");
    if (old) oldHome = old;
    setenv("HOME", home.Path().c_str(), 1);
    Variables.Load();
    ProgramPath = L"/usr/bin/orvane";
    IniFileArgument = L"";
    ScreenRows = 25;
    ScreenColumns = 80;
    TheSettingsHooks = SettingsHooks();
    TheSettingsHooks.ask = Ask;
    TheSettingsHooks.applyScreenSize = [](int rows, int columns) { sizes.emplace_back(rows, columns); };
    prompts.clear();
    sizes.clear();
    answer = 'y';
    SetDefaultOptions();
    SetArchiverDefaults();
  }
  ~SettingsTest() override {
    for (AssociationSet* store : kAssociationStores) store->Clear();
    RemoveEnvironmentAdditions();
    IniFileArgument = L"";
    if (oldHome.empty())
      unsetenv("HOME");
    else
      setenv("HOME", oldHome.c_str(), 1);
    Variables.Load();
    TheSettingsHooks = SettingsHooks();
  }

  // Writes the settings file of this home and loads it.
  void Load(const std::string& content, bool reload = false) {
    home.MakeDirectory(".orvane");
    home.Write(".orvane/orvane.ini", content);
    LoadSettings(reload);
  }
  std::string Saved() const { return home.Content(".orvane/orvane.ini"); }
  std::vector<std::string> SavedLines() const {
    std::vector<std::string> lines;
    const std::string text = Saved();
    for (size_t at = 0, end; (end = text.find("\r\n", at)) != std::string::npos; at = end + 2)
      lines.push_back(text.substr(at, end - at));
    return lines;
  }
  // The value behind "key=" in what was saved.
  std::string SavedValue(const std::string& key) const {
    for (const std::string& line : SavedLines())
      if (line.starts_with(key + "=")) return line.substr(key.size() + 1);
    return "(none)";
  }
  mode_t Mode(const std::string& name) const {
    struct stat status {};
    stat(home.Path(name).c_str(), &status);
    return status.st_mode & 07777;
  }
  static std::string Text(const Westring& text) { return ToUtf8(text).Text(); }
  // "test=value" of every pair.
  static std::vector<std::string> Pairs(const AssociationSet& store) {
    std::vector<std::string> pairs;
    for (int i = 0; const Association* pair = store.Peek(i); ++i)
      pairs.push_back(Text(pair->test) + "=" + Text(pair->value));
    return pairs;
  }

  static int Ask(const Westring& text, const Westring& detail, int flags) {
    prompts.push_back(Text(text) + "|" + Text(detail));
    EXPECT_EQ(flags, 0);
    return answer;
  }

  static inline std::vector<std::string> prompts;  // "text|detail"
  static inline std::vector<std::pair<int, int>> sizes;
  static inline int answer = 'y';
  ScratchDirectory home;

 private:
  std::string oldHome;
};
