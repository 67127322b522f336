// What the tests of the viewer look at, and the texts that they often show.
#pragma once

#include <cstdio>
#include <string>

#include "panels/panel.h"
#include "session/main_screen.h"

constexpr int kStatusRow = 0, kFirstTextRow = 1, kLastTextRow = 23, kBarRow = 24;
constexpr int kTextRows = 23;

inline std::string ManyLines(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += "Line " + std::to_string(i) + "\n";
  return text;
}

// The only file in the left panel, shown.
class ViewerSession : public Session {
 public:
  explicit ViewerSession(const std::string& text, SessionSetup setup = {})
      : Session({{"left/file", text}}, std::move(setup)) {
    Keys("Down F3");
  }

  bool IsShown() const { return Row(kStatusRow).StartsWith("View: "); }
  std::string Line(int y) const { return TrimEnd(Row(y).String()); }
  std::string Top() const { return Line(kFirstTextRow); }
  std::string Bottom() const { return Line(kLastTextRow); }
  // "55.02%"
  std::string Position() const { return Text(73, kStatusRow, 7).Trimmed(); }
  std::string Encoding() const { return Text(65, kStatusRow, 8).Trimmed(); }

  // All text rows.
  std::string Page() const {
    std::string page;
    for (int y = kFirstTextRow; y <= kLastTextRow; ++y) page += Line(y) + "\n";
    return page;
  }

  // The row and column of the first cell in the colour of what was found.
  std::pair<int, int> Mark() const {
    for (int y = kFirstTextRow; y <= kLastTextRow; ++y)
      for (int x = 0; x < Columns(); ++x)
        if (Attribute(x, y) == kMarked) return {y, x};
    return {-1, -1};
  }
  // The marked text.
  std::string Marked() const {
    const auto [y, x] = Mark();
    if (y < 0) return "";
    int width = 0;
    while (x + width < Columns() && Attribute(x + width, y) == kMarked) ++width;
    return Text(x, y, width).String();
  }

 private:
  static constexpr int kMarked = 0x30;  // the colour "Highlight"

  static std::string TrimEnd(std::string row) {
    row.erase(row.find_last_not_of(' ') + 1);
    return row;
  }
};
