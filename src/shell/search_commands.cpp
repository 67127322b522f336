// The quick search as commands start it, go on with it and shorten it.
#include "shell/search_commands.h"

#include "panels/quick_search.h"
#include "shell/command_line.h"
#include "shell/panel_commands.h"

namespace {

bool HasSearch(const TPanel& panel) { return panel.IsVisibleFiles() && panel.quickSearch[0] != 0; }

// The key that ended a search is acted on by the next pass. It may be one of the
// mouse, too.
int Search(Shell& shell, Key character, int direction) {
  shell.keyPending = QuickSearch(character, ActivePanel(), &shell.key, &shell.mouse, direction) != 0;
  return kRedrawLine;
}

}  // namespace

int StartSearch(Shell& shell, Key character) { return Search(shell, character, 1); }

int SearchOrTaggedUp(Shell& shell) {
  return HasSearch(ActivePanel()) ? Search(shell, 0, -1) : PreviousTagged(shell);
}

int SearchOrTaggedDown(Shell& shell) {
  return HasSearch(ActivePanel()) ? Search(shell, 0, 1) : NextTagged(shell);
}

int CompleteOrGoRight(Shell& shell) {
  if (!HasSearch(ActivePanel())) return CursorRight(shell);
  CompleteSearch(ActivePanel());
  shell.cursorDirty = true;
  return kRedrawNothing;
}

int DropSearchCharacter(Shell&) {
  ShortenSearch(ActivePanel());
  return kRedrawNothing;
}
