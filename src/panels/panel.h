// TPanel: one of the two file lists of the screen, a plain record.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "dialogs/win.h"
#include "panels/entry.h"
#include "panels/entry_source.h"
#include "panels/position_stack.h"

enum PanelType { kPanelFiles = 0, kPanelInfo = 1 };
enum PanelStyle { kStyleBrief = 0, kStyleFull, kStyleWide, kStyleBriefWide, kStyleUnix, kStyleTree };

constexpr int kPathSize = 512;  // elements, the terminator included

class Tree;

struct TPanel {
  TPanel();
  ~TPanel();
  TPanel(const TPanel&) = delete;
  TPanel& operator=(const TPanel&) = delete;

  wchar_t path[kPathSize] = {};      // the directory shown; in an archive its path and the path inside
  wchar_t lastPath[kPathSize] = {};  // of the listing now held
  int32_t lastTop = 0, lastCursor = 0;
  wchar_t previousPath[kPathSize] = {};
  int32_t previousTop = 0, previousCursor = 0;
  int32_t cursorRow = 0;  // slot, from the first visible entry
  int32_t topIndex = 0;
  bool visible = true;
  bool readPending = false;    // a read was skipped while hidden and is owed
  bool redrawPending = false;  // the listing changed since it was drawn
  bool switchedOff = false;    // was already off when the other panel went
  std::unique_ptr<Win> window;
  CPosStack positions;
  entry** entries;
  int32_t capacity;
  int32_t count = 0;
  int32_t taggedCount = 0;
  uint64_t taggedBytes = 0;
  wchar_t quickSearch[kPathSize] = {};
  int32_t sortKey = 0;
  int32_t panelType = kPanelFiles;
  int32_t style = kStyleFull;
  Westring filter = L"*";
  int32_t visibleEntries = 0;
  wchar_t fileSystem[30] = {};
  uint64_t volumeId = 0;
  wchar_t volumeLabel[80] = {};
  Westring mountPoint;
  int32_t readError = 0;
  Tree* tree = nullptr;
  bool treeRebuild = false;
  std::unique_ptr<ArchiveLevel> archive;
  int32_t nameScroll = 0, nameScrollEntry = -1;
  int32_t infoListRow = 0;
  // Of all real subdirectories met by the last read, shown or not. Only loaded:
  // whoever looks one up calls FinishLoad first, and reads pay for no order.
  FnStringCollection subdirectories;
  CLinkTargetCache linkTargets;

  int CurrentIndex() const { return topIndex + cursorRow; }
  // The entry under the cursor; null in an empty list.
  entry* Current() const {
    const int i = CurrentIndex();
    return i >= 0 && i < count ? entries[i] : nullptr;
  }
  bool IsFiles() const { return panelType == kPanelFiles; }
  bool IsTree() const { return IsFiles() && style == kStyleTree; }
  bool IsVisibleFiles() const { return visible && IsFiles(); }
  int Side() const;

  // Frees every entry; the array stays.
  void FreeEntries();
};

// Copies text into one of the record's fixed arrays, cut to fit.
template <int size>
void CopyText(wchar_t (&target)[size], const wchar_t* text) {
  int i = 0;
  for (; i < size - 1 && text[i]; ++i) target[i] = text[i];
  target[i] = 0;
}

// Two records, side 0 left, side 1 right.
extern TPanel* Panels;
extern unsigned ActiveSide;
inline TPanel& ActivePanel() { return Panels[ActiveSide]; }
inline TPanel& OtherPanel() { return Panels[ActiveSide ^ 1]; }

// Rows of a panel's list.
extern int PanelRows;

// Exchanges two records but for their windows, which stay with their sides: the
// collections are copied, entries, tree and archive move. Both panels are owed a
// redraw, and a window whose panel is not visible any more leaves the screen; the
// clock must be off it before.
void SwapPanelRecords(TPanel& a, TPanel& b);

// What the rooms above add to panels; null where there is nothing yet.
struct PanelHooks {
  void (*drawInfo)(TPanel& panel) = nullptr;  // the inside of an info panel
  void (*readTree)(TPanel& panel) = nullptr;  // the rows of a tree panel
  // Mark the directory of a tree panel's row, or it and all below it, as open or
  // closed; the rows are made anew by the next read.
  void (*openNode)(TPanel& panel, int row, bool open) = nullptr;
  void (*openBranch)(TPanel& panel, int row, bool open) = nullptr;
  // The directory in the panel's tree that is nearest to what was typed. False,
  // with path untouched, if there is none.
  bool (*findInTree)(const TPanel& panel, const Westring& typed, Westring& path) = nullptr;
  // Alt, Ctrl or Shift went down or up while a panel reads the keys.
  std::function<void()> modifiersChanged = {};
};
extern PanelHooks ThePanelHooks;
