// The keys of the viewer that move and change what is shown.
#include <gtest/gtest.h>

#include "config/values/options.h"
#include "console/console.h"
#include "session/viewer_screen.h"

namespace {

constexpr char kWrapped[] = "ViewerWrap=on\n", kUnwrapped[] = "ViewerWrap=off\n";

// 200 characters in each of two lines.
std::string TwoLongLines() {
  std::string line;
  for (int i = 0; i < 200; ++i) line += static_cast<char>('a' + i % 26);
  return line + "\n" + line + "\nend\n";
}

}  // namespace

// ---- opening and leaving

TEST(ViewerKeys, F3ShowsTheFileUnderTheCursor) {
  ViewerSession s(ManyLines(100));
  EXPECT_TRUE(s.Row(0).StartsWith("View: " + s.Path("left/file")));
  EXPECT_EQ(s.Top(), "Line 1");
  EXPECT_EQ(s.Bottom(), "Line 23");
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2UnWrap 3       4Hex    5       6       7Search 8Home"));
  EXPECT_TRUE(s.Row(kBarRow).EndsWith("9End    10Quit  "));
  EXPECT_EQ(Console->CursorSize(), 0);
}

TEST(ViewerKeys, EscF3AndF10BringThePanelsBack) {
  Session s({{"left/file", ManyLines(100)}});
  s.Keys("Down");
  const std::string before = s.Screen();
  for (const char* key : {"Esc", "F3", "F10"}) {
    s.Keys(std::string("F3 PgDn ") + key);
    EXPECT_EQ(s.Screen(), before) << key;
    EXPECT_EQ(s.Under(kLeftSide), "file");
  }
}

// ---- rows and pages

