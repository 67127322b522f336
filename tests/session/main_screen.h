// What tests look at on the main screen, and the files that they often need.
#pragma once

#include <cstdio>
#include <string>

#include "support/session.h"

// The command line with its prompt.
inline std::string PromptRow(const Session& s) {
  std::string row = s.Row(s.Rows() - 2).String();
  row.erase(row.find_last_not_of(' ') + 1);
  return row;
}

inline int FirstColumn(const Session& s, SessionSide side) { return side == kLeftSide ? 0 : s.Columns() / 2; }

// By the corner of its frame.
inline bool IsShown(const Session& s, SessionSide side) {
  return s.Character(FirstColumn(s, side), 0) == U'╔';
}

// The part of a row that belongs to a panel.
inline ScreenText PanelRow(const Session& s, SessionSide side, int y) {
  return s.Text(FirstColumn(s, side), y, s.Columns() / 2);
}

// The row with the cursor bar in a panel's first column of names, -1 for none.
inline int BarRow(const Session& s, SessionSide side) {
  for (int y = 1; y < s.Rows() - 2; ++y) {
    const int attribute = s.Attribute(FirstColumn(s, side) + 1, y);
    if (attribute == 0x30 || attribute == 0x20 || attribute == 0x3E) return y;
  }
  return -1;
}

// The last row of a panel's frame, -1 for none.
inline int BottomRow(const Session& s, SessionSide side) {
  for (int y = 1; y < s.Rows(); ++y)
    if (s.Character(FirstColumn(s, side), y) == U'╚') return y;
  return -1;
}

// "f000", "f001" and on in a directory.
inline FileList NumberedFiles(const std::string& directory, int count) {
  FileList files;
  for (int i = 0; i < count; ++i) {
    char name[16];
    std::snprintf(name, sizeof name, "f%03d", i);
    files.emplace_back(directory + "/" + name, "");
  }
  return files;
}
