// Dialogs as large and as deep as they get.
#include <array>

#include "config/values/options.h"
#include "dialogs/dialog_history.h"
#include "dialogs/list_box.h"
#include "support/dialog_probe.h"

namespace {

// A hundred elements in five columns of twenty: fields, check boxes, radio
// buttons in groups of four, lists of two items, and buttons.
class LargeDialogTest : public ConsoleFixture {
 protected:
  static constexpr int kRowsOfElements = 20;
  static constexpr int kFields = 0, kChecks = 20, kRadios = 40, kLists = 60, kButtons = 80;
  static constexpr int kRadioGroup = 4;
  static constexpr uint8_t kColour = 0x70;

  LargeDialogTest() : before(Snapshot()), dialog(std::make_unique<Dialog>(0, 0, 79, 24, kColour)) {
    for (int i = 0; i < kRowsOfElements; ++i)
      dialog->AddStringField(1, i, true, &texts[i], 10, -1, kNoHistory);
    for (int i = 0; i < kRowsOfElements; ++i) AddCheckBox(i);
    for (int i = 0; i < kRowsOfElements; ++i) AddRadioButton(i);
    for (int i = 0; i < kRowsOfElements; ++i) AddList(i);
    for (int i = 0; i < kRowsOfElements; ++i) AddButton(i);
  }

  // Hot letters "a" to "t".
  void AddCheckBox(int i) {
    const char label[] = {'_', static_cast<char>('a' + i), 0};
    dialog->AddCheckBox(15, i, i == 0, &checks[i], label, true);
  }

  void AddRadioButton(int i) {
    dialog->AddRadioButton(30, i, i % kRadioGroup == 0, &choices[i / kRadioGroup], i % kRadioGroup, "radio");
  }

  void AddList(int i) {
    static constexpr const char* kItems[] = {"first", "second"};
    dialog->AddListBoxString(45, i, true, 8, 1, kItems, 2, &selections[i], kListDefault);
  }

  // The first five have a digit as their hot letter; their codes are no keys.
  void AddButton(int i) {
    const char label[] = {'_', static_cast<char>(i < 5 ? '1' + i : 'x'), 0};
    dialog->AddButton(60, i, i == 0, kFirstCode + static_cast<Key>(i), label);
  }

  void ExpectFocus(int i) {
    Then([this, i] { EXPECT_EQ(dialog->Focus(), i); });
  }

  void Press(const char* key, int times) {
    for (int i = 0; i < times; ++i) Keys(key);
  }

  static constexpr Key kFirstCode = 0x900000;

