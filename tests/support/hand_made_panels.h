// Panel records made by hand in memory, and their rows as text and colours.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "config/values/associations.h"
#include "config/values/colours.h"
#include "config/values/locale_format.h"
#include "config/values/options.h"
#include "console/cell_string.h"
#include "panels/columns.h"
#include "panels/entry_row.h"
#include "panels/panel.h"

// Two panels with default options, 80 columns and five rows.
class HandMadePanels {
 protected:
  HandMadePanels() {
    Panels = panels;
    ActiveSide = 0;
    SetOptions();
    SetLocale();
    SetSize(38, 5);
    CopyText(panel.path, L"/home");
  }
  ~HandMadePanels() {
    FileColours.Clear();
    DirectoryColours.Clear();
    Panels = nullptr;
  }

  void SetSize(int inner, int rows) {
    ComputeColumns(inner);
    PanelRows = rows;
    for (TPanel& p : panels) p.visibleEntries = VisibleEntries(p.style, rows);
  }

  void SetStyle(int style) {
    panel.style = style;
    panel.visibleEntries = VisibleEntries(style, PanelRows);
  }

  entry& Add(const wchar_t* name, int64_t size = 0, unsigned attributes = 0) {
    entry* const e = NewEntry(name);
    e->size = size;
    e->attributes = static_cast<uint16_t>(attributes);
    e->modified = At(2024, 3, 5, 14, 7);
    panel.entries[panel.count++] = e;
    return *e;
  }

  void AddMany(int count) {
    for (int i = 0; i < count; ++i) {
      wchar_t name[16];
      swprintf(name, 16, L"f%03d", i);
      Add(name);
    }
  }

  // The process stands in the time zone UTC.
  static FileTime At(int year, int month, int day, int hour, int minute) {
    tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    return {0, static_cast<uint32_t>(timegm(&parts))};
  }

  // A row of the panel in its style.
  CellString Row(int index) { return BuildEntryRow(panel, index, panel.style, kNoForcedColour, nullptr); }

  TPanel panels[2];
  TPanel& panel = panels[0];

 private:
  static void SetOptions() {
    for (int i = 0; i < kColourCount; ++i) Options::Colours[i] = kDefaultColours[i];
    Options::KeepExtVisible = false;
    Options::ThousandSep = false;
    Options::TimeMode = 24;
    Options::Clock = false;
    FileColours.Clear();
    DirectoryColours.Clear();
  }

  static void SetLocale() {
    setenv("TZ", "UTC", 1);
    tzset();
    ThousandsSeparator = L',';
    DateFormat = "%02d/%02d/%02d";
    DateOrder = kDateMonthFirst;
    DateSeparator = '/';
  }
};

// For what is computed without a screen.
class PanelRecords : public testing::Test, protected HandMadePanels {};

inline std::wstring TextOf(const CellString& row) {
  std::wstring text;
  for (int i = 0; i < row.Length(); ++i) text += static_cast<wchar_t>(row[i].character);
  return text;
}

// The attributes as runs: "1B*13 1E*1".
inline std::string ColoursOf(const CellString& row) {
  std::string runs;
  for (int i = 0, start = 0; i < row.Length(); start = i) {
    while (i < row.Length() && row[i].attribute == row[start].attribute) ++i;
    char run[32];
    snprintf(run, sizeof run, "%s%02X*%d", start ? " " : "", row[start].attribute, i - start);
    runs += run;
  }
  return runs;
}
