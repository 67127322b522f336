// Check boxes of two and of three states, and radio buttons.
#pragma once

#include "dialogs/dialog.h"

class CheckBox : public DialogElement {
 public:
  CheckBox(Dialog& dialog, int index, int x, int y, bool startGroup, uint8_t* value, const char* label,
           bool labelRight);

  int HandleEvent(const DialogEvent& event) override;
  void Activate() override;
  ElementType TypeId() const override { return kTypeCheckBox; }
  void FocusChanged(bool hasFocus) override;
  void Draw() override;

 protected:
  virtual wchar_t Mark() const;
  virtual void Toggle();
  virtual void Turn(bool on);

  uint8_t* value;  // the caller's

 private:
  int LabelX() const;
  bool IsOnBox(int column) const;
  bool IsOnLabel(int column) const;
  void HandleKey(Key key);

  Estring label;  // without the mark of the hot letter
  bool labelRight;
};

// Goes round no, partly, yes.
class CheckBox3S : public CheckBox {
 public:
  using CheckBox::CheckBox;

  ElementType TypeId() const override { return kTypeCheckBox3S; }

 protected:
  wchar_t Mark() const override;
  void Toggle() override;
  void Turn(bool on) override;
};

// Selected by taking the focus, and in no other way.
class RadioButton : public DialogElement {
 public:
  RadioButton(Dialog& dialog, int index, int x, int y, bool startGroup, int32_t* value, int32_t myValue,
              const char* label);

  int HandleEvent(const DialogEvent& event) override;
  ElementType TypeId() const override { return kTypeRadioButton; }
  void FocusChanged(bool hasFocus) override;
  void Draw() override;

 private:
  int32_t* value;  // the group's
  int32_t myValue;
  Estring label;  // without the mark of the hot letter
};
