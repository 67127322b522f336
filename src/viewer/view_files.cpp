// One file, or the walk through those of a panel.
#include "viewer/view_files.h"

#include <unistd.h>

#include "config/values/colours.h"
#include "foundation/paths.h"
#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "viewer/viewer.h"

bool (*ExtractForView)(TPanel& panel, const entry& e, Westring& path) = nullptr;

namespace {

constexpr int kNoteWidth = 18, kNoteHeight = 5, kNoteRow = 1;
constexpr useconds_t kNoteTime = 500000;

void TellNoMoreFiles() {
  const uint8_t colour = Options::Colours[kColourMessages];
  Win note(-1, -3, kNoteWidth, kNoteHeight, colour, colour);
  note.PrintCentred(kNoteRow, L"No more files");
  usleep(kNoteTime);
}

// The nearest file on that side of index; index itself where there is none.
int NextFile(const TPanel& panel, int index, int step) {
  for (int i = index + step; i >= 0 && i < panel.count; i += step)
    if (!panel.entries[i]->IsDirectory()) return i;
  return index;
}

class PanelWalk {
 public:
  explicit PanelWalk(TPanel& walked) : panel(walked), index(walked.CurrentIndex()) {}

  // The index of the entry shown last.
  int Run() {
    for (Key key = ViewOne(); key != kEscape; key = ViewOne()) {
      const int next = NextFile(panel, index, key == kAltUp ? -1 : 1);
      if (next == index) TellNoMoreFiles();
      index = next;
    }
    return index;
  }

 private:
  Key ViewOne() {
    entry& e = *panel.entries[index];
    Westring path;
    if (!FindFile(e, path)) return kEscape;
    SetAppTitle(e.name);
    const Key key = viewer.Run(path, e.treeLink);
    Refresh(e);
    return key;
  }

  bool FindFile(const entry& e, Westring& path) {
    if (!panel.archive) {
      path = JoinPath(panel.path, e.name);
      return true;
    }
    viewer.SetHidden(true);
    const bool isThere = ExtractForView && ExtractForView(panel, e, path) && !path.IsEmpty();
    viewer.SetHidden(false);
    return isThere;
  }

  // Who follows a file leaves it longer than it was.
  void Refresh(entry& e) {
    entry* found = nullptr;
    if (panel.archive || StatEntry(panel.path, e.name, found) != 0) return;
    const OwnedEntry now(found);
    if (e.tagged) panel.taggedBytes += static_cast<uint64_t>(now->size - e.size);
    e.size = now->size;
    e.modified = now->modified;
  }

  TPanel& panel;
  int index;
  CViewer viewer;
};

}  // namespace

void View(TPanel& panel) {
  if (!panel.Current()) return;
  const int last = PanelWalk(panel).Run();
  MoveCursor(panel, last - panel.CurrentIndex());
  if (panel.IsVisibleFiles()) DrawPanel(panel);
}

void ViewFile(const Westring& path, int64_t offset) { CViewer().Run(path, offset); }