TEST(ViewerKeys, UpAndDownGoByARow) {
  ViewerSession s(ManyLines(100));
  s.Keys("Down Down Down");
  EXPECT_EQ(s.Top(), "Line 4");
  EXPECT_EQ(s.Bottom(), "Line 26");
  s.Keys("Up");
  EXPECT_EQ(s.Top(), "Line 3");
  s.Keys("Up Up Up Up");
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(ViewerKeys, DownStopsWhereTheLastLineIsInTheLastRow) {
  ViewerSession s(ManyLines(25));
  s.Keys("Down Down");
  EXPECT_EQ(s.Bottom(), "Line 25");
  s.Keys("Down Down");
  EXPECT_EQ(s.Bottom(), "Line 25");
}

TEST(ViewerKeys, APageKeepsOneRow) {
  for (const char* key : {"PgDn", "Space"}) {
    ViewerSession s(ManyLines(100));
    s.Keys(key);
    EXPECT_EQ(s.Top(), "Line 23") << key;
    s.Keys("PgUp");
    EXPECT_EQ(s.Top(), "Line 1") << key;
  }
}

TEST(ViewerKeys, TheEndsOfTheFileHaveThreeKeysEach) {
  ViewerSession s(ManyLines(1000));
  for (const char* end : {"F9", "End", "Ctrl-PgDn"}) {
    for (const char* home : {"F8", "Home", "Ctrl-PgUp"}) {
      s.Keys(end);
      EXPECT_EQ(s.Bottom(), "Line 1000") << end;
      s.Keys(home);
      EXPECT_EQ(s.Top(), "Line 1") << home;
    }
  }
}

TEST(ViewerKeys, AnEmptyFileIsBlankAndNothingMovesIt) {
  ViewerSession s("");
  for (const char* key : {"Up", "Down",      "PgUp",      "PgDn",   "Space", "Home",      "End",        "F8",
                          "F9", "Ctrl-PgUp", "Ctrl-PgDn", "Left",   "Right", "Ctrl-Left", "Ctrl-Right", "F2",
                          "F4", "F4",        "F2",        "Ctrl-L", "Alt-4", "Alt-H"}) {
    s.Keys(key);
    EXPECT_EQ(s.Position(), "100.00%") << key;
    EXPECT_EQ(s.Page(), std::string(kTextRows, '\n')) << key;
  }
}

TEST(ViewerKeys, HomeOfAFileWithAMarkIsBehindTheMark) {
  ViewerSession s("\xEF\xBB\xBF" + ManyLines(100));
  EXPECT_EQ(s.Top(), "Line 1");
  s.Keys("End Home Up PgUp");
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(ViewerKeys, PgDnAtTheEndFindsWhatHasComeSince) {
  ViewerSession s(ManyLines(30));
  s.Keys("End");
  s.Write("left/file", ManyLines(60));
  EXPECT_EQ(s.Bottom(), "Line 30");
  s.Keys("PgDn");
  EXPECT_EQ(s.Top(), "Line 30");
  EXPECT_EQ(s.Bottom(), "Line 52");
  s.Keys("End");
  EXPECT_EQ(s.Bottom(), "Line 60");
}

TEST(ViewerKeys, AFileThatShrinksShowsItsEndWhereTheDataEnds) {
  ViewerSession s(ManyLines(100000));
  s.Write("left/file", ManyLines(3));
  s.Keys("End PgUp PgUp Home");
  EXPECT_TRUE(s.IsShown());
  s.Keys("Esc F3");
  EXPECT_EQ(s.Top(), "Line 1");
  EXPECT_EQ(s.Line(4), "");
}

// ---- to the side

TEST(ViewerKeys, SideKeysMoveUnwrappedTextByFour) {
  ViewerSession s(TwoLongLines(), {.settings = kUnwrapped});
  for (const char* right : {"Right", "Ctrl-6", "Ctrl-Pad6", "Ctrl-Shift-6", "Ctrl-Shift-Pad6"}) {
    s.Keys(right);
    EXPECT_TRUE(s.Row(1).StartsWith("efghij")) << right;
    s.Keys(right);
    EXPECT_TRUE(s.Row(1).StartsWith("ijklmn")) << right;
    s.Keys("Home");
    EXPECT_TRUE(s.Row(1).StartsWith("abcdef")) << right;
  }
  for (const char* left : {"Left", "Ctrl-4", "Ctrl-Pad4", "Ctrl-Shift-4", "Ctrl-Shift-Pad4"}) {
    s.Keys("Right Right");
    s.Keys(left);
    EXPECT_TRUE(s.Row(1).StartsWith("efghij")) << left;
    s.Keys(left);
    s.Keys(left);
    EXPECT_TRUE(s.Row(1).StartsWith("abcdef")) << left;
  }
}

TEST(ViewerKeys, WithControlTheyMoveByForty) {
  ViewerSession s(TwoLongLines(), {.settings = kUnwrapped});
  s.Keys("Ctrl-Right");
  EXPECT_TRUE(s.Row(1).StartsWith("opqrst"));  // 40 = 26 + 14
  s.Keys("Right Ctrl-Left");
  EXPECT_TRUE(s.Row(1).StartsWith("efghij"));
  s.Keys("Ctrl-Left");
  EXPECT_TRUE(s.Row(1).StartsWith("abcdef"));
}

TEST(ViewerKeys, WrappedTextDoesNotMoveAside) {
  ViewerSession s(TwoLongLines(), {.settings = kWrapped});
  const std::string before = s.Screen();
  s.Keys("Right Ctrl-Right Ctrl-6 Left Ctrl-Left");
  EXPECT_EQ(s.Screen(), before);
}

// ---- modes

TEST(ViewerKeys, F2WrapsAndUnwraps) {
  ViewerSession s(TwoLongLines(), {.settings = kWrapped});
  EXPECT_TRUE(s.Row(2).StartsWith("cdefgh"));  // 80 = 3 * 26 + 2
  s.Keys("F2");
  EXPECT_TRUE(s.Row(2).StartsWith("abcdef"));
  EXPECT_EQ(s.Character(79, 1), U'»');
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2Wrap   3"));
  EXPECT_FALSE(Options::ViewerWrap);
  s.Keys("Right F2");
  EXPECT_TRUE(s.Row(1).StartsWith("abcdef"));
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2UnWrap 3"));
  EXPECT_TRUE(Options::ViewerWrap);
}

TEST(ViewerKeys, F2BeginsWithTheLineOnTop) {
  ViewerSession s(TwoLongLines() + ManyLines(50), {.settings = kWrapped});
  s.Keys("Down F2");
  EXPECT_TRUE(s.Row(1).StartsWith("abcdef"));
  EXPECT_TRUE(s.Row(2).StartsWith("abcdef"));
  s.Keys("Down F2");
  EXPECT_TRUE(s.Row(1).StartsWith("abcdef"));
  EXPECT_EQ(s.Line(4), "end");
}

TEST(ViewerKeys, F4ShowsBytes) {
  ViewerSession s("0123456789abcdef0\n\xE9");
  s.Keys("F4");
  EXPECT_EQ(s.Line(1), "00000000 30 31 32 33 │ 34 35 36 37 │ 38 39 61 62 │ 63 64 65 66  0123456789abcdef");
  EXPECT_TRUE(s.Row(2).StartsWith("00000010 30 0A E9 "));
  EXPECT_TRUE(s.Row(kBarRow).Contains("4ASCII "));
  s.Keys("F4");
  EXPECT_EQ(s.Line(1), "0123456789abcdef0");
  EXPECT_TRUE(s.Row(kBarRow).Contains("4Hex "));
}

TEST(ViewerKeys, F2DoesNothingInHexMode) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Right");
  const std::string before = s.Screen();
  const bool wrap = Options::ViewerWrap;
  s.Keys("F2");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(Options::ViewerWrap, wrap);
}

TEST(ViewerKeys, SideKeysMoveBytesByOneAndForty) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Right Right");
  EXPECT_TRUE(s.Row(1).StartsWith("00000002 6E 65"));
  s.Keys("Ctrl-Right");
  EXPECT_TRUE(s.Row(1).StartsWith("0000002A "));
  s.Keys("Left Ctrl-Left");
  EXPECT_TRUE(s.Row(1).StartsWith("00000001 "));
  s.Keys("Left Left Left Ctrl-Left");
  EXPECT_TRUE(s.Row(1).StartsWith("00000000 "));
}

