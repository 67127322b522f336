// A console, a directory of files, and a command that deletes among them.
#pragma once

#include "config/values/colours.h"
#include "config/values/options.h"
#include "fileops/delete_file.h"
#include "support/as_nobody.h"
#include "support/console_fixture.h"

class DeleteFixture : public ConsoleFixture {
 protected:
  DeleteFixture() {
    for (int i = 0; i < kColourCount; ++i) Options::Colours[i] = kDefaultColours[i];
    Options::Confirmations = 0;
  }

  Westring Wide(const std::string& name) const { return Westring(place.Path(name).c_str()); }
  bool Exists(const std::string& name) const { return place.Exists(name); }
  bool Shows(const std::string& text) const { return Screen().find(text) != std::string::npos; }
  void SetMode(const std::string& name, mode_t mode) { ASSERT_EQ(chmod(place.Path(name).c_str(), mode), 0); }

  // What the screen must show when the code under test waits, then the keys.
  void Expect(const std::string& text, const std::string& keys) {
    Then([this, text] { EXPECT_TRUE(Shows(text)) << text; });
    Keys(keys);
  }

  // "Delete tree?" answered with the word.
  void ExpectTreeQuestion() { Expect("Type \"YES\"", "'yes' Enter"); }

  int Delete(const std::string& name, int mode = kDeleteOne) {
    return DeleteFile(operation, Wide(name), mode);
  }
  int DeleteTreeAt(const std::string& name, const wchar_t* mask = L"*") {
    return DeleteDirectory(operation, Wide(name), mask);
  }

  Sandbox place;
  FileOperation operation;
};
