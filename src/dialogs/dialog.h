// Dialog: a window with elements and a modal loop. A dialog is built on the
// stack of the function that shows it; its destructor restores the screen.
#pragma once

#include <cstdint>

#include "console/key_codes.h"
#include "dialogs/button_row.h"
#include "dialogs/win.h"
#include "foundation/collections.h"
#include "foundation/sync.h"

class Dialog;

enum DialogEventType : int32_t {
  kDialogKey = 1,
  kDialogLeftPress = 2,
  kDialogLeftDouble = 3,
  kDialogLeftRelease = 4,
  kDialogLeftDrag = 5,
  kDialogRightPress = 6,
  kDialogRightRelease = 7,
  kDialogWheel = 8,
  kDialogListLength = 10,
  kDialogListRepaint = 11,
  kDialogTimeOut = 12,
};

struct DialogEvent {
  int32_t type = 0;
  int32_t code = 0;  // key code, wheel delta, list length
  int32_t x = 0, y = 0;
  uint16_t modifiers = 0;
};

enum ElementType {
  kTypeStaticText = 0,
  kTypeStringField = 1,
  kTypeIntegerField = 5,
  kTypePushButton = 6,
  kTypeRadioButton = 7,
  kTypeCheckBox = 8,
  kTypeCheckBox3S = 9,
  kTypeListBox = 10,
  kTypeColourSelector = 11,
  kTypeExitKey = 12,
  kTypeProgressIndicator = 13,
};

class DialogElement {
 public:
  // Stores itself in the dialog, if there is room; Dialog::Add has to follow.
  // startGroup begins a new group of elements; arrows move within a group, Tab
  // between groups.
  DialogElement(Dialog& dialog, int index, int x, int y, bool startGroup);
  virtual ~DialogElement() = default;
  DialogElement(const DialogElement&) = delete;
  DialogElement& operator=(const DialogElement&) = delete;

  virtual int HandleEvent(const DialogEvent& event);  // non-zero: used
  virtual void Activate();                            // a hot key or exitCode: takes the focus
  virtual ElementType TypeId() const = 0;
  virtual void FocusChanged(bool hasFocus);
  virtual void Draw() = 0;
  virtual void Commit() {}

  bool HasFocus() const;

  Dialog& dialog;
  int32_t index;
  int32_t x, y;  // relative to the dialog's inside
  int32_t group;
  int32_t groupCurrent;  // on a group's first element: the member focused last
  bool focusable = true;
  Key exitCode = 0;
  bool tabToFirst;
};

enum DialogColour { kDialogText = 0, kDialogField = 1, kDialogFocused = 2 };

class Dialog : public Win {
 public:
  static constexpr int kMaxElements = 100;
  static constexpr int kNoTimeLimit = -1;

  Dialog(int left, int top, int right, int bottom, uint8_t attribute);
  ~Dialog() override;

  // Runs until an element or key gives a result; 0 on time-out.
  int Run(int timeoutMs = kNoTimeLimit);
  void SetFocus(int i);
  void SetDefaultButton(int i);
  void Accept();       // ends with the default result, or 13 without one
  void Redraw(int i);  // -1 for all
  void SetColour(DialogColour which, uint8_t value) { colours[which] = value; }
  uint8_t Colour(DialogColour which) const { return colours[which]; }
  void CommitAll();
  void SetHotLetters(const char* letters, int n);
  // From another thread: lets element i handle an event. Waits while the dialog
  // handles one itself, with all that opens on top of it meanwhile: a handler
  // must not wait for the sender.
  int SendEvent(int i, const DialogEvent& event);

