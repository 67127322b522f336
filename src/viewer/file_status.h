// Where the user was in a file, for the life of the program; viewer and editor
// pass it to each other.
#pragma once

#include "viewer/undo.h"

constexpr int kBookmarks = 10;

struct HISTREC {
  Westring FileName;                                               // the full path
  int32_t TopLine = 0, CursorRow = 0, CursorCol = 0, LeftCol = 0;  // the editor's
  TUndoStack Undo, Redo;
  int64_t ViewerPos = 0;               // the viewer's offset; -1 if the editor wrote last
  TextPosition Bookmarks[kBookmarks];  // a column of -1 for none
  int32_t Encoding = 0, CodePage = 0;
};

class FileStatusStore : public TSortedCollection<HISTREC, Westring> {
 public:
  ~FileStatusStore() override { Clear(); }

  // The record of a path, made if there is none.
  HISTREC& Record(const Westring& path);

 protected:
  const Westring* KeyOf(const HISTREC* item) const override { return &item->FileName; }
  int CompareKeys(const Westring* a, const Westring* b) const override;
};

extern FileStatusStore FileStatuses;
