// Scrolling lists: one for each source of items, and the list of colours.
#pragma once

#include <memory>

#include "dialogs/dialog.h"

enum ListExit {
  kListAnyKey = -1,  // a key that the list has no use for ends the dialog
  kListDefault = 0,  // Enter gives the dialog's default result
};

class ListBoxBase : public DialogElement {
 public:
  ListBoxBase(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height, int count,
              int32_t* selection, int exitMode);
  ~ListBoxBase() override;

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeListBox; }
  void FocusChanged(bool hasFocus) override;
  void Draw() override;

  // One row of the list; index may be past the last item.
  virtual void DrawItem(int row, int index, uint8_t attribute);
  virtual Westring GetItemText(int index) = 0;

  int Top() const { return top; }
  int Row() const { return row; }
  int Count() const { return count; }

 protected:
  friend void ListSearch(Dialog& dialog, int i, const Westring& text);

  int32_t width, height;  // cells
  int32_t count;
  int32_t top = 0, row = 0;            // first item shown, row of the cursor
  int32_t lastTop = -1, lastRow = -1;  // as last drawn; -1 to draw all
  int32_t* selection;                  // the caller's
  int32_t exitMode;
  std::unique_ptr<Win> searchBox;  // while search is not empty
  Westring search;
};

class ListBoxString : public ListBoxBase {
 public:
  ListBoxString(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                const char* const* strings, int n, int32_t* selection, int exitMode);

  void DrawItem(int row, int index, uint8_t attribute) override;
  Westring GetItemText(int index) override;

 protected:
  const char* const* strings;  // the caller's, in the console's code page
};

class ListBoxEstring : public ListBoxBase {
 public:
  ListBoxEstring(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                 TObjectStore<Estring>* store, int32_t* selection, int exitMode);

  void DrawItem(int row, int index, uint8_t attribute) override;
  Westring GetItemText(int index) override;

 private:
  TObjectStore<Estring>* store;  // the caller's
};

class ListBoxWestring : public ListBoxBase {
 public:
  ListBoxWestring(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                  WestringStore* store, int32_t* selection, int exitMode);

  Westring GetItemText(int index) override;

 private:
  WestringStore* store;  // the caller's
};

// Each item in its own attribute, which f, F, b and B change.
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

// Searches the list at element i as if text had been typed there. Nothing for
// an element of another kind.
void ListSearch(Dialog& dialog, int i, const Westring& text);
