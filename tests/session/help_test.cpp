// The help window, alone and from the main screen.
#include "dialogs/help.h"

#include <fstream>
#include <string>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "session/main_screen.h"
#include "support/console_fixture.h"

namespace {

// The window is 74 by 20 cells at (3, 2); its text has 17 rows from row 4 on.
constexpr int kFirstRow = 4, kRowCount = 17;
constexpr int kRightEdge = 76;

void PutRecord(std::ostream& out, int number, const std::string& body) {
  const auto word = [&](size_t value) {
    out.put(static_cast<char>(value & 0xFF)).put(static_cast<char>(value >> 8));
  };
  word(static_cast<size_t>(number));
  word(body.size() + 4);
  out << body;
}

// Page 1 has 50 lines, "line 0" to "line 49"; page 2 just fills the window.
class HelpTest : public ConsoleFixture {
 protected:
  HelpTest() {
    std::ofstream out("help.ovd", std::ios::binary);
    PutRecord(out, 0, Lines("on help ", 1));
    PutRecord(out, 1, Lines("line ", 50));
    PutRecord(out, 2, Lines("row ", kRowCount));
    PutRecord(out, 3, std::string(100, 'x') + '\0');
    PutRecord(out, 30000, std::string("no such page\0", 13));
    out.close();
    EXPECT_TRUE(LoadHelp(L"help.ovd"));
    Options::ScrollDelay = 0;
  }
  ~HelpTest() override { LoadHelp(Westring()); }

  static std::string Lines(const std::string& text, int count) {
    std::string lines;
    for (int i = 0; i < count; ++i) lines += text + std::to_string(i) + '\0';
    return lines;
  }

  std::string Top() const { return Text(4, kFirstRow, 20).Trimmed(); }

  void ExpectTop(const std::string& text) {
    Then([this, text] { EXPECT_EQ(Top(), text); });
  }

