// Names that are no text; see unspellable_names.h.
#include "fileops/unspellable_names.h"

#include <dirent.h>

#include "fileops/directory_names.h"

bool UnspellableNames::Has(const wchar_t* name) {
  if (!isRead) Read();
  return !names.empty() && names.contains(name);
}

void UnspellableNames::Read() {
  isRead = true;
  names.clear();
  DIR* const stream = opendir(ToUtf8(directory).Text());
  if (!stream) return;
  Westring text;
  while (const dirent* const found = readdir(stream))
    if (!DecodeName(found->d_name, text)) names.emplace(text.Text());
  closedir(stream);
}
