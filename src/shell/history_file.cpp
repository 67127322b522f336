// The file of the histories; see history_file.h.
#include "shell/history_file.h"

#include <algorithm>
#include <cerrno>
#include <cwchar>
#include <set>
#include <utility>

#include "config/data_paths.h"
#include "config/settings_sections.h"
#include "config/values/options.h"
#include "dialogs/dialog_history.h"
#include "shell/history.h"
#include "shell/history_lines.h"
#include "shell/shared_file.h"

namespace {

constexpr int kKeptOfEachDialog = 20;

// The error that the user knows of: a command a minute on a full disk shall not
// be a message a minute.
int toldError = 0;

void TellOnce(int code) {
  if (code != 0 && code != toldError) ShowSettingsError(DataFilePath(kHistoryFile), code);
  toldError = code;
}

bool IsMissing(int code) { return code == ENOENT || code == ENOTDIR; }

std::vector<HistoryLine> ParseAll(std::string_view content) {
  std::vector<HistoryLine> lines;
  for (const std::string_view line : SplitHistory(content)) {
    lines.push_back(ParseHistoryLine(line));
    if (lines.back().kind == HistoryLine::kNothing) lines.pop_back();
  }
  return lines;
}

// Each entry where it was used last, the oldest first.
std::vector<const HistoryLine*> LastUses(const std::vector<HistoryLine>& lines) {
  std::set<std::pair<int, std::wstring_view>> seen;
  std::vector<const HistoryLine*> uses;
  for (auto line = lines.rbegin(); line != lines.rend(); ++line)
    if (seen.emplace(line->kind, line->text.Text()).second) uses.push_back(&*line);
  std::reverse(uses.begin(), uses.end());
  return uses;
}

bool IsCommand(const HistoryLine& line) { return line.kind == HistoryLine::kCommand; }

// The oldest commands over the limit stay out. Nothing is added twice, so nothing
// has to be looked for in the stores.
void FillHistories(const std::vector<const HistoryLine*>& uses, int64_t mostCommands) {
  CommandHistory.Clear();
  for (WestringStore& history : DialogHistories) history.Clear();
  int64_t tooMany = -mostCommands;
  for (const HistoryLine* use : uses) tooMany += IsCommand(*use);
  for (const HistoryLine* use : uses) {
    if (!IsCommand(*use))
      DialogHistories[use->kind].Add(use->text);
    else if (--tooMany < 0)
      AddCommand(use->text, true, true);
  }
}

std::string FileOfHistories() {
  std::string content;
  for (int i = 0; i < CommandHistory.Count(); ++i) content += CommandLineOf(*CommandHistory.Peek(i));
  for (int kind = 0; kind < kHistoryKinds; ++kind) {
    const WestringStore& history = DialogHistories[kind];
    for (int i = std::max(history.Count() - kKeptOfEachDialog, 0); i < history.Count(); ++i)
      content += DialogLineOf(*history.Peek(i), kind);
  }
  return content;
}

// EBUSY: what is read is whole all the same, if not what is being written now.
int ReadHistories(SharedFile& file, std::string& content) {
  const int code = file.OpenToRead(DataFilePath(kHistoryFile));
  if (code != 0 && code != EBUSY) return code;
  const int readCode = file.Read(content);
  return readCode != 0 ? readCode : code;
}

int LoadFromFile() {
  SharedFile file;
  std::string content;
  const int code = ReadHistories(file, content);
  if (code != 0 && code != EBUSY) content.clear();
  const std::vector<HistoryLine> lines = ParseAll(content);
  const int64_t most = std::max(Options::MaxHist, 0);
  FillHistories(LastUses(lines), most);
  // A file that can't be replaced stays too long, no more: nothing is lost.
  if (code == 0 && std::count_if(lines.begin(), lines.end(), IsCommand) > most)
    file.Replace(FileOfHistories());
  return code;
}

int AppendLine(const std::string& line) {
  const Westring path = DataFilePath(kHistoryFile);
  SharedFile file;
  int code = file.OpenToAppend(path);
  if (code == ENOENT) {
    MakeSettingsDirectory();
    code = file.OpenToAppend(path);
  }
  return code == 0 || code == EBUSY ? file.Append(line) : code;
}

void AppendIfItFits(const std::string& line) {
  if (!line.empty()) TellOnce(AppendLine(line));
}

int RemoveLines(const Westring& command) {
  SharedFile file;
  std::string content, kept;
  if (const int code = ReadHistories(file, content)) return IsMissing(code) ? 0 : code;
  bool found = false;
  for (const std::string_view line : SplitHistory(content)) {
    const HistoryLine parsed = ParseHistoryLine(line);
    const bool isIt = IsCommand(parsed) && wcscmp(parsed.text.Text(), command.Text()) == 0;
    if (!isIt) kept.append(line).append("\r\n");
    found = found || isIt;
  }
  return found ? file.Replace(kept) : 0;
}

}  // namespace

void LoadHistory() {
  const int code = LoadFromFile();
  toldError = 0;
  TellOnce(IsMissing(code) || code == EBUSY ? 0 : code);
}

void AppendCommandToFile(const Westring& text) { AppendIfItFits(CommandLineOf(text)); }

void AppendDialogEntryToFile(const Westring& text, int kind) { AppendIfItFits(DialogLineOf(text, kind)); }

void RemoveCommandFromFile(const Westring& text) {
  if (const int code = RemoveLines(LTrim(InOneLine(text))))
    ShowSettingsError(DataFilePath(kHistoryFile), code);
}
