// The plain elements of a dialog: a text, a button, a key without a face and a
// bar. Dialog's Add functions make them.
#pragma once

#include "dialogs/dialog.h"

class StaticText : public DialogElement {
 public:
  StaticText(Dialog& dialog, int index, int x, int y, const char* text, uint8_t attribute);

  ElementType TypeId() const override { return kTypeStaticText; }
  void Draw() override;

 private:
  const char* text;  // the caller's
  uint8_t attribute;
};

// Its exitCode is its code, so that the key presses it wherever the focus is.
class PushButton : public DialogElement {
 public:
  PushButton(Dialog& dialog, int index, int x, int y, bool startGroup, Key code, const char* label);

  int HandleEvent(const DialogEvent& event) override;
  void Activate() override;
  ElementType TypeId() const override { return kTypePushButton; }
  void Draw() override;

 private:
  Estring Face() const { return "[ " + label + " ]"; }
  int HandleKey(Key key);

  Key code;
  Estring label;  // without the mark of the hot letter
};

class ExitKey : public DialogElement {
 public:
  ExitKey(Dialog& dialog, int index, Key code);

  void Activate() override;
  ElementType TypeId() const override { return kTypeExitKey; }
  void Draw() override {}

 private:
  Key code;
};

class ProgressIndicator : public DialogElement {
 public:
  ProgressIndicator(Dialog& dialog, int index, int x, int y, const float* fraction, int width);

  ElementType TypeId() const override { return kTypeProgressIndicator; }
  void Draw() override;

 private:
  const float* fraction;  // the caller's
  int32_t width;
};

// Cells of a bar of width cells that are full: 0 for no number, all from 1 on.
int FilledCells(float fraction, int width);
