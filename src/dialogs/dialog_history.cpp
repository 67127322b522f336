// Lists of what the user entered in the fields of dialogs.
#include "dialogs/dialog_history.h"

#include <cwchar>

WestringStore DialogHistories[kHistoryKinds];

void AddToHistory(WestringStore& history, const Westring& text) {
  const Westring added = text;  // it may be one of those that go
  history.First();
  while (Westring* old = history.Current()) {
    if (wcscmp(old->Text(), added.Text()) == 0) {
      history.Remove();
    } else {
      history.Next();
    }
  }
  history.Add(added);
}

void AddDialogHistory(const Westring& text, int kind) {
  if (kind < 0 || kind >= kHistoryKinds || text.IsEmpty()) return;
  AddToHistory(DialogHistories[kind], text);
}
