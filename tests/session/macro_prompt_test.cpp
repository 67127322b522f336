// The question of a command's macro, and what is told of a line that fails.
#include "shell/macro_prompt.h"

#include "config/values/colours.h"
#include "config/values/options.h"
#include "foundation/environment.h"
#include "panels/panel.h"
#include "shell/macros.h"
#include "support/console_fixture.h"

namespace {

class MacroPrompt : public ConsoleFixture {
 protected:
  MacroPrompt() {
    Panels = panels;
    Options::CmdChar = '!';
    Options::Colours[kColourMessages] = 0x70;
    Options::Colours[kColourErrors] = 0x4F;
    Options::Colours[kColourInputFields] = 0x30;
    CopyText(panels[0].lastPath, L"/of/listing");
    panels[0].entries[panels[0].count++] = NewEntry(L"file");
  }
  ~MacroPrompt() override {
    Variables.Load();
    Panels = nullptr;
  }

  std::string Ask(const wchar_t* title) {
    Westring answer;
    wasAccepted = AskForMacro(title, answer);
    return ToUtf8(answer).Text();
  }

  int Expand(const std::wstring& text, int mode = kMacroPlain) {
    line = text.c_str();
    return ExpandMacros(line, L"name", 0, mode);
  }

  TPanel panels[2];
  Westring line;
  bool wasAccepted = false;
};

}  // namespace

TEST_F(MacroPrompt, StandsAThirdDownWithItsTitleOnTheFrame) {
  const auto before = Snapshot();
  Then([&] {
    // 20 of the field, two on each side, and the frame.
    EXPECT_EQ(Text(27, 6, 26).String(), "╔════════ Name? ═════════╗");
    EXPECT_EQ(Text(27, 10, 26).String(), "╚════════════════════════╝");
    EXPECT_EQ(Attribute(28, 8), 0x70);
    EXPECT_EQ(Attribute(29, 8), 0x70);
    EXPECT_EQ(Attribute(30, 8), 0x30);
    EXPECT_EQ(Attribute(49, 8), 0x30);
    EXPECT_EQ(Attribute(50, 8), 0x70);
    EXPECT_EQ(Text(30, 8, 22).Trimmed(), "");  // no arrow: it has no history
  });
  Keys("'two words' Enter");
  EXPECT_EQ(Ask(L"Name?"), "two words");
  EXPECT_TRUE(wasAccepted);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(MacroPrompt, TheFieldIsAsWideAsALongTitle) {
  Then([&] {
    EXPECT_EQ(Text(22, 6, 36).String(), "╔═ A title of thirty characters!! ═╗");
    EXPECT_EQ(Attribute(24, 8), 0x70);
    EXPECT_EQ(Attribute(25, 8), 0x30);
    EXPECT_EQ(Attribute(54, 8), 0x30);
    EXPECT_EQ(Attribute(55, 8), 0x70);
  });
  Keys("Enter");
  Ask(L"A title of thirty characters!!");
}

TEST_F(MacroPrompt, ATitleIsCutToWhatTheScreenHolds) {
  Then([&] {
    EXPECT_EQ(Text(1, 6, 78).String(), "╔═ " + std::string(72, 't') + " ═╗");
    for (int x : {4, 75}) EXPECT_EQ(Attribute(x, 8), 0x30) << x;
    for (int x : {3, 76}) EXPECT_EQ(Attribute(x, 8), 0x70) << x;
  });
  Keys("Esc");
  Ask(std::wstring(200, L't').c_str());
  EXPECT_FALSE(wasAccepted);
}

TEST_F(MacroPrompt, TakesFiveHundredAndTwelveCharacters) {
  Keys("'" + std::string(520, 'a') + "' Enter");
  EXPECT_EQ(Ask(L"?"), std::string(512, 'a'));
}

TEST_F(MacroPrompt, AMacroAsksAndItsAnswerIsQuoted) {
  Then([&] { EXPECT_TRUE(Row(6).Contains(" What, then? ")); });
  Keys("'a b' Enter");
  EXPECT_EQ(Expand(L"echo !i\"What, then?\" !!"), kMacroDone);
  EXPECT_STREQ(line.Text(), L"echo a\\ b !");
}

TEST_F(MacroPrompt, WithoutATitleItIsAQuestionMark) {
  Then([&] { EXPECT_TRUE(Row(6).Contains("═ ? ═")); });
  Keys("x Enter");
  EXPECT_EQ(Expand(L"!i", kMacroTrial), kMacroDone);
  EXPECT_STREQ(line.Text(), L"x");
}

TEST_F(MacroPrompt, EscCancelsTheLineSilently) {
  const auto before = Snapshot();
  Keys("'abc' Esc");
  EXPECT_EQ(Expand(L"a !i !i"), kMacroCancelled);
  EXPECT_STREQ(line.Text(), L"a !i !i");
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(MacroPrompt, ALineThatGetsTooLongIsToldOnce) {
  const std::wstring text = L"!f" + std::wstring(kMaxExpanded - 3, L'a');
  Then([&] {
    EXPECT_TRUE(Screen().find("The command is too long") != std::string::npos);
    EXPECT_TRUE(Screen().find("aaaa") != std::string::npos);
  });
  Keys("Enter");
  EXPECT_EQ(Expand(text), kMacroTooLong);
  EXPECT_STREQ(line.Text(), text.c_str());
}

TEST_F(MacroPrompt, AListFileThatCannotBeMadeIsTold) {
  Variables.Set("TMP", "/no/such/directory");
  Then([&] {
    EXPECT_TRUE(Screen().find("No such file or directory") != std::string::npos);
    EXPECT_TRUE(Screen().find("/no/such/directory/Orvane#") != std::string::npos);
  });
  Keys("Enter");
  EXPECT_EQ(Expand(L"tar -T !@"), kMacroNoListFile);
}
