// What the menus mark.
#include "shell/menu_marks.h"

#include "config/values/options.h"
#include "foundation/code_pages.h"
#include "shell/menu_commands.h"

namespace {

// Rows of a panel's menu that are marked. From the fifth row on a mark stands
// one row above the item it tells of, that of the order by name on the
// separator. This is how the menus are meant to look: the rows are not to be
// brought into line with the items.
constexpr int kStyleRow = 0;  // and on, to Brief-Wide
constexpr int kInfoRow = 4;
constexpr int kTreeRow = 5;
constexpr int kSortRow = 8;  // and on, one for each key
constexpr int kReverseRow = 13;

constexpr int kSortKeys = 5;  // the same in reverse follow

struct OptionMark {
  Key command;
  const bool& option;
};

constexpr OptionMark kOptionMarks[] = {
    {kMenuHidden, Options::Hidden},           {kMenuPathPrompt, Options::PathPrompt},
    {kMenuFullScreen, Options::FullScreen},   {kMenuClock, Options::Clock},
    {kMenuTagDirs, Options::TagDirs},         {kMenuThousandSep, Options::ThousandSep},
    {kMenuRetainCount, Options::RetainCount},
};

void Mark(TMenuItem& item) { item.mark = CaseTablesReady ? 0x221A : '*'; }

}  // namespace

void MarkPanelMenu(TMenu& menu, const TPanel& panel) {
  if (!panel.IsFiles())
    Mark(menu.items[kInfoRow]);
  else if (panel.style <= kStyleBriefWide)
    Mark(menu.items[kStyleRow + panel.style]);
  else if (panel.IsTree())
    Mark(menu.items[kTreeRow]);
  Mark(menu.items[kSortRow + panel.sortKey % kSortKeys]);
  if (panel.sortKey >= kSortKeys) Mark(menu.items[kReverseRow]);
}

void MarkOptionsMenu(TMenu& menu) {
  for (int i = 0; i < menu.count; ++i)
    for (const OptionMark& row : kOptionMarks)
      if (menu.items[i].command == row.command && row.option) Mark(menu.items[i]);
}

MenuSet MarkedMenus() {
  MenuSet menus = kMenus;
  MarkPanelMenu(menus[kLeftMenu], Panels[0]);
  MarkPanelMenu(menus[kRightMenu], Panels[1]);
  MarkOptionsMenu(menus[kOptionsMenu]);
  return menus;
}
