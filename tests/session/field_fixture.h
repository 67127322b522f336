// A dialog of a test with one field in it, on a console of the test's own. What
// the fields share beyond a dialog is as at the program's start.
#pragma once

#include <string>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/string_field.h"
#include "dialogs/text_clipboard.h"
#include "support/dialog_probe.h"

class FieldTest : public DialogTest {
 protected:
  // The cells of the field on the screen.
  static constexpr int kX = 23, kY = 7, kWidth = 10;
  static constexpr int kArrow = kX + kWidth;

  FieldTest() {
    Options::BriefWordRight = true;
    Options::PMClip = false;
    Reset();
  }
  ~FieldTest() override {
    dialog.reset();  // its fields still look at our texts
    Options::BriefWordRight = Options::PMClip = true;
    Reset();
  }

  int AddField(const wchar_t* content, int maxLength = -1, int history = kNoHistory) {
    text = content;
    return dialog->AddStringField(2, 1, true, &text, kWidth, maxLength, history);
  }

  int AddNumber(int32_t start, int width = 4, bool keepTyped = false) {
    value = start;
    return dialog->AddIntegerField(2, 1, true, &value, width, keepTyped, kNoHistory);
  }

  // A dialog of the same place without the fields of the old one.
  void Renew() {
    dialog.reset();
    dialog = std::make_unique<Dialog>(-1, -3, 40, 10, kColour);
  }

  // Runs the dialog until the keys are used up, and cancels it.
  void Press(const std::string& keys) {
    Keys(keys + " Esc");
    EXPECT_EQ(dialog->Run(), kEscape);
  }

  // The same with a look at the screen before it ends.
  void PressAndSee(const std::string& keys, const std::function<void()>& look) {
    Keys(keys);
    Then(look);
    Press("");
  }

  std::string Text() const { return ToUtf8(text).Text(); }
  std::string Shown() const { return ConsoleFixture::Text(kX, kY, kWidth).String(); }

  // The column of the console's cursor within the field; -1 if it is hidden.
  static int CursorColumn() {
    int x, y;
    Console->GetCursor(x, y);
    EXPECT_EQ(y, kY);
    EXPECT_EQ(Console->CursorSize(), 15);
    return x - kX;
  }

  // The field's cells, "#" where one is selected.
  std::string Selected() const {
    const uint8_t colour = Options::Colours[kColourInputFields];
    std::string marks;
    for (int i = 0; i < kWidth; ++i) {
      const uint8_t attribute = Attribute(kX + i, kY);
      marks += attribute == SwapNibbles(colour) ? '#' : attribute == colour ? '.' : '?';
    }
    return marks;
  }

  Westring text;
  int32_t value = 0;

 private:
  static void Reset() {
    TextClipboard.Clear();
    for (WestringStore& history : DialogHistories) history.Clear();
  }
};
