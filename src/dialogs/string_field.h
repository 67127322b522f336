// Fields of one line, for text and for numbers.
#pragma once

#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"

class StringField : public DialogElement {
 public:
  // A negative maxLength is 32767.
  StringField(Dialog& dialog, int index, int x, int y, bool startGroup, Westring* text, int width,
              int maxLength, int history);
  ~StringField() override;  // puts the text in its history, unless the dialog was cancelled

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeStringField; }
  void Draw() override;
  void Commit() override;

 protected:
  Westring* text;  // the caller's
  int32_t width, maxLength;
  int32_t cursor = 0, scrollLeft = 0;
  bool quoteNext = false;  // the next key is inserted as it is
  bool firstKey = true;    // the next character replaces the text
  int32_t selectionStart = 0, selectionEnd = 0;
  bool hasSelection = false;
  int32_t history;
};

class IntegerField : public StringField {
 public:
  // At most width digits, and no more than 18.
  IntegerField(Dialog& dialog, int index, int x, int y, bool startGroup, int32_t* value, int width,
               bool keepTyped, int history);

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeIntegerField; }
  void Draw() override;

 private:
  int32_t* value;  // the caller's
  bool keepTyped;
  Westring digits;
};
