// Names in a directory that no path can be told for: what they read as is not
// what they are, and may well be the name of another file.
#pragma once

#include <set>
#include <string>

#include "foundation/strings.h"

class UnspellableNames {
 public:
  // The directory is read at the first question.
  explicit UnspellableNames(const Westring& directoryPath) : directory(directoryPath) {}

  // True if some name that is not this one reads as it.
  bool Has(const wchar_t* name);
  void Forget() { isRead = false; }  // the next question reads again

 private:
  void Read();

  Westring directory;
  std::set<std::wstring> names;  // as they read
  bool isRead = false;
};
