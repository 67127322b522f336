// Reading a listing: the source's entries are taken or dropped one by one, put
// in order, and given back the marks and the cursor of the listing before.
#include "panels/read_panel.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <cwchar>
#include <vector>

#include "config/values/options.h"
#include "console/input.h"
#include "dialogs/progress.h"
#include "foundation/fold.h"
#include "panels/draw_panel.h"
#include "panels/expression.h"
#include "panels/mounts.h"
#include "panels/navigation.h"
#include "panels/panel_path.h"
#include "panels/sort_order.h"

namespace {

constexpr int kStoppedByUser = -1;

bool IsReread(const TPanel& panel) { return wcscmp(panel.path, panel.lastPath) == 0; }

// A listing of another directory must not stand in for the one that is owed:
// commands would act on its names.
void Postpone(TPanel& panel) {
  panel.readPending = true;
  if (IsReread(panel)) return;
  panel.FreeEntries();
  panel.topIndex = panel.cursorRow = 0;
}

void LeaveDeadArchives(TPanel& panel) {
  while (panel.archive) {
    const ArchiveLevel& level = *panel.archive;
    if (IsPathInside(panel.path, level.Path().Text()) && level.StillThere()) return;
    panel.archive = std::move(panel.archive->parent);
  }
}

void LookUpFileSystem(TPanel& panel) {
  panel.fileSystem[0] = 0;
  panel.volumeId = 0;
  panel.volumeLabel[0] = 0;
  if (panel.archive || panel.path[0] != L'/') return;
  Westring fileSystem, mountPoint;
  if (!FindMount(panel.path, fileSystem, mountPoint)) return;
  CopyText(panel.fileSystem, fileSystem.Text());
  panel.mountPoint = std::move(mountPoint);
}

// Entries with marks go to marked if a re-read is to give them back.
void EmptyListing(TPanel& panel, bool keepsMarks, EntryStore& marked) {
  for (int i = 0; i < panel.count; ++i) {
    entry* const e = panel.entries[i];
    if (keepsMarks && (e->tagged || e->processed))
      marked.Append(e);
    else
      FreeEntry(e);
  }
  panel.count = 0;
  panel.taggedCount = 0;
  panel.taggedBytes = 0;
  panel.subdirectories.Clear();
  panel.linkTargets.Clear();
}

std::unique_ptr<EntrySource> MakeSource(const TPanel& panel) {
  if (!panel.archive) return ScanDirectory(panel.path, L"*", kScanAll);
  const wchar_t* const interior = panel.path + Length(panel.archive->Path());
  return panel.archive->Open(*interior ? interior + 1 : interior);
}

void GrowIfFull(TPanel& panel) {
  if (panel.count < panel.capacity) return;
  entry** const grown = new entry*[size_t{2} * panel.capacity];
  std::copy(panel.entries, panel.entries + panel.count, grown);
  delete[] panel.entries;
  panel.entries = grown;
  panel.capacity *= 2;
}

void AddLast(TPanel& panel, entry* e) {
  GrowIfFull(panel);
  panel.entries[panel.count++] = e;
}

void AddFirst(TPanel& panel, entry* e) {
  GrowIfFull(panel);
  memmove(panel.entries + 1, panel.entries, panel.count * sizeof *panel.entries);
  panel.entries[0] = e;
  ++panel.count;
}

// Takes a source's entries into the panel.
class Intake {
 public:
  explicit Intake(TPanel& target)
      : panel(target),
        atRoot(IsRootPath(target.path)),
        takesAllFiles(wcscmp(target.filter.Text(), L"*") == 0),
        changesCase(HasCaseFilter(target)) {}

  void Take(entry* e) {
    if (e->IsDirectory() && !e->IsLink() && !IsDot(*e) && !IsDotDot(*e)) panel.subdirectories.Load(e->name);
    if (IsDropped(*e))
      FreeEntry(e);
    else
      Keep(e);
  }

  // To be called once when the source has no more.
  void Finish() {
    if (atRoot || hasDotDot) return;
    entry* const up = NewEntry(L"..");
    up->attributes = kAttrDirectory;
    Keep(up);
  }

 private:
  static bool IsDot(const entry& e) { return e.name[0] == L'.' && e.name[1] == 0; }

  // A filter with a syntax error lets all files pass.
  bool IsDropped(const entry& e) const {
    if (!Options::Hidden && (e.attributes & kAttrHidden)) return true;
    if (IsDot(e)) return true;
    if (IsDotDot(e)) return atRoot;
    return !e.IsDirectory() && !takesAllFiles && MatchEntry(panel.filter.Text(), e) == 0;
  }

  // ".." leads the listing in every order, also where nothing is sorted.
  void Keep(entry* e) {
    if (IsDotDot(*e)) {
      hasDotDot = true;
      e->sortGroup = kGroupUp;
      return AddFirst(panel, e);
    }
    e->sortGroup = GroupOf(*e);
    if (changesCase) (e->IsDirectory() ? FoldInPlace : LowerInPlace)(e->name);
    AddLast(panel, e);
  }

  static SortGroup GroupOf(const entry& e) {
    if (e.IsDirectory()) return kGroupDirectory;
    return e.attributes & kAttrHidden ? kGroupHidden : kGroupFile;
  }

