// The main screen's function-key bar: eight sets of labels, one for each state of
// the modifiers.
#include "shell/key_bar.h"

namespace {

// Indexed by Alt + 2 Ctrl + 4 Shift.
const char* const kLabels[8][kBarKeys] = {
    {"1Help", "2Menu", "3View", "4Edit", "5Copy", "6RenMov", "7Mkdir", "8Delete", "9PullDn", "10Quit"},
    {"1Left", "2Right", "3View..", "4Edit..", "5DStore", "6Object", "7Find", "8Histry", "9EGA Ln", "10Tree"},
    {"1Left", "2Right", "3Name", "4Exten", "5Time", "6Size", "7Unsort", "8Revers", "9", "10"},
    {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
    {"1Manual", "2MnMenu", "3View..", "4Edit..", "5Copy", "6Rename", "7MkArch", "8DelOne", "9SavSet",
     "10MenuRe"},
    {"1Brief", "2Full", "3Wide", "4BriefW", "5Unix", "6", "7FindRC", "8DirHst", "9ColChg", "10"},
    {"1", "2", "3", "4", "5SymLnk", "6", "7", "8", "9", "10"},
    {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
};

}  // namespace

const char* const* BarLabels(uint32_t modifiers) {
  const int index =
      (modifiers & kModAlt ? 1 : 0) + (modifiers & kModCtrl ? 2 : 0) + (modifiers & kModShift ? 4 : 0);
  return kLabels[index];
}

Key BarKey(const TMouseEvent& mouse, int columns) {
  const int index = BarIndex(mouse.x, columns);
  if (mouse.kind == kMouseRightPress || mouse.kind == kMouseRightRelease || mouse.modifiers & kModAlt)
    return AltFKey(index + 1);
  if (mouse.modifiers & kModShift) return ShiftFKey(index + 1);
  if (mouse.modifiers & kModCtrl) return CtrlFKey(index + 1);
  return FKey(index + 1);
}
