// Typing commands, and what they leave on the console behind the panels.
#pragma once

#include <string>
#include <vector>

#include "session/main_screen.h"

inline std::string Typed(const std::string& text) {
  std::string script = "'";
  for (const char c : text) script += c == '\'' ? std::string("''") : std::string(1, c);
  return script + "'";
}

inline void RunLine(Session& s, const std::string& line) { s.Keys(Typed(line) + " Enter"); }

inline std::string TrimmedRow(const Session& s, int y) {
  std::string row = s.Row(y).String();
  row.erase(row.find_last_not_of(' ') + 1);
  return row;
}

// The rows above the command line from the first that is not empty on, with the
// panels off.
inline std::vector<std::string> RowsOnScreen(const Session& s) {
  std::vector<std::string> rows;
  for (int y = 0; y < s.Rows() - 2; ++y) {
    const std::string row = TrimmedRow(s, y);
    if (!rows.empty() || !row.empty()) rows.push_back(row);
  }
  return rows;
}

// The same behind panels that are both shown.
inline std::vector<std::string> ConsoleText(Session& s) {
  s.Keys("Ctrl-O");
  std::vector<std::string> rows = RowsOnScreen(s);
  s.Keys("Ctrl-O");
  return rows;
}

inline std::string Prompt(const Session& s, SessionSide side = kLeftSide) { return s.PanelPath(side) + ">"; }