TEST(ViewerKeys, BytesMoveNoFartherThanTheEndOfTheFile) {
  ViewerSession s("0123456789");
  s.Keys("F4 Ctrl-Right Right Left");
  EXPECT_TRUE(s.Row(1).StartsWith("00000009 39 "));
}

TEST(ViewerKeys, RowsOfBytesThatAreOutOfStepGoUpToTheBeginning) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Right Up");
  EXPECT_TRUE(s.Row(1).StartsWith("00000000 "));
  EXPECT_TRUE(s.Row(2).StartsWith("00000010 "));
}

TEST(ViewerKeys, LeavingHexModeGoesToTheStartOfTheLine) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Down Down F4");  // offset 32 is inside of line 5
  EXPECT_EQ(s.Top(), "Line 5");
}

TEST(ViewerKeys, LeavingHexModeAtALineStartStaysThere) {
  ViewerSession s("0123456789abcde\nnext\n" + ManyLines(100));
  s.Keys("F4 Down F4");
  EXPECT_EQ(s.Top(), "next");
}

// Of a line end of two bytes the last one is a zero.
TEST(ViewerKeys, LeavingHexModeLooksAtOneByteBeforeTheTop) {
  std::string text = "\xFF\xFE";
  for (const char letter : ManyLines(100)) text += {letter, '\0'};
  ViewerSession s(text);
  s.Keys("Down Down F4 F4");
  EXPECT_EQ(s.Top(), "Line 2");
}

TEST(ViewerKeys, HexModeShowsAMark) {
  ViewerSession s("\xEF\xBB\xBFtext");
  s.Keys("F4 Home");
  EXPECT_TRUE(s.Row(1).StartsWith("00000000 EF BB BF 74"));
  s.Keys("F4");
  EXPECT_EQ(s.Top(), "text");
}

