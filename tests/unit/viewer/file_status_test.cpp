// What the program remembers of files.
#include "viewer/file_status.h"

#include <gtest/gtest.h>

TEST(FileStatus, ARecordIsMadeOnceAndFoundByItsExactPath) {
  FileStatusStore store;
  store.Record(L"/a/File").ViewerPos = 7;
  EXPECT_EQ(store.Record(L"/a/File").ViewerPos, 7);
  EXPECT_EQ(store.Record(L"/a/file").ViewerPos, 0);
  EXPECT_EQ(store.Count(), 2);
  const Westring missing = L"/a/fil";
  EXPECT_EQ(store.Find(&missing), nullptr);
}

TEST(FileStatus, ANewRecordHasZerosAndNoBookmarks) {
  FileStatusStore store;
  const HISTREC& record = store.Record(L"/a");
  EXPECT_EQ(record.TopLine, 0);
  EXPECT_EQ(record.CursorRow, 0);
  EXPECT_EQ(record.CursorCol, 0);
  EXPECT_EQ(record.LeftCol, 0);
  for (const TextPosition& bookmark : record.Bookmarks) EXPECT_EQ(bookmark.column, -1);
}

TEST(FileStatus, UndoIsKeptAsACopyOfItsOwn) {
  FileStatusStore store;
  TUndoStack stack;
  UndoItem* const item = new UndoItem;
  item->Text = L"gone";
  item->After = {3, 4};
  stack.Append(item);
  store.Record(L"/a").Undo.CopyFrom(stack);
  stack.Clear();
  const TUndoStack& kept = store.Record(L"/a").Undo;
  ASSERT_EQ(kept.Count(), 1);
  EXPECT_EQ(kept.Peek(0)->Text, L"gone");
  EXPECT_EQ(kept.Peek(0)->After.line, 4);
}