  std::array<Westring, kRowsOfElements> texts;
  std::array<bool, kRowsOfElements> checks{};
  std::array<int32_t, kRowsOfElements / kRadioGroup> choices{};
  std::array<int32_t, kRowsOfElements> selections{};
  std::unique_ptr<Cell[]> before;
  std::unique_ptr<Dialog> dialog;
};

TEST_F(LargeDialogTest, AHundredElementsAreAllThere) {
  EXPECT_EQ(dialog->Count(), Dialog::kMaxElements);
  EXPECT_EQ(dialog->AddListBoxString(0, 0, true, 8, 1, nullptr, 0, &selections[0], kListDefault), -1);
  WestringStore wide;
  TObjectStore<Estring> narrow;
  EXPECT_EQ(dialog->AddListBoxWestring(0, 0, true, 8, 1, &wide, &selections[0], kListDefault), -1);
  EXPECT_EQ(dialog->AddListBoxEstring(0, 0, true, 8, 1, &narrow, &selections[0], kListDefault), -1);
  EXPECT_EQ(dialog->AddColourSelector(0, 0, true, 8, 1, nullptr, nullptr, 0, &selections[0], kListDefault),
            -1);
  EXPECT_EQ(dialog->Count(), Dialog::kMaxElements);
}

// 20 fields, one group of check boxes, 5 of radio buttons, 20 lists, one group
// of buttons.
TEST_F(LargeDialogTest, TabGoesThroughAllGroupsAndRound) {
  for (int i = 0; i < kRowsOfElements; ++i) {
    ExpectFocus(kFields + i);
    Keys("Tab");
  }
  ExpectFocus(kChecks);
  Keys("Tab");
  for (int i = 0; i < kRowsOfElements; i += kRadioGroup) {
    ExpectFocus(kRadios + i);
    Keys("Tab");
  }
  for (int i = 0; i < kRowsOfElements; ++i) {
    ExpectFocus(kLists + i);
    Keys("Tab");
  }
  ExpectFocus(kButtons);
  Keys("Tab");
  ExpectFocus(kFields);
  Keys("Shift-Tab");
  ExpectFocus(kButtons);
  Keys("Shift-Tab");
  ExpectFocus(kLists + 19);
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(LargeDialogTest, ArrowsStayInTheirGroup) {
  dialog->SetFocus(kChecks);
  Press("Down", 19);
  ExpectFocus(kChecks + 19);
  Keys("Down");
  ExpectFocus(kChecks);
  Keys("Up");
  ExpectFocus(kChecks + 19);
  Keys("Tab Down Down Down");
  ExpectFocus(kRadios + 3);
  Keys("Down");
  ExpectFocus(kRadios);
  Then([&] { dialog->SetFocus(kButtons); });
  Keys("Left");
  ExpectFocus(kButtons + 19);
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(LargeDialogTest, HotLettersReachTheirElementsFromEverywhere) {
  for (const int from : {kFields + 7, kChecks + 3, kRadios + 9, kLists + 11, kButtons + 2}) {
    checks = {};
    dialog->SetFocus(from);
    Keys("Alt-a");
    ExpectFocus(kChecks);
    Keys("Alt-t");
    ExpectFocus(kChecks + 19);
    Then([&] {
      EXPECT_TRUE(checks[0]);
      EXPECT_TRUE(checks[19]);
      EXPECT_FALSE(checks[10]);
    });
    Keys("Alt-5");
    EXPECT_EQ(dialog->Run(), static_cast<int>(kFirstCode) + 4);
  }
}

TEST_F(LargeDialogTest, EachKindOfElementWritesToItsVariable) {
  Keys("'one' Tab 'two' Shift-Tab");
  Then([&] { dialog->SetFocus(kRadios + 6); });
  Keys("F5");
  Then([&] { dialog->SetFocus(kLists + 3); });
  Keys("Down Tab 's' F5");
  Then([&] { dialog->CommitAll(); });
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
  EXPECT_EQ(texts[0], L"one");
  EXPECT_EQ(texts[1], L"two");
  EXPECT_EQ(choices[1], 2);
  EXPECT_EQ(selections[2], 0);
  EXPECT_EQ(selections[3], 1);
  EXPECT_EQ(selections[4], 1);
}

TEST_F(LargeDialogTest, ItsEndRestoresTheScreen) {
  Press("Tab", 50);
  Keys("Esc");
  dialog->Run();
  EXPECT_NE(ChangesSince(before), "");
  dialog.reset();
  EXPECT_EQ(ChangesSince(before), "");
}

// ---- dialogs on dialogs

class NestedDialogTest : public ConsoleFixture {
 protected:
  static constexpr int kDepth = 3;

  // A dialog with a list in which a search is shown, over the one before; F5
  // opens the next. What a closed one leaves behind is noted.
  int Open(int depth);

  std::vector<std::string> leftovers;
  int deepest = 0;
};

class OpenKey : public DialogElement {
 public:
  OpenKey(Dialog& dialog, std::function<void()> open)
      : DialogElement(dialog, dialog.Count(), 0, 0, true), open(std::move(open)) {
    exitCode = FKey(5);
    focusable = false;
  }
  void Activate() override { open(); }
  ElementType TypeId() const override { return kTypeExitKey; }
  void Draw() override {}

 private:
  std::function<void()> open;
};

int NestedDialogTest::Open(int depth) {
  static constexpr const char* kItems[] = {"one", "two", "three"};
  deepest = std::max(deepest, depth);
  const auto before = Snapshot();
  int result;
  {
    Dialog dialog(10 + 5 * depth, 3 + 2 * depth, 40 + 5 * depth, 12 + 2 * depth, 0x17);
    int32_t selection = 0;
    Westring text = L"text";
    dialog.AddListBoxString(1, 1, true, 10, 5, kItems, 3, &selection, kListDefault);
    dialog.AddStringField(1, 7, true, &text, 10, -1, kNoHistory);
    if (depth < kDepth) dialog.Add(new OpenKey(dialog, [this, depth] { Open(depth + 1); }));
    result = dialog.Run();
  }
  leftovers.push_back(ChangesSince(before));
  return result;
}

TEST_F(NestedDialogTest, DialogsThreeDeepEachRestoreTheScreenCellByCell) {
  for (const bool shadows : {true, false}) {
    Options::Shadows = shadows;
    leftovers.clear();
    Keys("t F5 o F5 'tw' Down End 'one' Esc Down 'x' Tab F5 Esc Esc Esc");
    EXPECT_EQ(Open(1), kEscape);
    EXPECT_EQ(deepest, kDepth);
    EXPECT_EQ(leftovers, (std::vector<std::string>{"", "", "", ""}));
  }
  Options::Shadows = true;
}

TEST_F(NestedDialogTest, AnEnterInTheInnermostEndsThatOneOnly) {
  Keys("F5 F5 Enter Enter Esc");
  EXPECT_EQ(Open(1), kEscape);
  EXPECT_EQ(leftovers, (std::vector<std::string>{"", "", ""}));
}

}  // namespace
