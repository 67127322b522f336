// The help file: pages in records, one behind the other. A record is the page's
// number and its own length with this head, both 16 bits, and then lines in code
// page 850 that end in a zero byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/strings.h"

// Ends the file, and is shown for a page that the file lacks.
constexpr int kLastHelpPage = 30000;

struct HelpRecord {
  int number = 0;
  std::string text;  // the lines as they are in the file
};

// The pages up to the last one or to the first record that is damaged or cut
// off.
std::vector<HelpRecord> ReadHelpPages(std::string_view bytes);

// Those of a file, of which a megabyte counts; none if it can't be read.
std::vector<HelpRecord> ReadHelpFile(const Westring& path);

// The first page with the number, or the last of all. Null if there is none.
const HelpRecord* FindHelpPage(const std::vector<HelpRecord>& pages, int number);

std::vector<Westring> HelpLines(const HelpRecord& page);