  void ShowUntilEscape(int page) {
    Keys("Esc");
    ShowHelp(page);
  }
};

TEST_F(HelpTest, TheFrameCarriesItsTitles) {
  Then([&] {
    EXPECT_EQ(Text(2, 2, 14), " \u2554\u2550\u2550 Help \u2550\u2550\u2550\u2550");
    EXPECT_EQ(Text(75, 2, 3), "\u2550\u2557 ");
    EXPECT_EQ(Text(30, 3, 19), "  Orvane 2.40-dev  ");
    EXPECT_EQ(Text(58, 21, 19), "\u2550\u2550\u2550 Esc to Exit \u2550\u2550\u255D");
    EXPECT_EQ(Attribute(3, 2), Options::Colours[kColourMessages]);
    EXPECT_EQ(Attribute(7, 2), Options::Colours[kColourMessages]);
    EXPECT_EQ(Attribute(4, kFirstRow), Options::Colours[kColourMessages]);
  });
  ShowUntilEscape(2);
}

TEST_F(HelpTest, EscapePutsBackTheScreenAndTheCursor) {
  Console->SetCursor(7, 9);
  Console->SetCursorSize(15);
  const auto before = Snapshot();
  Then([] { EXPECT_EQ(Console->CursorSize(), 0); });
  ShowUntilEscape(1);
  EXPECT_EQ(ChangesSince(before), "");
  int x = 0, y = 0;
  Console->GetCursor(x, y);
  EXPECT_EQ(x, 7);
  EXPECT_EQ(y, 9);
  EXPECT_EQ(Console->CursorSize(), 15);
}

TEST_F(HelpTest, TheKeysMoveByALineByAWindowAndToTheEnds) {
  ExpectTop("line 0");
  Keys("Up");
  ExpectTop("line 0");
  Keys("Down Down");
  ExpectTop("line 2");
  Keys("Up");
  ExpectTop("line 1");
  Keys("PgDn");
  ExpectTop("line 18");
  Keys("PgDn");
  ExpectTop("line 33");  // 50 lines less 17
  Keys("Down");
  ExpectTop("line 33");
  Keys("PgUp");
  ExpectTop("line 16");
  Keys("PgUp");
  ExpectTop("line 0");
  Keys("End");
  Then([&] {
    EXPECT_EQ(Top(), "line 33");
    EXPECT_EQ(Text(4, kFirstRow + kRowCount - 1, 8), "line 49 ");
  });
  Keys("Home");
  ExpectTop("line 0");
  ShowUntilEscape(1);
}

TEST_F(HelpTest, OtherKeysDoNothing) {
  Keys("Enter x Space Tab F10 Right");
  ExpectTop("line 0");
  ShowUntilEscape(1);
}

TEST_F(HelpTest, ArrowsOnTheRightEdgeTellWhereThereIsMore) {
  const auto expectEdge = [&](const std::string& top, const std::string& bottom) {
    Then([this, top, bottom] {
      EXPECT_EQ(Text(kRightEdge, 3, 1), top);
      EXPECT_EQ(Text(kRightEdge, 12, 1), "\u2551");
      EXPECT_EQ(Text(kRightEdge, 20, 1), bottom);
    });
  };
  expectEdge("\u2551", "\u25BC");
  Keys("Down");
  expectEdge("\u25B2", "\u25BC");
  Keys("End");
  expectEdge("\u25B2", "\u2551");
  Keys("Up");
  expectEdge("\u25B2", "\u25BC");
  Keys("Home");
  expectEdge("\u2551", "\u25BC");
  ShowUntilEscape(1);
}

TEST_F(HelpTest, APageThatJustFitsHasNoArrowsAndStays) {
  Keys("Down End PgDn");
  Then([&] {
    EXPECT_EQ(Top(), "row 0");
    EXPECT_EQ(Text(kRightEdge, 3, 1), "\u2551");
    EXPECT_EQ(Text(kRightEdge, 20, 1), "\u2551");
  });
  ShowUntilEscape(2);
}

TEST_F(HelpTest, ALineThatIsTooLongEndsAtTheFrame) {
  Then([&] { EXPECT_EQ(Text(75, kFirstRow, 3), "x\u2551 "); });
  ShowUntilEscape(3);
}

TEST_F(HelpTest, AMissingPageShowsTheLastOne) {
  ExpectTop("no such page");
  ShowUntilEscape(77);
}

TEST_F(HelpTest, F1ShowsHelpOnHelpAndEscapeLeadsBack) {
  Keys("Down F1");
  ExpectTop("on help 0");
  Keys("F1");  // goes no deeper
  ExpectTop("on help 0");
  Keys("Esc");
  ExpectTop("line 1");
  ShowUntilEscape(1);
}

TEST_F(HelpTest, WithoutAFileAMessageSaysSo) {
  EXPECT_FALSE(LoadHelp(L"absent.ovd"));
  Then([&] {
    EXPECT_TRUE(Row(7).Contains("Help not loaded"));
    EXPECT_EQ(Screen().find("Esc to Exit"), std::string::npos);
  });
  Keys("Enter");
  ShowHelp(kHelpMain);
}

// ---- the mouse: thirds of six rows, 2 to 7 and 16 to 21

TEST_F(HelpTest, AButtonHeldInTheLowerThirdScrollsUntilItIsReleased) {
  Mouse(kEventPress, 1, 40, 16);
  ExpectTop("line 1");
  Silence();
  ExpectTop("line 2");
  Silence();
  ExpectTop("line 3");
  Mouse(kEventRelease, 1, 40, 16);
  Silence();  // a second, as nothing limits the wait any more
  ExpectTop("line 3");
  ShowUntilEscape(1);
}

TEST_F(HelpTest, AButtonHeldInTheUpperThirdScrollsUp) {
  Keys("End");
  Mouse(kEventPress, 1, 40, 7);
  ExpectTop("line 32");
  Silence();
  ExpectTop("line 31");
  Mouse(kEventRelease, 1, 40, 7);
  ShowUntilEscape(1);
}

TEST_F(HelpTest, TheRightButtonGoesTwiceAsFast) {
  Mouse(kEventPress, 2, 40, 21);
  ExpectTop("line 2");
  Silence();
  ExpectTop("line 4");
  Mouse(kEventMotion, 2, 40, 2);
  Silence();
  ExpectTop("line 2");
  Mouse(kEventRelease, 2, 40, 2);
  ShowUntilEscape(1);
}

TEST_F(HelpTest, TheMiddleThirdScrollsNothing) {
  Keys("PgDn");
  for (int y : {8, 12, 15}) {
    Mouse(kEventPress, 1, 40, y);
    Mouse(kEventRelease, 1, 40, y);
    ExpectTop("line 17");
  }
  ShowUntilEscape(1);
}

TEST_F(HelpTest, AHeldButtonScrollsWhereItIsDraggedTo) {
  Keys("PgDn");
  Mouse(kEventPress, 1, 40, 12);
  Mouse(kEventMotion, 1, 40, 17);
  Silence();
  ExpectTop("line 18");
  Mouse(kEventMotion, 1, 40, 5);
  Silence();
  ExpectTop("line 17");
  Mouse(kEventMotion, 1, 40, 10);
  Mouse(kEventRelease, 1, 40, 10);
  ExpectTop("line 17");
  ShowUntilEscape(1);
}

TEST_F(HelpTest, BetweenTheStepsTheScrollDelayPasses) {
  Options::ScrollDelay = 600 * 1000;  // so that the test would never end by it
  Mouse(kEventPress, 1, 40, 20);
  ExpectTop("line 1");
  Mouse(kEventMotion, 1, 40, 21);
  ExpectTop("line 1");
  Mouse(kEventRelease, 1, 40, 21);
  ShowUntilEscape(1);
}

TEST_F(HelpTest, ScrollingStopsAtTheEndOfTheText) {
  Keys("End Up");
  Mouse(kEventPress, 1, 40, 20);
  ExpectTop("line 33");
  Silence();  // finds the end; from here on only input ends the wait
  Mouse(kEventRelease, 1, 40, 20);
  ShowUntilEscape(1);
}

TEST_F(HelpTest, AClickBesideTheFrameEnds) {
  Click(2, 12);
  ShowHelp(1);
  Mouse(kEventPress, 2, 40, 22);
  Mouse(kEventRelease, 2, 40, 1);
  ShowHelp(1);
}

TEST_F(HelpTest, AClickOnTheFrameAndHalfAClickBesideItDoNotEnd) {
  Click(3, 12);
  Click(76, 12);
  Mouse(kEventPress, 1, 2, 12);
  Mouse(kEventRelease, 1, 10, 12);
  Mouse(kEventPress, 1, 10, 12);
  Mouse(kEventRelease, 1, 2, 12);
  Mouse(kEventPress, 1, 40, 23);  // in the lower part, but beside the window
  ExpectTop("line 0");
  Mouse(kEventMotion, 1, 40, 20);
  Mouse(kEventRelease, 1, 40, 23);
  ExpectTop("line 0");
  ShowUntilEscape(1);
}

TEST_F(HelpTest, TheWheelScrollsThreeLines) {
  const auto turn = [&](int delta) {
    TEvent event;
    event.type = kEventWheel;
    event.code = delta;
    event.x = event.y = 12;
    Put(event);
  };
  turn(-1);
  ExpectTop("line 3");
  turn(1);
  ExpectTop("line 0");
  ShowUntilEscape(1);
}

}  // namespace

