// Fields of one line, for text and for numbers. What the user does changes the
// caller's variable at once; the text has to outlive the dialog, whose end puts
// it in its history.
#pragma once

#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"

class StringField : public DialogElement {
 public:
  static constexpr int kMaxText = 32767;

  // width in cells, the arrow of a history comes behind them. A negative
  // maxLength is kMaxText; a longer text can be shortened, not lengthened.
  // history: HistoryKind; any other number is no history.
  StringField(Dialog& dialog, int index, int x, int y, bool startGroup, Westring* text, int width,
              int maxLength, int history);
  ~StringField() override;  // puts the text in its history, unless the dialog was cancelled

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeStringField; }
  void Draw() override;
  void Commit() override;

 protected:
  bool Use(const DialogEvent& event);  // HandleEvent without its drawing
  void MoveFromEnd(int distance);      // puts the cursor so far in front of the end

  Westring* text;  // the caller's
  int32_t width, maxLength;
  int32_t cursor = 0, scrollLeft = 0;
  int32_t cursorOverhang = 0;                    // cells behind the field that the cursor may stand in
  bool quoteNext = false;                        // the next key is inserted as it is
  bool firstKey = true;                          // the next character replaces the text
  int32_t selectionStart = 0, selectionEnd = 0;  // in the order of selecting
  bool hasSelection = false;                     // it may still be empty
  int32_t history;

 private:
  struct Range {
    int from, to;  // to is behind the last
    bool IsEmpty() const { return from == to; }
  };

  bool HasHistory() const { return history >= 0 && history < kHistoryKinds; }
  Range Selection() const;
  void HoldWithinText();
  void ScrollToCursor();
  void DrawText();

  bool UseKey(Key key);
  bool UseMove(Key key);
  bool UseEdit(Key key);
  bool UseMouse(const DialogEvent& event);
  void OpenHistory();

  // Where the keys that move go.
  int Start() const { return 0; }
  int End() const { return Length(*text); }
  int CharacterLeft() const;
  int CharacterRight() const;
  int WordLeft() const;
  int WordRight() const;
  void MoveTo(int place, bool extendsSelection);

  // What the keys that edit do.
  void Replace(Range range, const Westring& with);  // the cursor ends behind it
  void DeleteOr(Range range);                       // the selection, else range
  void DeleteLeft() { DeleteOr({CharacterLeft(), cursor}); }
  void DeleteRight() { DeleteOr({cursor, CharacterRight()}); }
  void DeleteWordLeft() { Replace({WordLeft(), cursor}, L""); }
  void DeleteWordRight() { Replace({cursor, WordRight()}, L""); }
  void QuoteNext() { quoteNext = true; }
  void Copy();
  void Cut();
  void Paste();
  void ShowHistory();
  // In place of the whole text at the first key, else of the selection; nothing
  // if the text would become too long.
  void Insert(const Westring& inserted);
};

// The text of an IntegerField. A base ahead of the field, so that the text is
// there for all of the field's life.
struct FieldDigits {
  Westring digits;
};

class IntegerField : private FieldDigits, public StringField {
 public:
  // At most width digits, and no more than 18. Without keepTyped the field shows
  // the value, so that "007" becomes "7" at once; with it, what was typed.
  IntegerField(Dialog& dialog, int index, int x, int y, bool startGroup, int32_t* value, int width,
               bool keepTyped, int history);

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeIntegerField; }
  void Draw() override;

 private:
  int32_t* value;  // the caller's
  bool keepTyped;
};

// The number that a text begins with, 0 if it is none; held within 32 bits.
int32_t FieldValue(const Westring& digits);
