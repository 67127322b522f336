// The command keys of the main loop: one row a key, asked by DispatchKey. A row
// without a handler belongs to an operation that is not there yet.
#include <iterator>

#include "config/settings_file.h"
#include "config/values/options.h"
#include "dialogs/help.h"
#include "dialogs/prompt.h"
#include "foundation/code_pages.h"
#include "panels/panel.h"
#include "shell/command_line.h"
#include "shell/completion.h"
#include "shell/copy_commands.h"
#include "shell/dialog_commands.h"
#include "shell/dispatch.h"
#include "shell/execute.h"
#include "shell/file_commands.h"
#include "shell/history.h"
#include "shell/menu_commands.h"
#include "shell/panel_commands.h"
#include "shell/panel_switches.h"
#include "shell/scrollback_viewer.h"
#include "shell/search_commands.h"
#include "shell/select_commands.h"
#include "shell/view_commands.h"

namespace {

constexpr unsigned kListMove = kEndsSearch;

int RunLine(Shell& shell, bool separate) {
  const int redraw = ExecuteCommandLine(static_cast<int>(ActiveSide), shell.commandLine, separate);
  EmptyCommandLine(shell);
  shell.historyIndex = 0;
  return redraw;
}

int RunEnter(Shell& shell) { return RunLine(shell, false); }
int RunSeparate(Shell& shell) { return RunLine(shell, true); }

int RunEscape(Shell& shell) {
  if (shell.modifiers & kModCtrl) return InsertLeftPath(shell);
  ActivePanel().quickSearch[0] = 0;
  if (shell.commandLine.IsEmpty() && Options::EscPanelSwitch) return SwitchBothPanels(shell);
  EmptyCommandLine(shell);
  shell.cursorDirty = true;
  return kRedrawLine;
}

// The directory history has this key with Alt alone; its menu item leads here
// without Alt and goes to the root.
int RunAltBackslash(Shell& shell) {
  if (shell.modifiers & kModAlt) return RunDirectoryHistory(shell);
  ActivePanel().quickSearch[0] = 0;  // as the root's own key
  return GoToRoot(shell);
}

int RunReRead(Shell& shell) {
  if (Options::CtrlRDriveChng) return RunMounts(shell, static_cast<int>(ActiveSide), false);
  return shell.bothHidden ? kRedrawNothing : ReRead(shell);
}

int RunMountsOfActive(Shell& shell) {
  return RunMounts(shell, static_cast<int>(ActiveSide), shell.key == kCtrlShiftM);
}

int RunHelp(Shell&) {
  ShowHelp(kHelpMain);
  return kRedrawNothing;
}

int RunSave(Shell&) {
  SaveSettings();
  return kRedrawAll;
}

constexpr unsigned kConfirmQuitOff = 8;

int RunQuit(Shell& shell) {
  if (Options::Confirmations & static_cast<int>(kConfirmQuitOff)) {
    shell.quit = true;
    return kRedrawNothing;
  }
  const int answer = Prompt(L"Are you sure you want to exit Orvane ?", L"", kPromptOkCancel | kPromptMessage);
  shell.quit = answer > 0 && answer < 256 && UpperTable[answer] == 'Y';
  return kRedrawAll;
}

template <int side>
int RunSwitch(Shell& shell) {
  return SwitchPanel(shell, side);
}

template <int style>
int RunStyleOfActive(Shell& shell) {
  return SetStyle(shell, static_cast<int>(ActiveSide), style);
}

template <int side, int style>
int RunStyle(Shell& shell) {
  return ShowStyle(shell, side, style);
}

template <int side, int key>
int RunSort(Shell& shell) {
  return SetPanelSort(shell, side, key);
}

template <int side>
int RunReverse(Shell& shell) {
  return ReverseSort(shell, side);
}

template <int side>
int RunInfo(Shell& shell) {
  return ShowInfoOn(shell, side);
}

template <int side>
int RunReReadSide(Shell&) {
  return ReReadSide(side);
}

template <int side>
int RunFilterOf(Shell& shell) {
  return RunFilter(shell, side);
}

template <int side>
int RunMountsOf(Shell& shell) {
  return RunMounts(shell, side, false);
}

constexpr CommandRow kCommands[] = {
    {kGreyPlus, kPanelShown | kFilesPanel, RunSelect},
    {kGreyMinus, kPanelShown | kFilesPanel, RunUnselect},
    {kGreyStar, kPanelShown | kFilesPanel, InvertTags},
    {kMenuSelectGroup, kPanelShown | kFilesPanel, RunSelect},
    {kMenuUnselectGroup, kPanelShown | kFilesPanel, RunUnselect},
    {kMenuInvert, kPanelShown | kFilesPanel, InvertTags},
    {kEnter, 0, RunEnter},
    {kAltEnter, 0, RunSeparate},
    {kEscape, 0, RunEscape},
    {kCtrlRightBracket, 0, InsertRightPath},
    {kCtrlBackslash, kEndsSearch, GoToRoot},
    {kAltBackslash, 0, RunAltBackslash},
    {kCtrlShiftBackslash, kEndsSearch, GoToOtherPath},
    {kCtrlMinus, kEndsSearch, GoToPrevious},
    {kCtrlLeft, 0, MoveWordLeft},
    {kCtrlRight, 0, MoveWordRight},
    {kCtrlBackspace, 0, DeleteWordLeft},
    {kCtrlDelete, 0, DeleteWordRight},
    {kLeft, 0, GoLeft},
    {kAltLeft, 0, CursorLeft},
    {CtrlLetter('s'), 0, CursorLeft},
    {kRight, 0, GoRight},
    {kAltRight, 0, CompleteOrGoRight},
    {CtrlLetter('d'), 0, CursorRight},
    {kHome, kListMove, GoFirst},
    {kEnd, kListMove, GoLast},
    {kCtrlHome, 0, MoveLineStart},
    {kCtrlEnd, 0, MoveLineEnd},
    {kUp, kListMove, GoRowUp},
    {kDown, kListMove, GoRowDown},
    {kPageUp, kPanelShown | kListMove, PageUp},
    {kPageDown, kPanelShown | kListMove, PageDown},
    {CtrlLetter('e'), 0, PreviousCommand},
    {kCtrlUp, 0, PreviousCommand},
    {CtrlLetter('x'), 0, NextCommand},
    {kCtrlDown, 0, NextCommand},
    {kCtrlEnter, 0, CompleteOrInsert},
    {kCtrlShiftEnter, 0, CompleteOrInsert},
    {kCtrlShiftJ, 0, InsertName},
    {CtrlLetter('f'), 0, InsertFullPath},
    {kCtrlShiftF, 0, InsertFullPath},
    {kCtrlTab, 0, CompleteFileName},
    {kCtrlInsert, 0, CopyLine},
    {kShiftInsert, 0, PasteLine},
    {kDelete, 0, DeleteAtCursor},
    {kBackspace, 0, DeleteLeft},
    {kInsert, kPanelShown | kListMove, TagAndGoDown},
    {kTab, 0, ChangeSide},
    {kShiftTab, 0, ChangeSide},
    {CtrlLetter('u'), 0, SwapPanels},
    {CtrlLetter('o'), 0, SwitchBothPanels},
    {CtrlLetter('p'), 0, SwitchOtherPanel},
    {CtrlFKey(1), 0, RunSwitch<0>},
    {CtrlFKey(2), 0, RunSwitch<1>},
    {CtrlLetter('l'), 0, ToggleInfoOfActive},
    {CtrlLetter('r'), 0, RunReRead},
    {CtrlLetter('h'), 0, ToggleHidden},
    {CtrlLetter('a'), kNoArchive, nullptr},
    {CtrlLetter('c'), kNoArchive, nullptr},
    {kCtrlI, kNoArchive, nullptr},
    {CtrlLetter('g'), kEndsSearch, GoToLinkTarget},
    {CtrlLetter('k'), 0, nullptr},
    {CtrlLetter('q'), 0, CountSizes},
    {CtrlLetter('w'), kPanelShown | kFilesPanel | kNoArchive, RunGuiWindow},
    {CtrlLetter('t'), 0, RunSelectAnywhere},
    {CtrlLetter('y'), 0, RunUnselectAnywhere},
    {CtrlLetter('b'), 0, RunScrollBack},
    {kCtrlPageDown, kPanelShown | kEndsSearch, OpenEntryAsArchive},
    {CtrlDigit(3), kPanelShown | kEndsSearch, OpenEntryAsArchive},
    {CtrlPadDigit(3), kPanelShown | kEndsSearch, OpenEntryAsArchive},
    {kCtrlPageUp, kEndsSearch, GoToParent},
    {CtrlDigit(9), kEndsSearch, GoToParent},
    {CtrlPadDigit(9), kEndsSearch, GoToParent},
    {kCtrlM, 0, RunMountsOfActive},
    {kCtrlShiftM, 0, RunMountsOfActive},
    {kAltUp, kPanelShown, SearchOrTaggedUp},
    {kAltDown, kPanelShown, SearchOrTaggedDown},
    {kAltHome, kEndsSearch, GoToHome},
    {kAltBackspace, 0, DropSearchCharacter},
    {kCtrlGreyPlus, 0, TagAllEntries},
    {kCtrlGreyMinus, 0, ClearAllTags},
    {kCtrlShiftGreyPlus, 0, TagAllEntries},
    {kCtrlShiftGreyMinus, 0, ClearAllTags},
    {kAltGreyPlus, 0, RestoreTags},
    {kMenuRestoreSelection, 0, RestoreTags},
    {FKey(1), 0, RunHelp},
    {FKey(2), 0, nullptr},
    {ShiftFKey(2), 0, nullptr},
    {FKey(3), kPanelShown | kFilesPanel, ViewEntry},
    {AltFKey(3), kPanelShown | kFilesPanel, ViewEntryElsewhere},
    {ShiftFKey(3), kNoArchive, ViewNamed},
    {FKey(4), 0, nullptr},
    {AltFKey(4), 0, nullptr},
    {CtrlShiftFKey(4), 0, nullptr},
    {ShiftFKey(4), 0, nullptr},
    {FKey(5), kPanelShown | kFilesPanel | kEndsSearch, RunCopy},
    {FKey(6), kPanelShown | kFilesPanel | kEndsSearch, RunMove},
    {ShiftFKey(5), kPanelShown | kFilesPanel | kNoArchive, RunCopyHere},
    {ShiftFKey(6), kPanelShown | kFilesPanel | kNoArchive, RunMoveHere},
    {FKey(7), kNoArchive, RunMakeDirectory},
    {FKey(8), kPanelShown | kFilesPanel, RunDelete},
    {ShiftFKey(7), 0, nullptr},
    {ShiftFKey(8), 0, RunDeleteNamed},
    {ShiftFKey(9), 0, RunSave},
    {kMenuSaveSetup, 0, RunSave},
    {FKey(10), 0, RunQuit},
    {AltFKey(1), 0, RunMountsOf<0>},
    {AltFKey(2), 0, RunMountsOf<1>},
    {AltFKey(5), 0, RunStoredPaths},
    {AltFKey(6), 0, RunMakeObjects},
    {AltFKey(7), 0, nullptr},
    {AltShiftFKey(7), 0, nullptr},
    {AltFKey(8), 0, RunHistory},
    {AltFKey(9), 0, ToggleRows},
    {AltShiftFKey(9), 0, ToggleColumns},
    {AltFKey(10), 0, nullptr},
    {AltShiftFKey(1), 0, RunStyleOfActive<kStyleBrief>},
    {AltShiftFKey(2), 0, RunStyleOfActive<kStyleFull>},
    {AltShiftFKey(3), 0, RunStyleOfActive<kStyleWide>},
    {AltShiftFKey(4), 0, RunStyleOfActive<kStyleBriefWide>},
    {AltShiftFKey(5), 0, RunStyleOfActive<kStyleUnix>},
    {AltShiftFKey(8), 0, RunDirectoryHistory},
    {CtrlShiftFKey(5), kPanelShown | kFilesPanel | kNoArchive, nullptr},
    {ShiftFKey(1), 0, RunManual},

    {kMenuLeftName, 0, RunSort<0, 0>},
    {kMenuLeftName + 1, 0, RunSort<0, 1>},
    {kMenuLeftName + 2, 0, RunSort<0, 2>},
    {kMenuLeftName + 3, 0, RunSort<0, 3>},
    {kMenuLeftName + 4, 0, RunSort<0, 4>},
    {kMenuLeftReverse, 0, RunReverse<0>},
    {kMenuRightName, 0, RunSort<1, 0>},
    {kMenuRightName + 1, 0, RunSort<1, 1>},
    {kMenuRightName + 2, 0, RunSort<1, 2>},
    {kMenuRightName + 3, 0, RunSort<1, 3>},
    {kMenuRightName + 4, 0, RunSort<1, 4>},
    {kMenuRightReverse, 0, RunReverse<1>},
    {kMenuLeftBrief, 0, RunStyle<0, kStyleBrief>},
    {kMenuLeftFull, 0, RunStyle<0, kStyleFull>},
    {kMenuLeftWide, 0, RunStyle<0, kStyleWide>},
    {kMenuLeftBriefWide, 0, RunStyle<0, kStyleBriefWide>},
    {kMenuLeftUnix, 0, RunStyle<0, kStyleUnix>},
    {kMenuLeftTree, 0, nullptr},
    {kMenuRightBrief, 0, RunStyle<1, kStyleBrief>},
    {kMenuRightFull, 0, RunStyle<1, kStyleFull>},
    {kMenuRightWide, 0, RunStyle<1, kStyleWide>},
    {kMenuRightBriefWide, 0, RunStyle<1, kStyleBriefWide>},
    {kMenuRightUnix, 0, RunStyle<1, kStyleUnix>},
    {kMenuRightTree, 0, nullptr},
    {kMenuLeftInfo, 0, RunInfo<0>},
    {kMenuRightInfo, 0, RunInfo<1>},
    {kMenuLeftFilter, 0, RunFilterOf<0>},
    {kMenuRightFilter, 0, RunFilterOf<1>},
    {kMenuLeftReRead, 0, RunReReadSide<0>},
    {kMenuRightReRead, 0, RunReReadSide<1>},
    {kMenuFileDate, kNoArchive, nullptr},
    {kMenuEditAssociations, 0, nullptr},
    {kMenuEditUserMenu, 0, nullptr},
    {kMenuConfiguration, 0, RunConfiguration},
    {kMenuColours, 0, RunColours},
    {kMenuConfirmations, 0, RunConfirmations},
    {kMenuHidden, 0, ToggleHidden},
    {kMenuPathPrompt, 0, TogglePathPrompt},
    {kMenuFullScreen, 0, ToggleFullScreen},
    {kMenuClock, 0, ToggleClock},
    {kMenuTagDirs, 0, ToggleTagDirs},
    {kMenuThousandSep, 0, ToggleThousandSep},
    {kMenuRetainCount, 0, ToggleRetainCount},
};

}  // namespace

const CommandRow* CommandTable() { return kCommands; }
int CommandCount() { return static_cast<int>(std::size(kCommands)); }

const CommandRow* FindCommand(Key key) {
  for (const CommandRow& row : kCommands)
    if (row.key == key) return &row;
  return nullptr;
}
