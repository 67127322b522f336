// Where a viewing begins: the place where the file was left, that of the editor, or
// the one asked for.
#include <gtest/gtest.h>

#include "console/console.h"
#include "session/viewer_screen.h"
#include "viewer/file_status.h"
#include "viewer/search_settings.h"
#include "viewer/text_file.h"
#include "viewer/view_files.h"

namespace {

HISTREC& RecordOf(const Session& s) { return FileStatuses.Record(Westring(s.Path("left/file").c_str())); }

}  // namespace

TEST(ViewerPlaces, AFileOpensWhereItWasLeft) {
  ViewerSession s(ManyLines(100));
  s.Keys("PgDn Esc F3");
  EXPECT_EQ(s.Top(), "Line 23");
  EXPECT_EQ(RecordOf(s).ViewerPos, 63 + 13 * 8);
  EXPECT_EQ(RecordOf(s).TopLine, 0);
}

TEST(ViewerPlaces, ABytesPlaceIsTheStartOfItsLineNextTime) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Down Down Right Esc F3");
  EXPECT_EQ(s.Top(), "Line 5");
}

TEST(ViewerPlaces, AnEncodingIsRememberedWithItsPage) {
  ViewerSession s("\xA0\xA5\n", {.settings = "TranslateCP=866\n"});
  s.Keys("Alt-T Esc F3");
  EXPECT_EQ(s.Encoding(), "CP866");
  EXPECT_EQ(RecordOf(s).Encoding, kCodePageText);
  EXPECT_EQ(RecordOf(s).CodePage, 866);
}

TEST(ViewerPlaces, AnEncodingThatIsNotKnownIsNotTaken) {
  ViewerSession s("text\n");
  s.Keys("Esc");
  RecordOf(s).Encoding = kUnknownEncoding;
  s.Keys("F3");
  EXPECT_EQ(s.Encoding(), "UTF-8");
}

TEST(ViewerPlaces, AShorterFileOpensAtItsTop) {
  ViewerSession s(ManyLines(100));
  s.Keys("End Esc");
  s.Write("left/file", ManyLines(5));
  s.Keys("F3");
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(ViewerPlaces, AfterTheEditorItOpensAtTheEditorsLine) {
  ViewerSession s(ManyLines(100));
  s.Keys("Esc");
  RecordOf(s).ViewerPos = -1;
  RecordOf(s).TopLine = 41;
  s.Keys("F3");
  EXPECT_EQ(s.Top(), "Line 42");
  s.Keys("Esc");
  EXPECT_EQ(RecordOf(s).TopLine, 41);  // the editor's is the editor's
  EXPECT_GE(RecordOf(s).ViewerPos, 0);
}

TEST(ViewerPlaces, AnEditorsLineThatIsGoneIsTheTop) {
  ViewerSession s(ManyLines(10));
  s.Keys("Esc");
  RecordOf(s).ViewerPos = -1;
  for (const int line : {10, 1000, -3}) {
    RecordOf(s).TopLine = line;
    RecordOf(s).ViewerPos = -1;
    s.Keys("F3");
    EXPECT_EQ(s.Top(), "Line 1") << line;
    s.Keys("Esc");
  }
}

TEST(ViewerPlaces, AnEntrysOffsetIsShownWithTheSearchStringMarked) {
  Session s({{"left/file", ManyLines(100)}});
  SearchString = L"Line";
  s.Keys("Down");
  Panels[0].Current()->treeLink = 63 + 20 * 8;
  s.Keys("F3");
  EXPECT_TRUE(s.Row(5).StartsWith("Line 30 "));
  EXPECT_EQ(s.Attribute(3, 5), 0x30);
  EXPECT_NE(s.Attribute(4, 5), 0x30);
  s.Keys("Esc");
  Panels[0].Current()->treeLink = 100000;
  s.Keys("F3");
  EXPECT_TRUE(s.Row(1).StartsWith("Line 1 "));
  SearchString = L"";
}

// ---- Shift-F4

namespace {

Westring EditedFile;
int64_t EditedAt = -1;
int64_t RememberedAt = -1;
std::string LastRow;  // that the editor finds

void Edit(const Westring& path, int64_t offset) {
  CellString row;
  Console->ReadRow(row, 0, kBarRow, ScreenColumns, 1);
  LastRow.clear();
  for (int x = 0; x < row.Length(); ++x) LastRow += static_cast<char>(row[x].character);
  EditedFile = path;
  EditedAt = offset;
  RememberedAt = FileStatuses.Record(path).ViewerPos;
  FileStatuses.Record(path).ViewerPos = -1;
  FileStatuses.Record(path).TopLine = 7;
}

class ViewerEditing : public testing::Test {
 protected:
  ViewerEditing() { EditInsteadOfViewing = Edit; }
  ~ViewerEditing() override { EditInsteadOfViewing = nullptr; }
};

}  // namespace

TEST_F(ViewerEditing, ShiftF4GoesOnInTheEditorAtTheTop) {
  ViewerSession s(ManyLines(100));
  s.Keys("PgDn Shift-F4");
  EXPECT_STREQ(ToUtf8(EditedFile).Text(), s.Path("left/file").c_str());
  EXPECT_EQ(EditedAt, 63 + 13 * 8);
  EXPECT_EQ(RememberedAt, EditedAt);
  EXPECT_FALSE(s.IsShown());
  EXPECT_EQ(s.Under(kLeftSide), "file");
  s.Keys("F3");  // the editor was there last
  EXPECT_EQ(s.Top(), "Line 8");
}

TEST_F(ViewerEditing, TheFileIsNoLongerFollowedThen) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F Shift-F4");
  EXPECT_EQ(LastRow.find("Follow Mode"), std::string::npos) << LastRow;
  EXPECT_NE(LastRow.find("7Search"), std::string::npos) << LastRow;
}

