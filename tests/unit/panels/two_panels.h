// Two panels without a screen, and a directory for them to show.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "config/values/options.h"
#include "panels/navigation.h"
#include "panels/panel.h"
#include "panels/read_panel.h"
#include "unit/scratch_directory.h"

constexpr int kRowsOfTwoPanels = 10;

using Names = std::vector<std::string>;

class TwoPanels : public testing::Test {
 protected:
  TwoPanels() {
    Panels = records;
    ActiveSide = 0;
    PanelRows = kRowsOfTwoPanels;
    Options::Hidden = true;
    Options::CaseFilter = L"";
    DirectoryHistory.Clear();
    for (TPanel& panel : records) {
      panel.visibleEntries = kRowsOfTwoPanels;
      CopyText(panel.path, Westring(scratch.Path().c_str()).Text());
    }
  }
  ~TwoPanels() override {
    EXPECT_EQ(chdir("/"), 0);
    Panels = nullptr;
  }

  TPanel& Left() { return records[0]; }
  TPanel& Right() { return records[1]; }

  void MakeFiles(const Names& names) {
    for (const std::string& name : names) scratch.Write(name, "");
  }

  // Reads scratch, or a directory in it, as the left panel's new directory.
  TPanel& Read(const std::string& below = "") {
    CopyText(Left().path, Wide(scratch.Path(below)).Text());
    Enter(0, L"", false, -1, 0);
    return Left();
  }

  static Westring Wide(const std::string& utf8) { return Westring(utf8.c_str()); }
  static std::string Narrow(const wchar_t* text) { return ToUtf8(text).Text(); }

  static Names NamesOf(const TPanel& panel) {
    Names names;
    for (int i = 0; i < panel.count; ++i) names.push_back(Narrow(panel.entries[i]->name));
    return names;
  }
  static std::string Under(const TPanel& panel) {
    return panel.Current() ? Narrow(panel.Current()->name) : "";
  }
  static std::string PathOf(const TPanel& panel) { return Narrow(panel.path); }

  static entry* EntryOf(const TPanel& panel, const std::string& name) {
    for (int i = 0; i < panel.count; ++i) {
      if (Narrow(panel.entries[i]->name) == name) return panel.entries[i];
    }
    return nullptr;
  }

  ScratchDirectory scratch;
  TPanel records[2];
};
