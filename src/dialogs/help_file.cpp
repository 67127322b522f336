// Reading the help file. A damaged one gives what stands before the damage.
#include "dialogs/help_file.h"

#include <algorithm>
#include <utility>

#include "foundation/std_file.h"

namespace {

constexpr int kHeadBytes = 4;
constexpr int64_t kLargestFile = 1 << 20;
constexpr int kHelpCodePage = 850;

// Takes bytes from the front. Once it was asked for more than there is, it gives
// nothing any more.
class RecordReader {
 public:
  explicit RecordReader(std::string_view bytes) : rest(bytes) {}

  std::string_view Bytes(size_t n) {
    failed = failed || n > rest.size();
    if (failed) return {};
    const std::string_view taken = rest.substr(0, n);
    rest.remove_prefix(n);
    return taken;
  }

  int U16() {  // the low byte first
    const std::string_view taken = Bytes(2);
    return failed ? 0 : static_cast<uint8_t>(taken[0]) | static_cast<uint8_t>(taken[1]) << 8;
  }

  bool Failed() const { return failed; }

 private:
  std::string_view rest;
  bool failed = false;
};

}  // namespace

std::vector<HelpRecord> ReadHelpPages(std::string_view bytes) {
  std::vector<HelpRecord> pages;
  RecordReader in(bytes);
  do {
    HelpRecord page;
    page.number = in.U16();
    const int length = in.U16();
    if (length < kHeadBytes) break;  // would not lead on to the next record
    page.text = in.Bytes(static_cast<size_t>(length - kHeadBytes));
    if (in.Failed()) break;
    pages.push_back(std::move(page));
  } while (pages.back().number != kLastHelpPage);
  return pages;
}

std::vector<HelpRecord> ReadHelpFile(const Westring& path) {
  StdFile file;
  if (file.Open(path, kOpenRead) != 0) return {};
  std::string bytes(static_cast<size_t>(std::clamp<int64_t>(file.Size(), 0, kLargestFile)), '\0');
  size_t read = 0;
  file.Read(bytes.data(), bytes.size(), &read);
  return ReadHelpPages(std::string_view(bytes).substr(0, read));
}

const HelpRecord* FindHelpPage(const std::vector<HelpRecord>& pages, int number) {
  for (const HelpRecord& page : pages) {
    if (page.number == number) return &page;
  }
  return pages.empty() ? nullptr : &pages.back();
}

std::vector<Westring> HelpLines(const HelpRecord& page) {
  std::vector<Westring> lines;
  for (size_t start = 0; start < page.text.size();) {
    const char* line = page.text.c_str() + start;  // ends in a zero of the page or of the string
    lines.emplace_back(line, kHelpCodePage);
    start += std::char_traits<char>::length(line) + 1;
  }
  return lines;
}
