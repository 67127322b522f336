// The clipboard of fields: its keys, its lines and the desktop's.
#include "session/field_fixture.h"

namespace {

std::vector<std::string> Lines() {
  std::vector<std::string> lines;
  for (int i = 0; i < TextClipboard.Count(); ++i) lines.push_back(ToUtf8(*TextClipboard.Peek(i)).Text());
  return lines;
}

using Strings = std::vector<std::string>;

std::string DesktopText() {
  Westring text;
  Console->GetClipboardText(text);
  return ToUtf8(text).Text();
}

// ---- the keys

TEST_F(FieldTest, TheCopyKeysTakeTheSelectionAndLeaveIt) {
  for (const char* key : {"Ctrl-C", "Ctrl-Ins"}) {
    Renew();
    TextClipboard.Clear();
    AddField(L"one two");
    PressAndSee(std::string("End Ctrl-Shift-Left ") + key, [&] { EXPECT_EQ(Selected(), "....###..."); });
    EXPECT_EQ(Lines(), Strings{"two"}) << key;
    EXPECT_EQ(Text(), "one two");
  }
}

TEST_F(FieldTest, TheCutKeysTakeTheSelectionAway) {
  for (const char* key : {"Ctrl-X", "Shift-Del"}) {
    Renew();
    TextClipboard.Clear();
    AddField(L"one two");
    PressAndSee(std::string("Home Ctrl-Shift-Right ") + key, [&] { EXPECT_EQ(Selected(), ".........."); });
    EXPECT_EQ(Lines(), Strings{"one"}) << key;
    EXPECT_EQ(Text(), " two");
  }
}

TEST_F(FieldTest, WithoutASelectionNothingIsCopiedOrCut) {
  CopyToClipboard(L"old");
  AddField(L"one");
  Press("Home Ctrl-C Ctrl-X Shift-Right Shift-Left Ctrl-X Ctrl-Ins Shift-Del");
  EXPECT_EQ(Lines(), Strings{"old"});
  EXPECT_EQ(Text(), "one");
}

TEST_F(FieldTest, ThePasteKeysInsertAtTheCursorAndSelectNothing) {
  CopyToClipboard(L"new");
  for (const char* key : {"Ctrl-V", "Shift-Ins"}) {
    Renew();
    AddField(L"one");
    PressAndSee(std::string("Right ") + key, [&] {
      EXPECT_EQ(Selected(), "..........");
      EXPECT_EQ(CursorColumn(), 4);
    });
    EXPECT_EQ(Text(), "onewne") << key;
  }
}

TEST_F(FieldTest, APasteFirstReplacesTheText) {
  CopyToClipboard(L"new");
  AddField(L"one");
  Press("Ctrl-V x");
  EXPECT_EQ(Text(), "newx");
}

TEST_F(FieldTest, APasteReplacesTheSelection) {
  CopyToClipboard(L"three");
  AddField(L"one two", 9);
  Press("End Ctrl-Shift-Left Ctrl-V");
  EXPECT_EQ(Text(), "one three");
}

TEST_F(FieldTest, APasteThatWouldOverflowChangesNothing) {
  CopyToClipboard(L"12345");
  AddField(L"abc", 7);
  Press("End Ctrl-V");
  EXPECT_EQ(Text(), "abc");
  Renew();
  AddField(L"abc", 8);
  Press("End Ctrl-V");
  EXPECT_EQ(Text(), "abc12345");
}

TEST_F(FieldTest, AFirstPasteThatWouldOverflowChangesNothingEither) {
  CopyToClipboard(L"12345");
  AddField(L"abc", 4);
  Press("Ctrl-V");
  EXPECT_EQ(Text(), "abc");
}

TEST_F(FieldTest, AnEmptyClipboardReplacesNothing) {
  AddField(L"abc");
  Press("Ctrl-V");
  EXPECT_EQ(Text(), "abc");
}

// ---- the lines

TEST_F(FieldTest, LinesArePastedWithABlankBetweenThem) {
  CopyToClipboard(L"\n\none\n two\n\nthree\n\n");
  AddField(L"");
  Press("Ctrl-V");
  EXPECT_EQ(Text(), "one  two  three");
}

TEST_F(FieldTest, EmptyLinesAlonePasteNothing) {
  CopyToClipboard(L"\n\n\n");
  AddField(L"abc");
  Press("Ctrl-V");
  EXPECT_EQ(Text(), "abc");
}

TEST_F(FieldTest, ACarriageReturnBelongsToTheEndOfItsLine) {
  CopyToClipboard(L"one\r\ntwo\r\n");
  EXPECT_EQ(Lines(), (Strings{"one", "two", ""}));
}

TEST_F(FieldTest, OtherControlCharactersArePastedAsCtrlQWouldInsertThem) {
  CopyToClipboard(
      L"a\tb\x1B"
      L"c");
  AddField(L"");
  PressAndSee("Ctrl-V", [&] {
    EXPECT_EQ(Shown(),
              "a\u25CB"
              "b\u2190"
              "c     ");
  });
  EXPECT_EQ(text,
            L"a\tb\x1B"
            L"c");
}

// ---- the desktop's clipboard

TEST_F(FieldTest, ACopyIsPublishedIfSet) {
  Console->SetClipboardText(L"of another program");
  CopyToClipboard(L"alone");
  EXPECT_EQ(DesktopText(), "of another program");
  Options::PMClip = true;
  CopyToClipboard(L"one\r\ntwo\n");
  EXPECT_EQ(DesktopText(), "one\ntwo\n");
}

TEST_F(FieldTest, APasteTakesTheDesktopsTextIfSet) {
  Console->SetClipboardText(L"of another\nprogram");
  CopyToClipboard(L"our own");
  EXPECT_EQ(ToUtf8(PasteFromClipboard()), "our own");
  Options::PMClip = true;
  EXPECT_EQ(ToUtf8(PasteFromClipboard()), "of another program");
  EXPECT_EQ(Lines(), (Strings{"of another", "program"}));
}

TEST_F(FieldTest, ADesktopWithoutTextLeavesTheLines) {
  CopyToClipboard(L"our own");
  Console->SetClipboardText(L"");
  Options::PMClip = true;
  EXPECT_EQ(ToUtf8(PasteFromClipboard()), "our own");
}

TEST_F(FieldTest, LinesThatAreAMillionPasteAtOnce) {
  Westring lines = Westring::Replicate(L'\n', 1000000);
  lines[999999] = L'x';
  CopyToClipboard(lines);
  EXPECT_EQ(TextClipboard.Count(), 1000000);
  EXPECT_EQ(ToUtf8(PasteFromClipboard()), "x");
}

}  // namespace
