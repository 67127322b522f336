// Quick search: one step of it, and the loop that reads the keys of the others.
#include "panels/quick_search.h"

#include <algorithm>
#include <cwchar>

#include "config/values/options.h"
#include "console/console.h"
#include "foundation/fold.h"
#include "panels/draw_panel.h"
#include "panels/panel_view.h"

namespace {

constexpr int kSearchCursorSize = 15;
constexpr int kLabelWidth = 8;  // of "Search: " in the status line
constexpr Key kFirstExtendedKey = 0x10000;
constexpr int kNoEntry = -1;

int TextLength(const TPanel& panel) { return static_cast<int>(wcslen(panel.quickSearch)); }

bool BeginsWith(const entry& e, const wchar_t* text, int length) {
  return length == 0 || CompareNoCaseN(e.name, text, length) == 0;
}

void DropForeignText(TPanel& panel) {
  const entry* const current = panel.Current();
  if (!current || !BeginsWith(*current, panel.quickSearch, TextLength(panel))) panel.quickSearch[0] = 0;
}

// The first entry from start on, in direction, that begins with the text. Behind
// the last one the first follows; in front of the first there is none, unless the
// whole list is asked for.
int FindMatch(const TPanel& panel, int start, int direction, bool wholeList) {
  const int length = TextLength(panel);
  int index = start;
  for (int left = panel.count; left > 0; --left, index += direction) {
    if (index >= panel.count) index = 0;
    if (index < 0 && !wholeList) break;
    if (index < 0) index = panel.count - 1;
    if (BeginsWith(*panel.entries[index], panel.quickSearch, length)) return index;
  }
  return kNoEntry;
}

void MoveTo(TPanel& panel, int index) { MoveCursor(panel, index - panel.CurrentIndex()); }

void SearchOn(TPanel& panel, int direction) {
  DropForeignText(panel);
  const int found = FindMatch(panel, panel.CurrentIndex() + direction, direction, false);
  if (found != kNoEntry) MoveTo(panel, found);
}

// A character that leads nowhere is taken away again.
void SearchWith(TPanel& panel, wchar_t character, int direction) {
  DropForeignText(panel);
  const int length = TextLength(panel);
  if (length + 1 >= kPathSize) return;
  panel.quickSearch[length] = character;
  panel.quickSearch[length + 1] = 0;
  const int found = FindMatch(panel, panel.CurrentIndex(), direction, true);
  if (found != kNoEntry)
    MoveTo(panel, found);
  else
    panel.quickSearch[length] = 0;
}

void SearchUp(TPanel& panel, int& direction) {
  direction = -1;
  SearchOn(panel, direction);
}

void SearchDown(TPanel& panel, int& direction) {
  direction = 1;
  SearchOn(panel, direction);
}

void Shorten(TPanel& panel, int&) { ShortenSearch(panel); }

void Complete(TPanel& panel, int&) { CompleteSearch(panel); }

struct SearchKey {
  Key key;
  void (*run)(TPanel& panel, int& direction);
};

constexpr SearchKey kSearchKeys[] = {
    {kAltUp, SearchUp},       {kAltDown, SearchDown},    {kBackspace, Shorten},
    {kAltBackspace, Shorten}, {kCtrlBackspace, Shorten}, {kShiftTab, Complete},
};

// Behind the text of the status line.
void PlaceTextCursor(TPanel& panel) {
  const int inner = panel.window->InnerWidth();
  panel.window->GotoXY(std::min(kLabelWidth + TextLength(panel), inner), PanelRows + 1);
}

// With the bar and the cursor of the text on the screen. Letting Alt go is no key.
Key WaitForKey(TPanel& panel, TMouseEvent* event) {
  DrawCursor(panel.Side(), true);
  PlaceTextCursor(panel);
  Console->SetCursorSize(kSearchCursorSize);
  Key key = kModifierKey;
  while (key == kModifierKey || key == 0) {
    bool timedOut = false;
    key = ReadKey(timedOut, event, -1);
    if (key == kModifierKey && ThePanelHooks.modifiersChanged) ThePanelHooks.modifiersChanged();
  }
  Console->SetCursorSize(0);
  DrawCursor(panel.Side(), false);
  return key;
}

// False for a key that is not the search's.
bool UseKey(TPanel& panel, Key key, int& direction) {
  for (const SearchKey& row : kSearchKeys) {
    if (row.key != key) continue;
    row.run(panel, direction);
    return true;
  }
  if (key < 32 || key >= kFirstExtendedKey) return false;
  SearchWith(panel, static_cast<wchar_t>(key), direction);
  return true;
}

}  // namespace

int QuickSearch(Key firstKey, TPanel& panel, Key* outKey, TMouseEvent* event, int direction) {
  if (!panel.IsVisibleFiles() || !panel.Current()) return 0;
  if (firstKey != 0)
    SearchWith(panel, static_cast<wchar_t>(firstKey), direction);
  else
    SearchOn(panel, direction);
  if (!Options::StickyAlt || !ShowsList(panel)) return 0;

  Key key = 0;
  do {
    key = WaitForKey(panel, event);
  } while (UseKey(panel, key, direction));
  panel.quickSearch[0] = 0;
  *outKey = key;
  return key == kEscape ? 0 : static_cast<int>(key);
}

void ShortenSearch(TPanel& panel) {
  const int length = TextLength(panel);
  if (length > 0) panel.quickSearch[length - 1] = 0;
}

void CompleteSearch(TPanel& panel) {
  const entry* const current = panel.Current();
  const int length = TextLength(panel);
  if (!current || !BeginsWith(*current, panel.quickSearch, length)) return;
  int common = std::min(static_cast<int>(wcslen(current->name)), kPathSize - 1);
  for (int i = 0; i < panel.count && common > length; ++i) {
    const entry& e = *panel.entries[i];
    if (!BeginsWith(e, panel.quickSearch, length)) continue;
    int same = length;
    while (same < common && FoldChar(e.name[same]) == FoldChar(current->name[same])) ++same;
    common = same;
  }
  wmemcpy(panel.quickSearch, current->name, static_cast<size_t>(common));
  panel.quickSearch[common] = 0;
}
