// What a key means: layers asked in order, the first that takes the key ends
// the pass.
#include "shell/dispatch.h"

#include "config/values/options.h"
#include "panels/draw_panel.h"
#include "shell/command_line.h"
#include "shell/menu_commands.h"
#include "shell/mouse.h"
#include "shell/panel_commands.h"
#include "shell/search_commands.h"

namespace {

// A command of the menu takes the place of the key that opened it.
bool PullDownMenu(Shell& shell) {
  if (shell.key != FKey(9) && shell.key != CtrlLetter('n') && shell.key != ShiftFKey(10)) return false;
  shell.key = RunMenu(shell.menu, static_cast<int>(ActiveSide), shell.key == ShiftFKey(10));
  shell.modifiers = 0;
  return shell.key == 0;
}

// By option the grey star is no command of the list but a character.
bool PlainStarKey(Shell& shell) {
  if (shell.key == kGreyStar && Options::DisableInvert) shell.key = L'*';
  return false;
}

struct DigitRow {
  Key zero;  // the code of digit 0; the others follow
  int (*run)(Shell&, int digit);
};

constexpr DigitRow kDigitKeys[] = {
    {CtrlDigit(0), GoToStored},
    {CtrlPadDigit(0), GoToStored},
    {CtrlShiftDigit(0), StorePath},
    {CtrlShiftPadDigit(0), StorePath},
};

bool PanelKey(Shell& shell) {
  if (!ActivePanel().IsVisibleFiles()) return false;
  for (const DigitRow& row : kDigitKeys) {
    if (shell.key < row.zero || shell.key > row.zero + 9) continue;
    DrawCursor(static_cast<int>(ActiveSide), false);
    shell.cursorDirty = true;
    shell.redrawLevel = row.run(shell, static_cast<int>(shell.key - row.zero));
    return true;
  }
  return false;
}

bool SortKey(Shell& shell) {
  if (shell.key < CtrlFKey(3) || shell.key > CtrlFKey(8)) return false;
  const Key first = ActiveSide == 0 ? kMenuLeftName : kMenuRightName;
  shell.key = first + (shell.key - CtrlFKey(3));
  return false;  // now a menu command
}

// Extended keys have one of these bits.
constexpr Key kExtendedBits = 0x130000;

bool TextKey(Shell& shell) {
  const Key key = shell.key;
  if (key <= 31 || key == 127 || key > 0xFFFF || key & kExtendedBits) return false;
  shell.redrawLevel = TypeCharacter(shell);
  return true;
}

// These leave the panel cursor where it is, so it need not be painted anew.
constexpr Key kCursorStays[] = {CtrlLetter('h'), kDelete,         kAltLeft,        kAltRight,    kCtrlLeft,
                                kCtrlRight,      CtrlLetter('s'), CtrlLetter('d'), kModifierKey, 0};

bool CursorStays(Key key) {
  for (Key stays : kCursorStays)
    if (key == stays) return true;
  if (key != kLeft && key != kRight) return false;
  const TPanel& panel = ActivePanel();
  return panel.style != kStyleBrief && panel.style != kStyleBriefWide;
}

bool Allows(unsigned needs, const Shell& shell) {
  if (needs & kPanelShown && shell.bothHidden) return false;
  if (needs & kFilesPanel && !ActivePanel().IsFiles()) return false;
  if (needs & kNoArchive && ActivePanel().archive) return false;
  return true;
}

bool CommandKey(Shell& shell) {
  if (!CursorStays(shell.key)) {
    DrawCursor(static_cast<int>(ActiveSide), false);
    shell.cursorDirty = true;
  }
  const CommandRow* row = FindCommand(shell.key);
  if (!row) return false;
  if (!row->run || !Allows(row->needs, shell)) return true;
  if (row->needs & kEndsSearch) ActivePanel().quickSearch[0] = 0;
  shell.redrawLevel = row->run(shell);
  return true;
}

// Alt with a character that no command has.
bool SearchCharacter(Shell& shell) {
  const Key character = AliasKey(shell.key);
  if (character == shell.key) return false;
  shell.redrawLevel = StartSearch(shell, character);
  return true;
}

using Layer = bool (*)(Shell&);
constexpr Layer kLayers[] = {PullDownMenu, PlainStarKey, PanelKey,       SortKey,
                             TextKey,      CommandKey,   SearchCharacter};

}  // namespace

void DispatchKey(Shell& shell) {
  shell.redrawLevel = kRedrawNothing;
  shell.modifiers = CurrentModifiers;
  if (shell.key == kMouseKey) {
    DispatchMouse(shell);
    if (shell.key == 0) return;
  }
  for (Layer layer : kLayers)
    if (layer(shell)) return;
}
