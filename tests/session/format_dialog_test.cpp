// The dialog that asks for the encoding of a text.
#include "viewer/format_dialog.h"

#include "config/values/options.h"
#include "dialogs/dialog_history.h"
#include "support/console_fixture.h"
#include "viewer/text_file.h"

namespace {

constexpr int kX = 11, kY = 6;  // the inside on a screen of 80 by 25

class FormatDialogTest : public ConsoleFixture {
 protected:
  int Ask(const std::string& keys) {
    Keys(keys);
    CFormatSelectDlg dialog("Format", encoding, codePage, hasBOM);
    return dialog.Execute();
  }

  // What Enter makes of an encoding without any other key.
  int EncodingAfterEnter(int before) {
    encoding = before;
    EXPECT_EQ(Ask("Enter"), static_cast<int>(kEnter));
    return encoding;
  }

  std::string Chosen() const {
    for (int y = 0; y < 4; ++y)
      if (Text(kX + 14, kY + y, 3) == "(•)") return Text(kX + 18, kY + y, 12).Trimmed();
    return "";
  }
  bool IsMarkOn() const { return Text(kX + 34, kY + 1, 3) == "[X]"; }

  int encoding = kUtf8, codePage = 866;
  bool hasBOM = false;
};

// With a field for a name at the top, as the saving of a text asks.
class NamedFormatDialog : public CFormatSelectDlg {
 public:
  NamedFormatDialog(int& encoding, int& codePage, bool& hasBOM, Westring& name)
      : CFormatSelectDlg("Named", encoding, codePage, hasBOM, 2) {
    PrintBytes(1, 0, "Name:");
    field = AddStringField(7, 0, true, &name, 50, 512, kNoHistory);
  }
  int field;
};

}  // namespace

TEST_F(FormatDialogTest, HasItsThingsInTheirPlaces) {
  Then([this] {
    EXPECT_TRUE(Text(10, 5, 60).StartsWith("╔"));
    EXPECT_TRUE(Text(10, 5, 60).Contains("═ Format ═"));
    EXPECT_TRUE(Text(10, 13, 60).EndsWith("╝"));
    EXPECT_TRUE(Text(kX, kY, 40) == " File Format: ( ) Code Page       Code P");
    EXPECT_TRUE(Text(kX + 14, kY + 1, 20) == "(•) UTF-8           ");
    EXPECT_TRUE(Text(kX + 14, kY + 2, 20) == "( ) UTF-16          ");
    EXPECT_TRUE(Text(kX + 14, kY + 3, 20) == "( ) UTF-32          ");
    EXPECT_TRUE(Text(kX + 34, kY, 18) == "Code Page: 866    ");
    EXPECT_EQ(Attribute(kX + 45, kY), 0x30);
    EXPECT_EQ(Attribute(kX + 49, kY), 0x30);
    EXPECT_NE(Attribute(kX + 50, kY), 0x30);
    EXPECT_TRUE(Text(kX + 34, kY + 1, 22) == "[ ]  Byte Order Mark  ");
    EXPECT_TRUE(Text(kX + 34, kY + 2, 22) == "[ ]  Big-Endian       ");
    EXPECT_TRUE(Text(kX, kY + 6, 58).Contains("[ OK ]  [ Cancel ]"));
  });
  Ask("Esc");
}

TEST_F(FormatDialogTest, EnterAloneKeepsEveryEncoding) {
  for (const int each : {kUtf32Little, kUtf32Big, kUtf16Little, kUtf16Big, kUtf8, kCodePageText})
    EXPECT_EQ(EncodingAfterEnter(each), each);
}

TEST_F(FormatDialogTest, TheButtonOfTheEncodingIsChosenAtTheStart) {
  constexpr const char* kNames[] = {"UTF-32", "UTF-32", "UTF-16", "UTF-16", "UTF-8", "Code Page"};
  for (int each = kUtf32Little; each <= kCodePageText; ++each) {
    encoding = each;
    Then([this, &kNames, each] {
      EXPECT_EQ(Chosen(), kNames[each]);
      EXPECT_EQ(Text(kX + 34, kY + 2, 3) == "[X]", each == kUtf32Big || each == kUtf16Big);
    });
    Ask("Esc");
  }
}

TEST_F(FormatDialogTest, EnterWritesFormatPageAndMark) {
  EXPECT_EQ(Ask("Up Tab '1251' Tab Space Enter"), static_cast<int>(kEnter));
  EXPECT_EQ(encoding, kCodePageText);
  EXPECT_EQ(codePage, 1251);
  EXPECT_TRUE(hasBOM);
}

