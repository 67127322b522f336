// The pull-down menus as data: what each shows and gives, and the titles over
// them.
#pragma once

#include <array>
#include <cstdint>

#include "console/key_codes.h"

struct TMenuItem {
  const char* text = nullptr;  // null for a separator
  int32_t hotIndex = 0;        // of the quick key in text
  int32_t mark = ' ';          // character in front of the text
  Key command = 0;             // 0 does nothing

  constexpr TMenuItem() = default;
  constexpr TMenuItem(const char* text, int32_t hotIndex, Key command)
      : text(text), hotIndex(hotIndex), command(command) {}

  bool IsSeparator() const { return text == nullptr; }
};

struct TMenu {
  static constexpr int kMostItems = 20;

  int32_t count = 0;
  int32_t width = 0;  // of the drop-down, its frame included
  TMenuItem items[kMostItems];
};

constexpr int kMenuCount = 5;
enum MenuNumber { kLeftMenu, kFilesMenu, kCommandsMenu, kOptionsMenu, kRightMenu };

using MenuSet = std::array<TMenu, kMenuCount>;

// No item is marked.
extern const MenuSet kMenus;

struct MenuTitle {
  const char* text;  // as it is highlighted
  int column;        // of its first character, and of its drop-down
  char quickKey;
  int helpPage;
};
extern const MenuTitle kMenuTitles[kMenuCount];
extern const char kMenuBarLine[];

// The menu whose title is in a column of the bar, -1 for none. What is left of
// the first title belongs to it.
int TitleAt(int x);
// The menu or the item with a quick key, -1 for none. Case does not count.
int TitleWithKey(Key character);
int ItemWithKey(const TMenu& menu, Key character);
// From an item to the next that is no separator, step 1 or -1, round the ends.
int NextItem(const TMenu& menu, int item, int step);
