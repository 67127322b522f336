// The lines of the history file: a command, or the number of a dialog history,
// character 25 and an element of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/strings.h"

// Bytes of a line without its end. A longer one is no entry: half a command
// would be another command.
constexpr size_t kLongestHistoryLine = 4096;

struct HistoryLine {
  enum { kNothing = -2, kCommand = -1 };
  int kind;       // one of these, or a HistoryKind
  Westring text;  // a command has no leading blanks
};

// Ends are "\n", "\r\n", "\r" or a zero byte; the last line may have none. The
// lines are parts of content.
std::vector<std::string_view> SplitHistory(std::string_view content);

HistoryLine ParseHistoryLine(std::string_view line);

// The line with its end, which reads back to the same text but for line ends in
// it: they become blanks. Empty if the line would be too long.
std::string CommandLineOf(const Westring& command);
std::string DialogLineOf(const Westring& text, int kind);

// The text as a line holds it.
Westring InOneLine(const Westring& text);
