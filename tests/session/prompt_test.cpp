// The message box on a real console.
#include "dialogs/prompt.h"

#include "config/values/colours.h"
#include "foundation/std_file.h"
#include "support/console_fixture.h"

namespace {

class PromptTest : public ConsoleFixture {
 protected:
  int Ask(int flags, const wchar_t* text = L"Really?", const wchar_t* detail = L"") {
    return Prompt(text, detail, flags);
  }

  // The answer to one key.
  int AnswerTo(const std::string& key, int flags) {
    Keys(key);
    return Ask(flags);
  }
};

TEST_F(PromptTest, TextDetailAndButtonsStandInTheMiddle) {
  const auto before = Snapshot();
  Then([&] {
    // 20 cells of buttons, 4 more; 5 rows, a third of the 20 others above it
    EXPECT_EQ(Text(28, 6, 24),
              "\u2554\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550"
              "\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2550\u2557");
    EXPECT_EQ(Text(28, 7, 24), "\u2551       Really?        \u2551");
    EXPECT_EQ(Text(28, 8, 24), "\u2551      /tmp/file       \u2551");
    EXPECT_EQ(Text(28, 9, 24), "\u2551  [ OK ]  [ Cancel ]  \u2551");
    EXPECT_EQ(Attribute(28, 6), Options::Colours[kColourErrors]);
    EXPECT_EQ(Attribute(40, 7), Options::Colours[kColourErrors]);
  });
  Keys("Esc");
  EXPECT_EQ(Ask(kPromptOkCancel, L"Really?", L"/tmp/file"), kEscape);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(PromptTest, AMessageIsInTheColourOfMessages) {
  Then([&] { EXPECT_EQ(Attribute(40, 7), Options::Colours[kColourMessages]); });
  Keys("Esc");
  Ask(kPromptOk | kPromptMessage);
}

TEST_F(PromptTest, EnterGivesTheFirstButton) {
  EXPECT_EQ(AnswerTo("Enter", kPromptOk), 'y');
  EXPECT_EQ(AnswerTo("Enter", kPromptOkCancel), 'y');
  EXPECT_EQ(AnswerTo("Enter", kPromptOkCancelSkipAllNone), 'y');
  EXPECT_EQ(AnswerTo("Enter", kPromptRetrySkipCancel), 'r');
  EXPECT_EQ(AnswerTo("Enter", kPromptAllOlder), 'y');
}

TEST_F(PromptTest, EscapeGivesTwentySeven) {
  for (int set = kPromptOk; set <= kPromptNoButtons; ++set) EXPECT_EQ(AnswerTo("Esc", set), kEscape) << set;
}

TEST_F(PromptTest, ALetterAnswersWithoutAltInEitherCase) {
  EXPECT_EQ(AnswerTo("s", kPromptOkCancelSkipAllNone), 's');
  EXPECT_EQ(AnswerTo("A", kPromptOkCancelSkipAllNone), 'a');
  EXPECT_EQ(AnswerTo("e", kPromptOkCancelSkipAllNone), 'e');
  EXPECT_EQ(AnswerTo("r", kPromptRetrySkipCancel), 'r');
  EXPECT_EQ(AnswerTo("s", kPromptRetrySkipCancel), 's');
  EXPECT_EQ(AnswerTo("d", kPromptAllOlder), 'd');
  EXPECT_EQ(AnswerTo("y", kPromptOk), 'y');
}

TEST_F(PromptTest, AltAndAHotLetterAnswer) {
  EXPECT_EQ(AnswerTo("Alt-o", kPromptOkCancel), 'y');
  EXPECT_EQ(AnswerTo("Alt-a", kPromptAllOlder), 'a');
  EXPECT_EQ(AnswerTo("Alt-r", kPromptRetrySkipCancel), 'r');
}

TEST_F(PromptTest, ALetterOfNoButtonIsIgnored) {
  Keys("d o");
  EXPECT_EQ(AnswerTo("s", kPromptOkCancelSkipAllNone), 's');
}

TEST_F(PromptTest, HotLettersAreHighlighted) {
  Then([&] {
    EXPECT_EQ(Text(13, 9, 54), "\u2551  [ OK ]  [ Cancel ]  [ Skip ]  [ All ]  [ None ]   \u2551");
    EXPECT_EQ(Attribute(18, 9), 0x3E);  // O, focused
    EXPECT_EQ(Attribute(26, 9), 0x4F);  // C has none
    EXPECT_EQ(Attribute(38, 9), 0x4E);  // S
    EXPECT_EQ(Attribute(48, 9), 0x4E);  // A
    EXPECT_EQ(Attribute(60, 9), 0x4E);  // e
  });
  Keys("Esc");
  Ask(kPromptOkCancelSkipAllNone);
}

TEST_F(PromptTest, WithoutButtonsItCanOnlyEndWithTwentySeven) {
  EXPECT_EQ(AnswerTo("Enter", kPromptNoButtons), kEscape);
  EXPECT_EQ(AnswerTo("Enter", 15), kEscape);
  Mouse(kEventRelease, 2, 40, 8);
  EXPECT_EQ(Ask(kPromptNoButtons), kEscape);
}

TEST_F(PromptTest, TwoHundredCharactersTakeThreeLines) {
  std::wstring text = std::wstring(65, L'a') + L" " + std::wstring(65, L'b') + L" " + std::wstring(68, L'c');
  ASSERT_EQ(text.size(), 200u);
  Then([&] {
    EXPECT_TRUE(Row(7).Contains(std::string(65, 'a')));
    EXPECT_TRUE(Row(8).Contains(std::string(65, 'b')));
    EXPECT_TRUE(Row(9).Contains(std::string(68, 'c')));
    EXPECT_TRUE(Row(11).Contains("[ OK ]"));
  });
  Keys("Esc");
  Ask(kPromptOk, text.c_str());
}

TEST_F(PromptTest, TenLinesAndALongDetailFit) {
  std::wstring text, detail = L"/home";
  for (int i = 0; i < 30; ++i) text += std::wstring(60, L'a' + i % 26) + L" ";
  while (detail.size() < 1000) detail += L"/directory";
  Then([&] {
    EXPECT_TRUE(Row(4).Contains(std::string(60, 'a')));
    EXPECT_TRUE(Row(13).Contains(std::string(60, 'j')));
    EXPECT_TRUE(Row(14).Contains("/home/..."));
    EXPECT_TRUE(Row(15).Contains("[ OK ]"));
    EXPECT_EQ(Text(2, 3, 1), "\u2554");
    EXPECT_EQ(Text(77, 16, 1), "\u255D");
  });
  Keys("Esc");
  Ask(kPromptOk, text.c_str(), detail.c_str());
}

TEST_F(PromptTest, ALineFeedInANameIsOneCell) {
  Then([&] { EXPECT_TRUE(Row(8).Contains("a\u25D9b")); });
  Keys("Esc");
  Ask(kPromptOk, L"Really?", L"a\nb");
}

TEST_F(PromptTest, AFileIsClosedBeforeTheQuestion) {
  StdFile file;
  ASSERT_EQ(file.Open("asked.txt", kOpenWrite | kOpenCreate), 0);
  file.PutText("text");
  Then([&] { EXPECT_FALSE(file.IsOpen()); });
  Keys("Enter Enter");
  EXPECT_EQ(PromptForFile(&file, L"Really?", L"", kPromptOk), 'y');
  EXPECT_EQ(PromptForFile(nullptr, L"Really?", L"", kPromptOk), 'y');
}

}  // namespace
