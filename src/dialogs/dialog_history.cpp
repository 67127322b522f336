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

void (*KeepDialogEntry)(const Westring& text, int kind) = nullptr;

void AddDialogHistory(const Westring& text, int kind, bool quiet) {
  if (kind < 0 || kind >= kHistoryKinds || text.IsEmpty()) return;
  WestringStore& history = DialogHistories[kind];
  // A field may be committed before the end of its dialog, and once more there.
  const Westring* newest = history.Peek(history.Count() - 1);
  if (newest && wcscmp(newest->Text(), text.Text()) == 0) return;
  AddToHistory(history, text);
  if (!quiet && KeepDialogEntry) KeepDialogEntry(text, kind);
}
