// What programs write: the streams that terminals are measured with, and how
// long ours takes for one without a window.
#pragma once

#include <string>

constexpr int kStreamColumns = 80, kStreamRows = 25;
constexpr int kNumberedLines = 200'000;

// Lines end as programs end them, with a line feed alone.
std::string PlainLines();     // 20 MB of text
std::string ListedLines();    // 20 MB, coloured as a listing of files is
std::string NumberedLines();  // 1, 2, 3 and so on

// Seconds that the terminal takes for a stream on cells that nobody looks at,
// read as from a child. The lines are kept meanwhile.
double EmulatorTime(const std::string& stream);
