// Lists of what the user entered in the fields of dialogs.
#include "dialogs/dialog_history.h"

#include <cwchar>

WestringStore DialogHistories[kHistoryKinds];

void AddDialogHistory(const Westring& text, int kind) {
  if (kind < 0 || kind >= kHistoryKinds || text.IsEmpty()) return;
  WestringStore& history = DialogHistories[kind];
  history.First();
  while (Westring* old = history.Current()) {
    if (wcscmp(old->Text(), text.Text()) == 0)
      history.Remove();
    else
      history.Next();
  }
  history.Add(text);
}
