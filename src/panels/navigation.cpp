// One step down or up, the return to remembered places, and the active side.
#include "panels/navigation.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cwchar>

#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "panels/draw_panel.h"
#include "panels/panel_path.h"
#include "panels/read_panel.h"

namespace {

constexpr int kNoSide = -1;

// The side whose title is shown as the active one.
int titledSide = kNoSide;

void RememberLeaving(TPanel& panel) {
  AddDirectoryHistory(panel.lastPath);
  CopyText(panel.previousPath, panel.lastPath);
  panel.previousTop = panel.lastTop;
  panel.previousCursor = panel.lastCursor;
}

void ClearTags(TPanel& panel) {
  for (int i = 0; i < panel.count; ++i) panel.entries[i]->tagged = 0;
  panel.taggedCount = 0;
  panel.taggedBytes = 0;
}

void GoDown(TPanel& panel, const Westring& below) {
  const entry* const current = panel.Current();
  panel.positions.Remember(panel.path, panel.topIndex, current ? current->name : L"");
  CopyText(panel.path, below.Text());
  panel.topIndex = panel.cursorRow = 0;
}

// A remembered place may lie past the end of a list that has become shorter.
void PlaceCursor(TPanel& panel, int top, int cursor) {
  panel.topIndex = std::clamp(top, 0, std::max(panel.count - 1, 0));
  panel.cursorRow = std::clamp(cursor, 0, std::max(panel.count - 1 - panel.topIndex, 0));
}

bool IsCurrent(const TPanel& panel, const Westring& name) {
  const entry* const current = panel.Current();
  return current && wcscmp(current->name, name.Text()) == 0;
}

// The entry in its slot of the first page, or in the last slot.
void ShowEntry(TPanel& panel, const Westring& name) {
  panel.topIndex = panel.cursorRow = 0;
  for (int i = 0; i < panel.count; ++i) {
    if (wcscmp(panel.entries[i]->name, name.Text()) != 0) continue;
    panel.topIndex = std::max(i - std::max(panel.visibleEntries, 1) + 1, 0);
    panel.cursorRow = i - panel.topIndex;
    return;
  }
}

// The process keeps its directory where the new one can't be entered.
void ChangeProcessDirectory(const TPanel& panel) {
  [[maybe_unused]] const int error = chdir(ToUtf8(RealDirectory(panel)).Text());
}

}  // namespace

WestringStore DirectoryHistory;

void AddDirectoryHistory(const Westring& path) {
  if (path.IsEmpty()) return;
  for (int i = DirectoryHistory.Count() - 1; i >= 0; --i) {
    if (wcscmp(DirectoryHistory.At(i)->Text(), path.Text()) == 0) DirectoryHistory.Remove();
  }
  DirectoryHistory.Add(path);
  while (DirectoryHistory.Count() > kMaxDirectoryHistory) {
    DirectoryHistory.First();
    DirectoryHistory.Remove();
  }
}

void Enter(int side, const wchar_t* name, bool keepTags, int top, int cursor) {
  TPanel& panel = Panels[side];
  const bool goesUp = wcscmp(name, L"..") == 0;
  const bool goesDown = *name && !goesUp;
  Westring below;  // also saves the name, which may be an entry's own
  if (goesDown) {
    below = JoinPath(panel.path, name);
    if (Length(below) >= kPathSize) return ShowPathError(ENAMETOOLONG, below);
  }

  panel.readError = 0;
  const bool isReread = !*name && wcscmp(panel.path, panel.lastPath) == 0;
  if (!isReread) RememberLeaving(panel);
  if (goesUp) {
    GoUp(panel);
  } else {
    if (!keepTags) ClearTags(panel);
    if (goesDown) GoDown(panel, below);
    ReadPanel(panel);
  }
  if (top >= 0) PlaceCursor(panel, top, cursor);
  panel.quickSearch[0] = 0;
  CopyText(panel.lastPath, panel.path);
  ChangeProcessDirectory(panel);
}

void GoUp(TPanel& panel) {
  if (IsRootPath(panel.path)) return;
  const Westring left = LastComponent(panel.path);
  const Westring parent = ParentPath(panel.path);
  CopyText(panel.path, parent.Text());
  ReadPanel(panel);
  // Where the parent can't be read either, that read has gone on upward.
  if (wcscmp(panel.path, parent.Text()) != 0) return;

  if (const TPanelPosition* const position = panel.positions.Find(&parent)) {
    panel.topIndex = position->top;
    PositionOn(panel, position->name.Text());
  }
  if (panel.CurrentIndex() >= panel.count) panel.topIndex = panel.cursorRow = 0;
  if (!IsCurrent(panel, left)) ShowEntry(panel, left);
}

void ActivateSide(int side) {
  ActiveSide = static_cast<unsigned>(side);
  Options::StartupSide = side == 0 ? 'L' : 'R';
  if (side == titledSide) return;
  titledSide = side;
  DrawTitle(Panels[0]);
  DrawTitle(Panels[1]);
  ShowPathInAppTitle();
  ChangeProcessDirectory(Panels[side]);
}

void ForgetActiveSide() { titledSide = kNoSide; }

void FollowPath(TPanel& panel) {
  CopyText(panel.lastPath, panel.path);
  if (&panel == &ActivePanel()) ChangeProcessDirectory(panel);
}

void ShowPathError(int error, const Westring& path) {
  Prompt(Westring(SystemError(error).Text()) + Westring(Estring::Format(" (%d)", error)), path, kPromptOk);
}

Westring RealDirectory(const TPanel& panel) {
  const ArchiveLevel* level = panel.archive.get();
  if (!level) return panel.path;
  while (level->parent) level = level->parent.get();
  return ParentPath(level->Path().Text());
}

void SetAppTitle(const wchar_t* text) {
  if (!text)
    Console->SetTitle(L"Orvane V2.40-dev");
  else if (!*text)
    Console->SetTitle(L"");
  else
    Console->SetTitle(Westring(L"Orvane: ") + text);
}

void ShowPathInAppTitle() {
  constexpr int kMostCharacters = 50;
  SetAppTitle(ShortenPath(ActivePanel().path, kMostCharacters).Text());
}