TEST_F(FormatDialogTest, BigEndianCountsForTheWideFormatsOnly) {
  Ask("Down Alt-e Enter");
  EXPECT_EQ(encoding, kUtf16Big);
  Ask("Down Enter");
  EXPECT_EQ(encoding, kUtf32Big);
  Ask("Alt-8 Enter");
  EXPECT_EQ(encoding, kUtf8);
  Ask("Alt-e Enter");
  EXPECT_EQ(encoding, kUtf8);
}

TEST_F(FormatDialogTest, EscLeavesTheValuesAlone) {
  const auto before = Snapshot();
  EXPECT_EQ(Ask("Down Down Tab '1251' Tab Space Down Space Esc"), static_cast<int>(kEscape));
  EXPECT_EQ(encoding, kUtf8);
  EXPECT_EQ(codePage, 866);
  EXPECT_FALSE(hasBOM);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(FormatDialogTest, APageOfZeroShowsTheUsualOne) {
  codePage = 0;
  Then([this] { EXPECT_TRUE(Text(kX + 45, kY, 5) == "819  "); });
  Ask("Enter");
  EXPECT_EQ(codePage, 819);
}

// ---- the mark follows the format

TEST_F(FormatDialogTest, TheWideFormatsSetTheMark) {
  Keys("Down");
  Then([this] {
    EXPECT_EQ(Chosen(), "UTF-16");
    EXPECT_TRUE(IsMarkOn());
  });
  Ask("Enter");
  EXPECT_EQ(encoding, kUtf16Little);
  EXPECT_TRUE(hasBOM);
}

TEST_F(FormatDialogTest, TheFormatOfTheStartBringsItsMarkBack) {
  Keys("Down");
  Then([this] { EXPECT_TRUE(IsMarkOn()); });
  Keys("Up");
  Then([this] { EXPECT_FALSE(IsMarkOn()); });
  Ask("Enter");
  EXPECT_FALSE(hasBOM);
  encoding = kUtf16Little;
  Ask("Down Up Enter");  // over UTF-32 and back to a UTF-16 without a mark
  EXPECT_EQ(encoding, kUtf16Little);
  EXPECT_FALSE(hasBOM);
}

TEST_F(FormatDialogTest, OtherFormatsLeaveTheMark) {
  Keys("Down Up Up");
  Then([this] {
    EXPECT_EQ(Chosen(), "Code Page");
    EXPECT_FALSE(IsMarkOn());
  });
  Keys("Down Down Alt-c");
  Then([this] {
    EXPECT_EQ(Chosen(), "Code Page");
    EXPECT_TRUE(IsMarkOn());
  });
  Ask("Esc");
}

TEST_F(FormatDialogTest, AMarkThatWasTakenAwayStaysAway) {
  Ask("Down Alt-b Enter");
  EXPECT_EQ(encoding, kUtf16Little);
  EXPECT_FALSE(hasBOM);
}

// ---- hot keys, and rows of a derived dialog

TEST_F(FormatDialogTest, AltAndALetterLeadToEveryElement) {
  const struct {
    const char* key;
    const char* format;
  } rows[] = {{"Alt-c", "Code Page"}, {"Alt-6", "UTF-16"}, {"Alt-3", "UTF-32"}, {"Alt-8", "UTF-8"}};
  for (const auto& row : rows) {
    Keys(row.key);
    Then([this, &row] { EXPECT_EQ(Chosen(), row.format) << row.key; });
  }
  Ask("Alt-p '437' Alt-b Alt-e Enter");
  EXPECT_EQ(codePage, 437);
  EXPECT_TRUE(hasBOM);
}

TEST_F(FormatDialogTest, ExtraRowsArePutOnTopAndLeadToWithN) {
  Westring name = L"old";
  NamedFormatDialog dialog(encoding, codePage, hasBOM, name);
  Then([this] {
    EXPECT_TRUE(Text(10, 4, 60).StartsWith("╔"));
    EXPECT_TRUE(Text(10, 14, 60).EndsWith("╝"));
    EXPECT_TRUE(Text(kX, 7, 40).StartsWith(" File Format: ( ) Code Page"));
    EXPECT_TRUE(Text(kX, 13, 58).Contains("[ OK ]  [ Cancel ]"));
  });
  Keys("Alt-n 'new' Alt-3 Enter");
  EXPECT_EQ(dialog.Execute(), static_cast<int>(kEnter));
  EXPECT_STREQ(ToUtf8(name).Text(), "new");
  EXPECT_EQ(encoding, kUtf32Little);
  Keys("Alt-8 Enter");
  EXPECT_EQ(dialog.Execute(), static_cast<int>(kEnter));  // it may stay open after an error
  EXPECT_EQ(encoding, kUtf8);
}