TEST(ViewerKeys, AltWithADigitIsTheWidthOfTabs) {
  ViewerSession s("a\tb\tc\n", {.settings = kWrapped});
  EXPECT_EQ(s.Top(), "a       b       c");
  for (int width = 1; width <= 8; ++width) {
    s.Keys("Alt-" + std::to_string(width));
    EXPECT_EQ(Options::TabWidth, width);
    EXPECT_EQ(s.Character(width == 1 ? 2 : width, 1), U'b');
    EXPECT_EQ(s.Character(width == 1 ? 4 : 2 * width, 1), U'c');
  }
  s.Keys("Alt-9 Alt-0");
  EXPECT_EQ(Options::TabWidth, 8);
}

TEST(ViewerKeys, ANarrowerTabAboveTheTopRowLosesNothing) {
  ViewerSession s(std::string(100, '\t') + "x\n" + ManyLines(40), {.settings = kWrapped});
  s.Keys("Down Down Down Down Down Alt-1");
  EXPECT_TRUE(s.IsShown());
  s.Keys("Home Down Down");
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(ViewerKeys, CtrlLRepaints) {
  ViewerSession s(ManyLines(100));
  const std::string before = s.Screen();
  Console->PutString(10, 5, L"spoilt", 0x4F);
  ASSERT_NE(s.Screen(), before);
  s.Keys("Ctrl-L");
  EXPECT_EQ(s.Screen(), before);
}

TEST(ViewerKeys, F1IsHelp) {
  ViewerSession s(ManyLines(100));
  const std::string before = s.Screen();
  s.Keys("F1");
  EXPECT_TRUE(s.FindRow(" Esc to Exit "));
  s.Keys("Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(ViewerKeys, OtherKeysDoNothing) {
  ViewerSession s(ManyLines(100));
  s.Keys("Down");
  const std::string before = s.Screen();
  for (const char* key : {"x",       "0",     "Enter",   "Tab",    "Ins",      "Del",       "Backspace",
                          "F5",      "F6",    "Ctrl-F3", "Alt-F3", "Shift-F3", "Ctrl-Home", "Ctrl-End",
                          "Ctrl-Up", "Alt-9", "Grey+",   "Ctrl-O", "Shift-F4", "Alt-T"}) {
    s.Keys(key);
    EXPECT_EQ(s.Screen(), before) << key;
  }
}

// ---- colours

namespace {

// Every "word" is red.
SessionSetup WithSyntax() {
  return {.prepare = [](const Sandbox& files) {
    const_cast<Sandbox&>(files).Write("home/.orvane/orvanesyntax.ini", "[All:*]\nwords:red:word\n");
  }};
}

}  // namespace

TEST(ViewerKeys, AltHTurnsTheColoursOffAndOn) {
  ViewerSession s("a word\n", WithSyntax());
  const uint8_t plain = s.Attribute(0, 1), coloured = s.Attribute(2, 1);
  EXPECT_NE(plain, coloured);
  s.Keys("Alt-H");
  EXPECT_EQ(s.Attribute(2, 1), plain);
  s.Keys("Alt-H");
  EXPECT_EQ(s.Attribute(2, 1), coloured);
}

TEST(ViewerKeys, AltHReadsTheDefinitionOnceMoreAndAddsIt) {
  ViewerSession s("a word\n", WithSyntax());
  const uint8_t plain = s.Attribute(0, 1), coloured = s.Attribute(2, 1);
  ASSERT_NE(plain, coloured);
  s.Write("home/.orvane/orvanesyntax.ini", "[All:*]\nwords:red:a\n");
  s.Keys("Alt-H Alt-H");
  EXPECT_EQ(s.Attribute(0, 1), coloured);
  EXPECT_EQ(s.Attribute(2, 1), coloured);
  EXPECT_EQ(s.Attribute(1, 1), plain);
  s.Keys("Esc F3");  // nothing is left of what was added to
  EXPECT_EQ(s.Attribute(0, 1), coloured);
  EXPECT_EQ(s.Attribute(2, 1), plain);
}
