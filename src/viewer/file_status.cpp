// The records of the files that were viewed or edited.
#include "viewer/file_status.h"

#include <cwchar>

FileStatusStore FileStatuses;

HISTREC& FileStatusStore::Record(const Westring& path) {
  if (HISTREC* found = Find(&path)) return *found;
  HISTREC* const made = new HISTREC;
  made->FileName = path;
  for (TextPosition& bookmark : made->Bookmarks) bookmark.column = -1;
  Insert(made);
  return *made;
}

int FileStatusStore::CompareKeys(const Westring* a, const Westring* b) const {
  return wcscmp(a->Text(), b->Text());
}