// ---- from the command line and as an argument

TEST(ViewerStart, AnArgumentShowsTheFileAndNoPanels) {
  Session s({{"file", ManyLines(100)}}, {.arguments = {{"-v", "file"}}});
  EXPECT_TRUE(s.Row(0).StartsWith("View: " + s.Path("file")));
  EXPECT_TRUE(s.Row(1).StartsWith("Line 1 "));
  s.Keys("PgDn Alt-L '3' Enter F7 Esc");
  EXPECT_TRUE(s.Row(1).StartsWith("Line 3 "));
  s.Keys("Esc");
  EXPECT_TRUE(s.HasEnded());
  EXPECT_EQ(s.ExitCode(), 0);
}

TEST(ViewerStart, AltDownEndsItTooWhereThereIsNoPanel) {
  Session s({{"file", "text\n"}}, {.arguments = {{"-v", "file"}}});
  s.Keys("Alt-Down");
  EXPECT_TRUE(s.HasEnded());
}

TEST(ViewerStart, AFileThatIsNotThereIsTold) {
  Session s({}, {.arguments = {{"-v", "none"}}});
  EXPECT_TRUE(s.FindRow("No such file or directory"));
  EXPECT_TRUE(s.FindRow("none"));
  s.Keys("Enter");
  EXPECT_TRUE(s.HasEnded());
  EXPECT_EQ(s.ExitCode(), 0);
}

TEST(ViewerStart, ACommandShowsAFile) {
  Session s({{"left/my file", ManyLines(100)}});
  for (const char* line : {"'$view my\\ file'", "'$VIEW my\\ file'"}) {
    s.Keys(std::string(line) + " Enter");
    EXPECT_TRUE(s.Row(0).StartsWith("View: " + s.Path("left/my file"))) << line;
    EXPECT_EQ(s.Cursor().second, 24);
    s.Keys("Down Esc");
    EXPECT_TRUE(IsShown(s, kLeftSide));
    EXPECT_EQ(PromptRow(s), s.PanelPath(kLeftSide) + ">");
  }
}

TEST(ViewerStart, ACommandWithoutAFileTellsOfIt) {
  Session s;
  s.Keys("'$view' Enter");
  EXPECT_TRUE(s.FindRow("No such file or directory"));
  s.Keys("Enter");
  EXPECT_TRUE(IsShown(s, kLeftSide));
}
