// The lines of the history file; see history_lines.h.
#include "shell/history_lines.h"

#include "dialogs/dialog_history.h"

namespace {

constexpr wchar_t kKindMark = 25;
constexpr int kLastMarkIndex = 2;

// Where the mark of a dialog's entry stands, 0 in a command.
int MarkIndex(const wchar_t* text) {
  for (int i = 1; i <= kLastMarkIndex && text[i - 1]; ++i)
    if (text[i] == kKindMark) return i;
  return 0;
}

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

// The number of the digits in front of the mark, kNothing for what is none.
int KindOf(const wchar_t* text, int mark) {
  int kind = 0;
  for (int i = 0; i < mark; ++i) {
    if (!IsDigit(text[i])) return HistoryLine::kNothing;
    kind = kind * 10 + (text[i] - L'0');
  }
  return kind < kHistoryKinds ? kind : int{HistoryLine::kNothing};
}

HistoryLine EntryOrNothing(int kind, const Westring& text) {
  if (kind == HistoryLine::kNothing || text.IsEmpty()) return {HistoryLine::kNothing, {}};
  return {kind, text};
}

std::string Line(const Westring& text) {
  std::string line = ToUtf8(InOneLine(text)).Text();
  if (line.size() > kLongestHistoryLine) return {};
  return line += "\r\n";
}

}  // namespace

std::vector<std::string_view> SplitHistory(std::string_view content) {
  using namespace std::string_view_literals;
  std::vector<std::string_view> lines;
  while (!content.empty()) {
    const size_t length = std::min(content.find_first_of("\r\n\0"sv), content.size());
    lines.push_back(content.substr(0, length));
    const bool endsInTwo = content.substr(length).starts_with("\r\n");
    content.remove_prefix(std::min(length + (endsInTwo ? 2 : 1), content.size()));
  }
  return lines;
}

HistoryLine ParseHistoryLine(std::string_view line) {
  if (line.size() > kLongestHistoryLine) return {HistoryLine::kNothing, {}};
  const Westring text(std::string(line).c_str());
  const int mark = MarkIndex(text.Text());
  if (mark == 0) return EntryOrNothing(HistoryLine::kCommand, LTrim(text));
  return EntryOrNothing(KindOf(text.Text(), mark), text.Text() + mark + 1);
}

// The reader skips leading blanks, so that they may push a command's own
// character 25 out of the places where it would mark a dialog's entry.
std::string CommandLineOf(const Westring& command) {
  return Line(MarkIndex(command.Text()) != 0 ? L"   " + command : command);
}

std::string DialogLineOf(const Westring& text, int kind) {
  return Line(Westring(Estring::FromLong(kind)) + Westring(&kKindMark, 1) + text);
}

Westring InOneLine(const Westring& text) {
  Westring line = text;
  for (wchar_t* p = line.Text(); *p; ++p)
    if (*p == L'\n' || *p == L'\r') *p = L' ';
  return line;
}
