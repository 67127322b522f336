// The two panel records and their exchange.
#include "panels/panel.h"

#include <utility>

namespace {

constexpr int kStartCapacity = 4096;

// By deep copies: the collections have no way to hand over their items.
template <class Collection>
void SwapCopies(Collection& a, Collection& b) {
  const Collection kept(a);
  a = b;
  b = kept;
}

void LoadNames(FnStringCollection& target, const FnStringCollection& source) {
  target.Clear();
  for (int64_t i = 0; i < source.Count(); ++i) target.Load(*source.Peek(i));
}

// The names have no order yet, and need none to change sides.
void SwapNames(FnStringCollection& a, FnStringCollection& b) {
  FnStringCollection kept;
  LoadNames(kept, a);
  LoadNames(a, b);
  LoadNames(b, kept);
}

void SwapPaths(TPanel& a, TPanel& b) {
  std::swap(a.path, b.path);
  std::swap(a.lastPath, b.lastPath);
  std::swap(a.lastTop, b.lastTop);
  std::swap(a.lastCursor, b.lastCursor);
  std::swap(a.previousPath, b.previousPath);
  std::swap(a.previousTop, b.previousTop);
  std::swap(a.previousCursor, b.previousCursor);
}

void SwapListings(TPanel& a, TPanel& b) {
  std::swap(a.cursorRow, b.cursorRow);
  std::swap(a.topIndex, b.topIndex);
  std::swap(a.entries, b.entries);
  std::swap(a.capacity, b.capacity);
  std::swap(a.count, b.count);
  std::swap(a.taggedCount, b.taggedCount);
  std::swap(a.taggedBytes, b.taggedBytes);
  std::swap(a.readError, b.readError);
  std::swap(a.archive, b.archive);
  SwapCopies(a.positions, b.positions);
  SwapNames(a.subdirectories, b.subdirectories);
  SwapCopies(a.linkTargets, b.linkTargets);
}

void SwapViews(TPanel& a, TPanel& b) {
  std::swap(a.visible, b.visible);
  std::swap(a.readPending, b.readPending);
  std::swap(a.switchedOff, b.switchedOff);
  std::swap(a.quickSearch, b.quickSearch);
  std::swap(a.sortKey, b.sortKey);
  std::swap(a.panelType, b.panelType);
  std::swap(a.style, b.style);
  std::swap(a.filter, b.filter);
  std::swap(a.visibleEntries, b.visibleEntries);
  std::swap(a.nameScroll, b.nameScroll);
  std::swap(a.nameScrollEntry, b.nameScrollEntry);
  std::swap(a.infoListRow, b.infoListRow);
}

void SwapVolumes(TPanel& a, TPanel& b) {
  std::swap(a.fileSystem, b.fileSystem);
  std::swap(a.volumeId, b.volumeId);
  std::swap(a.volumeLabel, b.volumeLabel);
  std::swap(a.mountPoint, b.mountPoint);
  std::swap(a.tree, b.tree);
  std::swap(a.treeRebuild, b.treeRebuild);
}

}  // namespace

TPanel* Panels = nullptr;
unsigned ActiveSide = 0;
int PanelRows = 0;
PanelHooks ThePanelHooks;
std::unique_ptr<ArchiveLevel> (*OpenArchive)(const Westring& path, ArchiveLevel* parent) = nullptr;

TPanel::TPanel() : entries(new entry*[kStartCapacity]), capacity(kStartCapacity) {}

TPanel::~TPanel() {
  FreeEntries();
  delete[] entries;
}

int TPanel::Side() const { return static_cast<int>(this - Panels); }

void TPanel::FreeEntries() {
  for (int i = 0; i < count; ++i) FreeEntry(entries[i]);
  count = 0;
  taggedCount = 0;
  taggedBytes = 0;
}

void SwapPanelRecords(TPanel& a, TPanel& b) {
  SwapPaths(a, b);
  SwapListings(a, b);
  SwapViews(a, b);
  SwapVolumes(a, b);
  for (TPanel* panel : {&a, &b}) {
    panel->redrawPending = true;
    if (!panel->visible && panel->window && !panel->window->IsHidden()) panel->window->SetHidden(true);
  }
}
