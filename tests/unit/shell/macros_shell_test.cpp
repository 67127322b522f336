// What the macros yield, through real shells: any name is one argument of the
// program, with exactly its bytes.
#include <cstring>
#include <filesystem>
#include <map>
#include <set>

#include "shell/shell_quote.h"
#include "unit/shell/awkward_names.h"
#include "unit/shell/macro_fixture.h"
#include "unit/shell/shell_output.h"

namespace {

std::string Bytes(const std::wstring& text) { return ToUtf8(text.c_str()).Text(); }

class MacrosAndShells : public MacroFixture {
 protected:
  MacrosAndShells() {
    CopyText(panels[0].path, L"/a b\n$c");
    CopyText(panels[0].lastPath, L"/a b\n$c");
    names = AwkwardNames();
    for (const std::wstring& name : RandomNames(200)) names.push_back(name);
    // Unquoted, some names would be variables.
    for (const char* name : {"HOME", "X", "B", "a"}) Variables.Set(name, "a value");
  }

  void ExpectToArrive(const std::wstring& line, const std::vector<std::string>& expected) {
    for (const char* shell : Shells()) {
      const std::vector<std::string> arrived = ArgumentPrinter().Run(shell, line);
      ASSERT_EQ(arrived.size(), expected.size()) << shell;
      for (size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(arrived[i], expected[i]) << shell << ", " << i;
    }
  }

  // macro expanded for each name under the cursor, all on one line.
  void ExpectEach(const std::wstring& macro, const std::string& before = "",
                  const std::wstring& behind = L"") {
    std::wstring line;
    std::vector<std::string> expected;
    Add(0, L"");
    for (const std::wstring& name : names) {
      FreeEntry(panels[0].entries[0]);
      const std::wstring file = name + behind;
      panels[0].entries[0] = NewEntry(file.c_str());
      line += L" " + Expand(macro, kMacroPlain, file.c_str());
      ASSERT_GE(code, 0);
      expected.push_back(before + Bytes(name));
    }
    ExpectToArrive(line, expected);
  }

  std::vector<std::wstring> names;
};

}  // namespace

TEST_F(MacrosAndShells, TheFile) { ExpectEach(L"!"); }
TEST_F(MacrosAndShells, TheFileWithItsPath) { ExpectEach(L"!f", "/a b\n$c/"); }
TEST_F(MacrosAndShells, TheFileWithoutItsExtension) { ExpectEach(L"!x", "", L".ext"); }
TEST_F(MacrosAndShells, TheNameOfARepetition) { ExpectEach(L"!t"); }
TEST_F(MacrosAndShells, TheNameOfARepetitionWithoutItsExtension) { ExpectEach(L"!tx", "", L".c"); }
TEST_F(MacrosAndShells, TheFileInPlaceOfTheList) { ExpectEach(L"!l"); }
TEST_F(MacrosAndShells, SeveralMacrosAreOneArgument) { ExpectEach(L"!s!", "/a b\n$c/"); }

TEST_F(MacrosAndShells, TheListOfTaggedFiles) {
  for (const bool withPath : {false, true}) {
    panels[0].FreeEntries();
    panels[0].taggedCount = 0;
    std::wstring line;
    std::vector<std::string> expected;
    for (const std::wstring& name : names) {
      Add(0, name, true);
      expected.push_back((withPath ? "/a b\n$c/" : "") + Bytes(name));
    }
    while (panels[0].taggedCount > 0) line += Expand(withPath ? L"!lf" : L"!l");
    ExpectToArrive(line, expected);
  }
}

TEST_F(MacrosAndShells, AnAnswerThatATrialHasPutIn) {
  std::wstring line;
  std::vector<std::string> expected;
  for (const std::wstring& name : names) {
    answers = {name};
    line += L" " + Expand(Try(L"!i"));
    expected.push_back(Bytes(name));
  }
  ExpectToArrive(line, expected);
}

TEST_F(MacrosAndShells, ANameThatWasPutOnTheLineQuoted) {
  std::wstring line;
  std::vector<std::string> expected;
  for (const std::wstring& name : names) {
    for (const wchar_t c : std::wstring(ShellQuote(name.c_str()).Text()))
      line += std::wstring(c == L'!' ? 2 : 1, c);
    line += L' ';
    expected.push_back(Bytes(name));
  }
  ExpectToArrive(Expand(Try(line)), expected);
}

TEST_F(MacrosAndShells, FilesAsTheyAreOnDisk) {
  ScratchDirectory disk;
  std::set<std::string> made;
  for (const std::wstring& name : names) {
    const std::string bytes = Bytes(name);
    if (bytes.size() > 255) continue;
    disk.Write(bytes, "");
    ASSERT_TRUE(disk.Exists(bytes));
    made.insert(bytes);
  }
  const auto source = ScanDirectory(disk.Path().c_str(), L"*", kScanAll);
  std::wstring line;
  entry* found = nullptr;
  for (int error = source->First(found); error == 0; error = source->Next(found)) {
    if (!IsDotDot(*found) && wcscmp(found->name, L".") != 0) line += L" " + ExpandFor(found->name, L"!");
    FreeEntry(found);
  }
  for (const char* shell : Shells()) {
    const std::vector<std::string> arrived = ArgumentPrinter().Run(shell, line);
    EXPECT_EQ(arrived.size(), made.size());
    EXPECT_EQ(std::set<std::string>(arrived.begin(), arrived.end()), made);
  }
}
