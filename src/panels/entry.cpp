// Making and freeing entries, and the names that are special.
#include "panels/entry.h"

#include <cstring>
#include <cwchar>
#include <new>

// The head ends with the first element of the name, which is the terminator's.
size_t EntryBytes(size_t nameLength) { return sizeof(entry) + nameLength * sizeof(wchar_t); }

entry* NewEntry(size_t nameLength) {
  const size_t bytes = EntryBytes(nameLength);
  char* const block = new char[bytes];
  entry* const e = new (block) entry{};
  memset(block + sizeof(entry), 0, bytes - sizeof(entry));
  e->treeLink = -1;
  return e;
}

entry* NewEntry(const wchar_t* name) {
  const size_t length = wcslen(name);
  entry* const e = NewEntry(length);
  wmemcpy(e->name, name, length);
  return e;
}

void FreeEntry(entry* e) { delete[] reinterpret_cast<char*>(e); }

bool IsDotDot(const entry& e) { return e.name[0] == L'.' && e.name[1] == L'.' && e.name[2] == 0; }

bool IsSystemFile(const wchar_t* name) {
  constexpr const wchar_t* kSystemFiles[] = {L"descript.ion", L"EA DATA. SF", L"WP ROOT. SF"};
  for (const wchar_t* systemFile : kSystemFiles) {
    if (wcscmp(name, systemFile) == 0) return true;
  }
  return false;
}
