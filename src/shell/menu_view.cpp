// The menus on the screen.
#include "shell/menu_view.h"

#include <algorithm>

#include "config/values/colours.h"
#include "console/console.h"
#include "shell/clock.h"

namespace {

constexpr int kFrameRows = 2;
constexpr int kTextColumn = 2;   // behind the frame and the mark
constexpr int kDropDownTop = 1;  // the row under the bar
constexpr wchar_t kLeftJoint = 0x255F, kLine = 0x2500, kRightJoint = 0x2562;
constexpr wchar_t kFrameLine = 0x2550, kFrameSide = 0x2551, kMoreAbove = 0x2191, kMoreBelow = 0x2193;

uint8_t Colour(ColourName name) { return Options::Colours[name]; }

// A foreground alone, on the background of what it stands in.
uint8_t InkOn(ColourName ink, uint8_t ground) {
  return MakeAttribute(Foreground(Colour(ink)), Background(ground));
}

CellString SeparatorRow(int width) {
  CellString row;
  row.attribute = Colour(kColourMenu);
  row.SetLength(width);
  for (int i = 0; i < width; ++i) row[i].character = kLine;
  row[0].character = kLeftJoint;
  row[width - 1].character = kRightJoint;
  return row;
}

}  // namespace

CellRect PlaceDropDown(const TMenu& menu, int column, int screenColumns, int screenRows) {
  const int left = std::max(std::min(column, screenColumns - menu.width), 0);
  const int room = std::max(screenRows - kDropDownTop, kFrameRows + 1);  // for one item at least
  const int height = std::min(menu.count + kFrameRows, room);
  return {left, kDropDownTop, left + menu.width - 1, kDropDownTop + height - 1};
}

int FirstShown(int before, int item, int rows) {
  return std::clamp(before, std::max(item - rows + 1, 0), item);
}

CellString BuildMenuRow(const TMenuItem& item, bool selected, int width) {
  if (item.IsSeparator()) return SeparatorRow(width);
  const uint8_t ground = Colour(selected ? kColourMenuHighlight : kColourMenu);
  const uint8_t ink = item.command == 0 ? InkOn(kColourDisabledMenu, ground) : ground;
  const Cell side{kFrameSide, Colour(kColourMenu)};
  CellString row;
  row.attribute = ink;
  row.SetLength(width);
  row[0] = row[width - 1] = side;
  row[1].character = item.mark;
  for (int i = 0; item.text[i]; ++i) row[kTextColumn + i].character = item.text[i];
  if (item.command != 0) row[kTextColumn + item.hotIndex].attribute = InkOn(kColourMenuQuickKey, ground);
  return row;
}

MenuView::MenuView(const MenuSet& menus)
    : menus(menus), bar(0, 0, ScreenColumns - 1, 0, Colour(kColourMenuBar)) {
  ShowClock();
}

MenuView::~MenuView() {
  dropDown.reset();
  RemoveClock();
}

void MenuView::Show(const MenuPlace& place) {
  Console->BeginUpdate();
  ShowBar(place.menu);
  ShowDropDown(place);
  Console->EndUpdate();
}

void MenuView::ShowBar(int shown) {
  const MenuTitle& title = kMenuTitles[shown];
  bar.PrintBytes(0, 0, kMenuBarLine);
  bar.PrintBytes(title.column, 0, title.text, Colour(kColourMenuHighlight));
  UpdateClock();
}

void MenuView::ShowDropDown(const MenuPlace& place) {
  const int wanted = place.open ? place.menu : -1;
  if (menu != wanted) {
    dropDown.reset();
    menu = wanted;
    first = 0;
  }
  if (menu < 0) return;
  if (!dropDown) {
    const CellRect at = PlaceDropDown(menus[menu], kMenuTitles[menu].column, ScreenColumns, ScreenRows);
    const uint8_t colour = Colour(kColourMenu);
    dropDown = std::make_unique<Win>(at.left, at.top, at.right, at.bottom, colour, colour);
  }
  first = FirstShown(first, place.item, dropDown->InnerHeight());
  DrawItems(place.item);
  DrawScrollMarks();
}

// With the frame's sides, as separators come and go when the items scroll.
void MenuView::DrawItems(int selected) {
  for (int y = 0; y < dropDown->InnerHeight(); ++y) {
    const int item = first + y;
    CellString row = BuildMenuRow(menus[menu].items[item], item == selected, menus[menu].width);
    dropDown->PrintCellString(-1, y, row);
  }
}

// In the frame, where a part of the items does not fit.
void MenuView::DrawScrollMarks() {
  const int rows = dropDown->InnerHeight(), right = dropDown->InnerWidth() - 1;
  if (rows >= menus[menu].count) return;
  const wchar_t above = first > 0 ? kMoreAbove : kFrameLine;
  const wchar_t below = first + rows < menus[menu].count ? kMoreBelow : kFrameLine;
  dropDown->Print(right, -1, Westring(&above, 1));
  dropDown->Print(right, rows, Westring(&below, 1));
}

bool MenuView::Covers(int x, int y) const {
  return dropDown && x >= dropDown->Left() && x <= dropDown->Right() && y >= dropDown->Top() &&
         y <= dropDown->Bottom();
}

int MenuView::ItemAt(int x, int y) const {
  if (!Covers(x, y)) return -1;
  const int column = x - dropDown->OriginX(), row = y - dropDown->OriginY();
  if (column < 0 || column >= dropDown->InnerWidth() || row < 0 || row >= dropDown->InnerHeight()) return -1;
  const int item = first + row;
  return menus[menu].items[item].IsSeparator() ? -1 : item;
}