// ---- from the main screen

TEST(HelpOfTheProgram, F1ShowsTheMainPage) {
  Session s;
  const std::string before = s.Screen();
  s.Keys("F1");
  EXPECT_TRUE(s.Row(2).Contains(" Help "));
  EXPECT_EQ(s.Text(4, 5, 72).Trimmed(), "Orvane");
  EXPECT_TRUE(s.Row(7).Contains("Two panels"));
  s.Keys("F1");
  EXPECT_EQ(s.Text(4, 5, 72).Trimmed(), "Help on help");
  s.Keys("Esc Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(HelpOfTheProgram, TheWindowIsAsHighAsTheScreenAllows) {
  Session s({}, {.settings = "Lines=40\n"});
  s.Keys("F1");
  EXPECT_TRUE(s.Row(2).Contains(" Help "));
  EXPECT_TRUE(s.Row(36).Contains(" Esc to Exit "));
  s.Keys("End");
  EXPECT_EQ(s.Character(76, 35), U'\u2551');
}

TEST(HelpOfTheProgram, AWiderScreenHasItInTheMiddle) {
  Session s({}, {.settings = "Columns=132\n"});
  s.Keys("F1");
  EXPECT_EQ(s.Character(29, 2), U'\u2554');
  EXPECT_EQ(s.Character(102, 2), U'\u2557');
}