  TPanel& panel;
  const bool atRoot;
  const bool takesAllFiles;
  const bool changesCase;
  bool hasDotDot = false;
};

// Returns 0, or why the source did not open. What ends it later, the user's
// Escape included, ends the listing without a word. After an earlier error the
// panel stays without entries until its directory changes.
int LoadEntries(TPanel& panel, int32_t& found) {
  const std::unique_ptr<EntrySource> source = MakeSource(panel);
  Intake intake(panel);
  entry* e = nullptr;
  int code = source->First(e);
  if (code != 0 && code != kNoMoreEntries && code != ENOENT) return code;

  BreakScope cancel;
  while (code == 0 && panel.readError == 0 && !cancel.Stopped()) {
    ++found;
    intake.Take(e);
    code = source->Next(e);
  }
  if (code == 0) FreeEntry(e);
  intake.Finish();
  return 0;
}

void RestoreMarks(TPanel& panel, const EntryStore& marked) {
  if (marked.Count() == 0) return;
  std::vector<entry*> byName(panel.entries, panel.entries + panel.count);
  const auto before = [](const entry* a, const entry* b) { return wcscmp(a->name, b->name) < 0; };
  std::sort(byName.begin(), byName.end(), before);
  for (int i = 0; i < marked.Count(); ++i) {
    const entry& old = *marked.Peek(i);
    // Names that differ only in bytes that are no UTF-8 can look the same; each
    // of them takes the marks of one.
    const auto [first, last] = std::equal_range(byName.begin(), byName.end(), &old, before);
    const auto place = std::find_if(first, last, [](const entry* e) { return !e->tagged && !e->processed; });
    if (place == last) continue;
    entry& e = **place;
    e.tagged = old.tagged;
    e.processed = old.processed;
    if (!e.tagged) continue;
    ++panel.taggedCount;
    panel.taggedBytes += static_cast<uint64_t>(e.size);
  }
}

// Without a progress box on the screen: this may ask the user, and read again.
void HandleFailedOpen(TPanel& panel, int code) {
  const bool wasReread = IsReread(panel);
  const bool unreachable = code == ENOTDIR || code == ENAMETOOLONG || code == EACCES;
  const bool goesUp = unreachable && !IsRootPath(panel.path);
  panel.topIndex = panel.cursorRow = 0;
  if (code == kStoppedByUser) return;
  if (code != kDriveNotReady) ShowPathError(code, panel.path);
  if (!goesUp) {
    panel.readError = code;
    return;
  }
  GoUp(panel);
  // A re-read has no caller that knows of a new path.
  if (wasReread) FollowPath(panel);
}

void ScrollIntoView(TPanel& panel) {
  const int last = std::max(panel.visibleEntries, 1) - 1;
  const int slot = std::clamp(panel.cursorRow, 0, last);
  panel.topIndex += panel.cursorRow - slot;
  panel.cursorRow = slot;
}

void FixCursor(TPanel& panel, const Westring& nameUnderCursor) {
  if (nameUnderCursor.IsEmpty()) {
    panel.topIndex = panel.cursorRow = 0;
    return;
  }
  if (panel.topIndex >= panel.count) panel.topIndex = 0;
  if (panel.CurrentIndex() >= panel.count) panel.cursorRow = std::max(panel.count - panel.topIndex - 1, 0);
  PositionOn(panel, nameUnderCursor.Text());
}

// An info panel tells about the listing beside it. A record that is none of the
// screen's two has nothing beside it.
void RedrawInfoBeside(const TPanel& panel) {
  if (!Panels || (&panel != &Panels[0] && &panel != &Panels[1])) return;
  TPanel& other = Panels[panel.Side() ^ 1];
  if (!other.IsFiles()) DrawPanel(other);
}

}  // namespace

bool HasCaseFilter(const TPanel& panel) {
  return !panel.archive && panel.fileSystem[0] && FindNoCase(Options::CaseFilter, panel.fileSystem) >= 0;
}

void ReadPanel(TPanel& panel) {
  if (!panel.visible || !panel.IsFiles()) return Postpone(panel);
  panel.readPending = false;
  panel.redrawPending = true;
  LeaveDeadArchives(panel);
  LookUpFileSystem(panel);
  if (panel.IsTree() && ThePanelHooks.readTree) return ThePanelHooks.readTree(panel);

  const bool reread = IsReread(panel);
  const entry* const current = panel.Current();
  const Westring nameUnderCursor = reread && current ? current->name : L"";
  EntryStore marked;
  EmptyListing(panel, reread, marked);
  int error = 0;
  {
    int32_t found = 0;
    DirReadProgress progress(&found);
    error = LoadEntries(panel, found);
    if (error == 0) {
      SortEntries(panel);
      RestoreMarks(panel, marked);
    }
  }
  if (error != 0) return HandleFailedOpen(panel, error);

  FixCursor(panel, nameUnderCursor);
  RedrawInfoBeside(panel);
}

void ReadBothPanels() {
  for (int side = 0; side < 2; ++side) {
    TPanel& panel = Panels[side];
    if (!panel.visible)
      panel.readPending = true;
    else if (panel.IsFiles() || !Panels[side ^ 1].visible)
      ReadPanel(panel);
  }
}

void PositionOn(TPanel& panel, const wchar_t* name) {
  for (int i = 0; i < panel.count; ++i) {
    if (wcscmp(panel.entries[i]->name, name) != 0) continue;
    panel.cursorRow = i - panel.topIndex;
    break;
  }
  ScrollIntoView(panel);
}
