// The pull-down menus at work: keys and mouse until the user has chosen a
// command or left.
#include "shell/menu.h"

#include "console/input.h"
#include "dialogs/help.h"
#include "shell/clock.h"
#include "shell/menu_marks.h"
#include "shell/menu_view.h"

namespace {

// Menus that are up. Held by RunMenu, changed by the functions of the tables.
struct OpenMenus {
  explicit OpenMenus(MenuPlace& place) : place(place) {}

  const TMenu& Menu() const { return menus[place.menu]; }

  MenuPlace& place;
  const MenuSet menus = MarkedMenus();
  MenuView view{menus};
  TMouseEvent mouse;
  bool buttonSeen = false;  // pressed or moved since the menus came up
  bool ended = false;
  Key command = 0;  // with which it ended
};

void End(OpenMenus& open, Key command) {
  open.command = command;
  open.ended = true;
}

void GoToMenu(OpenMenus& open, int menu) {
  if (menu != open.place.menu) open.place.item = 0;
  open.place.menu = menu;
}

void OpenMenu(OpenMenus& open, int menu) {
  GoToMenu(open, menu);
  open.place.open = true;
}

void Choose(OpenMenus& open, int item) {
  open.place.item = item;
  if (const Key command = open.Menu().items[item].command) End(open, command);
}

void Accept(OpenMenus& open) {
  if (open.place.open)
    Choose(open, open.place.item);
  else
    open.place.open = true;
}

void StepBack(OpenMenus& open) {
  if (open.place.open)
    open.place.open = false;
  else
    End(open, 0);
}

void GoToPreviousMenu(OpenMenus& open) { GoToMenu(open, (open.place.menu + kMenuCount - 1) % kMenuCount); }
void GoToNextMenu(OpenMenus& open) { GoToMenu(open, (open.place.menu + 1) % kMenuCount); }

// The first of these keys lets the drop-down hang and shows where the user is.
void GoBy(OpenMenus& open, int step) {
  if (open.place.open) open.place.item = NextItem(open.Menu(), open.place.item, step);
  open.place.open = true;
}

void GoUp(OpenMenus& open) { GoBy(open, -1); }
void GoDown(OpenMenus& open) { GoBy(open, 1); }

void GoFirst(OpenMenus& open) {
  open.place.item = 0;
  open.place.open = true;
}

void GoLast(OpenMenus& open) {
  open.place.item = open.Menu().count - 1;
  open.place.open = true;
}

void Help(OpenMenus& open) { ShowHelp(kMenuTitles[open.place.menu].helpPage); }

// The window's close button comes as this key too, and must not be lost here.
void Quit(OpenMenus& open) { End(open, FKey(10)); }

void PressQuickKey(OpenMenus& open, Key character) {
  if (open.place.open) {
    const int item = ItemWithKey(open.Menu(), character);
    if (item >= 0) Choose(open, item);
  } else {
    const int menu = TitleWithKey(character);
    if (menu >= 0) OpenMenu(open, menu);
  }
}

// A button is pressed or moves while pressed.
void Point(OpenMenus& open) {
  open.buttonSeen = true;
  const int menu = open.mouse.y == 0 ? TitleAt(open.mouse.x) : -1;
  if (menu >= 0) OpenMenu(open, menu);
  const int item = open.view.ItemAt(open.mouse.x, open.mouse.y);
  if (item >= 0) open.place.item = item;
}

// The release that belongs to the press which brought the menus up must not
// take them down.
void LetGo(OpenMenus& open) {
  if (!open.buttonSeen) return;
  const TMouseEvent& mouse = open.mouse;
  const int item = open.view.ItemAt(mouse.x, mouse.y);
  if (item >= 0)
    Choose(open, item);
  else if (!open.view.Covers(mouse.x, mouse.y) && (mouse.y > 0 || TitleAt(mouse.x) < 0))
    StepBack(open);
}

void TurnWheel(OpenMenus& open) {
  if (open.place.open) GoBy(open, open.mouse.delta > 0 ? -1 : 1);
}

struct KeyRow {
  Key key;
  void (*run)(OpenMenus&);
};

constexpr KeyRow kKeys[] = {
    {kEnter, Accept}, {kEscape, StepBack}, {kLeft, GoToPreviousMenu}, {kRight, GoToNextMenu},
    {kUp, GoUp},      {kDown, GoDown},     {kHome, GoFirst},          {kEnd, GoLast},
    {FKey(1), Help},  {FKey(10), Quit},
};

void PressKey(OpenMenus& open, Key key) {
  for (const KeyRow& row : kKeys)
    if (row.key == key) return row.run(open);
  PressQuickKey(open, AliasKey(key));  // with Alt as without
}

// By kind of the mouse event.
void (*const kMouseRows[])(OpenMenus&) = {Point, Point, Point, Point, Point, LetGo, LetGo, TurnWheel};

}  // namespace

Key RunMenu(MenuPlace& place, int side, bool resume) {
  if (!resume) place = MenuPlace{side == 0 ? kLeftMenu : kRightMenu, 0, false};
  RemoveClock();
  Key command = 0;
  {
    OpenMenus open(place);
    while (!open.ended) {
      open.view.Show(place);
      bool timedOut = false;
      const Key key = ReadKey(timedOut, &open.mouse, -1);
      if (key == kMouseKey)
        kMouseRows[open.mouse.kind](open);
      else
        PressKey(open, key);
    }
    command = open.command;
  }
  ShowClock();
  return command;
}
