// Scrolling lists: one for each source of items, and the list of colours. A
// list does not own its items and does not copy them.
//
// A worker that finds items tells of them by Dialog::SendEvent with
// kDialogListLength or kDialogListRepaint. Such an event only notes numbers; the
// loop draws at its next pass. The items themselves the worker has to guard
// with a lock that their list takes in DrawItem and GetItemText, and must not
// hold while it sends.
#pragma once

#include <memory>

#include "dialogs/dialog.h"
#include "dialogs/list_view.h"

enum ListExit {
  kListAnyKey = -1,  // a key that the list has no use for ends the dialog
  kListDefault = 0,  // Enter gives the dialog's default result
};

class ListBoxBase : public DialogElement {
 public:
  // A selection past the end is put on the last item. exitMode: ListExit, or
  // the code with which Enter ends the dialog.
  ListBoxBase(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height, int count,
              int32_t* selection, int exitMode);
  ~ListBoxBase() override;

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeListBox; }
  void FocusChanged(bool hasFocus) override;
  void Draw() override;  // only the rows that changed

  // One row of the list, width cells; index may be past the last item. The text
  // of the item, unless a class paints it otherwise.
  virtual void DrawItem(int row, int index, uint8_t attribute);
  virtual Westring GetItemText(int index) = 0;

  int Top() const { return top; }
  int Row() const { return row; }
  int Count() const { return count; }

 protected:
  friend void ListSearch(Dialog& dialog, int i, const Westring& text);

  void Settle();     // takes over a selection or a count that changed from outside
  void EndSearch();  // forgets what was typed

  int32_t width, height;  // cells
  int32_t count;
  int32_t top = 0, row = 0;            // first item shown, row of the cursor
  int32_t lastTop = -1, lastRow = -1;  // as last drawn; -1 to draw all
  int32_t* selection;                  // the caller's
  int32_t exitMode;
  std::unique_ptr<Win> searchBox;  // while search is not empty
  Westring search;

 private:
  ListView View() const { return {count, height, top, row}; }
  void SetView(const ListView& view);
  void TakeSelection();  // tells the caller what the cursor is on, and draws
  void DrawRow(int shownRow);
  int SetCount(int newCount);
  int DrawAllNextTime();

  int HandleKey(Key key);
  bool MoveBy(Key key);
  bool LeaveBy(Key key);
  void Confirm();

  int HandleMouse(const DialogEvent& event);
  ListView PointAt(int shownRow);  // takes the focus; the cursor goes there
  int MouseOnRow(DialogEventType type, int shownRow);
  int ScrollFrom(DialogEventType type, int shownRow, bool (ListView::*scroll)());

  bool SearchBy(Key key);
  int FindItem(const Westring& text);  // from the current one around, -1 for none
  void ShowSearch();
};

class ListBoxString : public ListBoxBase {
 public:
  ListBoxString(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                const char* const* strings, int n, int32_t* selection, int exitMode);

  Westring GetItemText(int index) override;

 protected:
  const char* const* strings;  // the caller's, in the console's code page
};

class ListBoxEstring : public ListBoxBase {
 public:
  ListBoxEstring(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                 TObjectStore<Estring>* store, int32_t* selection, int exitMode);

  Westring GetItemText(int index) override;

 private:
  TObjectStore<Estring>* store;  // the caller's, in the console's code page
};

class ListBoxWestring : public ListBoxBase {
 public:
  ListBoxWestring(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                  WestringStore* store, int32_t* selection, int exitMode);

  Westring GetItemText(int index) override;

 private:
  WestringStore* store;  // the caller's
};

// Each item in its own attribute: f and F step the colour of its text, b and B
// that of its background. The current one stands between ">" and "<", one cell
// outside the list.
class ColourSelector : public ListBoxString {
 public:
  ColourSelector(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                 const char* const* strings, uint8_t* attributes, int n, int32_t* selection, int exitMode);

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeColourSelector; }
  void DrawItem(int row, int index, uint8_t attribute) override;

 private:
  uint8_t* attributes;  // the caller's
};

// Searches the list at element i as if the last character of text had been
// typed behind the others. Nothing for an element of another kind.
void ListSearch(Dialog& dialog, int i, const Westring& text);