  // Takes a new element, which is the dialog's from here, and returns its
  // index; a full dialog destroys it and gives -1. The functions below make
  // elements and return what this returns.
  int Add(DialogElement* element);
  // The bytes must live as long as the dialog. A negative x centres; an
  // attribute of 0 is the dialog's.
  int AddStaticText(int x, int y, const char* bytes, uint8_t attribute = 0);
  // The first button's code becomes the default result.
  int AddButton(int x, int y, bool startGroup, Key code, const char* label);
  // A row of buttons; a negative x centres it, a negative y counts from the
  // bottom of the inside. Returns the first button's index, -1 for no button.
  int AddButtons(int x, int y, bool startGroup, const ButtonRow* table);
  int AddOkCancel(int x, int y, bool startGroup);
  int AddExitKey(Key code);  // a key without a face that ends the dialog
  // *fraction, 0 to 1, is read at each Draw.
  int AddProgressIndicator(int x, int y, int width, const float* fraction);

  // Controls. Each writes to the caller's variable while the user works, so a
  // caller that wants Cancel to undo keeps a copy.
  int AddCheckBox(int x, int y, bool startGroup, bool* value, const char* label, bool labelRight);
  int AddCheckBox3S(int x, int y, bool startGroup, uint8_t* value, const char* label, bool labelRight);
  // The buttons of a group share one value.
  int AddRadioButton(int x, int y, bool startGroup, int32_t* value, int32_t myValue, const char* label);
  // Without a limit: a negative maxLength. history: HistoryKind, or kNoHistory.
  int AddStringField(int x, int y, bool startGroup, Westring* text, int width, int maxLength, int history);
  // keepTyped leaves leading zeros as they were typed.
  int AddIntegerField(int x, int y, bool startGroup, int32_t* value, int width, bool keepTyped, int history);
  // Lists: the items are the caller's. *selection is the index of the row with
  // the cursor. exitMode: ListExit, or the code with which Enter ends the dialog.
  int AddListBoxString(int x, int y, bool startGroup, int width, int height, const char* const* strings,
                       int n, int32_t* selection, int exitMode);
  int AddListBoxEstring(int x, int y, bool startGroup, int width, int height, TObjectStore<Estring>* store,
                        int32_t* selection, int exitMode);
  int AddListBoxWestring(int x, int y, bool startGroup, int width, int height, WestringStore* store,
                         int32_t* selection, int exitMode);
  // attributes: one for each of the n strings, changed by the keys f, F, b, B.
  int AddColourSelector(int x, int y, bool startGroup, int width, int height, const char* const* strings,
                        uint8_t* attributes, int n, int32_t* selection, int exitMode);

  int Count() const { return count; }
  int Focus() const { return focus; }
  int Result() const { return result; }
  void SetResult(int code) { result = code; }
  int DefaultResult() const { return defaultResult; }
  DialogElement* Element(int i) const { return i >= 0 && i < kMaxElements ? elements[i] : nullptr; }
  char HotLetter(int i) const { return i >= 0 && i < hotLetterCount ? hotLetters[i] : 0; }
  // Takes the first "_" out of a label and makes the letter behind it the hot
  // letter of element i.
  void TakeHotLetter(int i, Estring& label);

 protected:
  virtual bool CanChangeFocus(int from, int& to);
  virtual void FocusChanged() {}

 private:
  friend class DialogElement;

  bool IsElement(int i) const { return i >= 0 && i < count; }
  DialogElement& GroupHead(int i) const { return *elements[elements[i]->group]; }
  void SettleFocus();
  void Move(int step);       // within the group
  void MoveGroup(int step);  // to another group
  void Handle(const DialogEvent& event);
  void HandleKey(const DialogEvent& event);
  void HandleMouse(const DialogEvent& event, bool wasPressedOutside);
  bool HandleLoopKey(Key key);

  int32_t defaultResult = 0;
  int32_t result = 0;
  DialogElement* elements[kMaxElements] = {};
  int32_t count = 0, focus = 0;
  uint8_t colours[3];
  char hotLetters[kMaxElements] = {};
  int32_t hotLetterCount = 0;
  Mutex lock;
  int32_t currentGroup = 0;     // of the element added last
  bool pressedOutside = false;  // and nothing has happened since
};

// The next event through ReadKey: modifier changes and right drags never come
// through; a limited wait without an event gives kDialogTimeOut.
void GetDialogEvent(DialogEvent& event, int timeoutMs);
