// How the files of one kind are coloured, as the syntax file tells it. All items
// stand in the order of the file: it decides which one wins.
#pragma once

#include <bitset>

#include "dialogs/prompt.h"
#include "foundation/collections.h"
#include "syntax/syntax_element.h"
#include "syntax/syntax_reader.h"

using ByteSet = std::bitset<256>;  // of characters, by their low byte

// Words, found by binary search; with or without case, which is set first.
class WordCollection : public WestringCollection {
 public:
  void AddWords(const Westring& text);  // those between the blanks of text
  bool Holds(const wchar_t* word, int length) const;

  bool CaseSensitive = true;

 protected:
  int CompareKeys(const Westring* a, const Westring* b) const override;
};

class SyntaxWordList : public WordCollection {
 public:
  uint8_t Colour = 0;
  CSyntaxContext Context;
};

struct SyntaxSymbolList {
  uint8_t Colour = 0;
  CSyntaxContext Context;
  ByteSet Symbols;
};

struct SyntaxNumber {
  CSyntaxContext Context;
  uint8_t Colour = 0;
};

enum SyntaxAction { kSyntaxPush = 0, kSyntaxPop = 1, kSyntaxChange = 2 };

class CSyntaxStateChange {
 public:
  SyntaxStart FirstOfStart() const { return {Trigger[0], CaseSensitive}; }

  uint8_t Colour = 0;
  CSyntaxContext Context;
  Westring Trigger;
  int Action = kSyntaxChange;
  Estring TargetName;
  CSyntaxElement* Target = nullptr;  // looked up at the first use; the definition's
  bool CaseSensitive = true;
};

class CSyntaxDefinition {
 public:
  CSyntaxDefinition();
  CSyntaxDefinition(const CSyntaxDefinition&) = delete;
  CSyntaxDefinition& operator=(const CSyntaxDefinition&) = delete;

  // Reads the sections of a syntax file that are for files called so, and adds
  // them to what is there. True if there was one. A missing file is no concern;
  // what else can't be opened is told in a message box.
  bool Load(const Westring& iniPath, const Westring& fileName, const SyntaxComplaint& ask = Prompt);

  void Clear();  // to what it was before the first load

  uint8_t DefaultColour;  // of plain text; the viewer's at first
  ByteSet WordChars;      // letters and digits of ASCII at first
  TObjectStore<SyntaxWordList> WordLists;
  TObjectStore<SyntaxSymbolList> SymbolLists;
  TObjectStore<SyntaxNumber> Numbers;
  TObjectStore<CSyntaxElement> Elements;
  TObjectStore<CSyntaxStateChange> StateChanges;
  wchar_t DefaultEscape = 0;  // of the strings that follow; 0 for none
  KeyedValueSet ColourClasses;

  // What may begin with a character, in the order of the file. To be made anew when
  // items have been added.
  void IndexStarts();
  const std::vector<CSyntaxElement*>& ElementsAt(wchar_t c) const { return elementStarts.At(c); }
  const std::vector<CSyntaxStateChange*>& StateChangesAt(wchar_t c) const { return changeStarts.At(c); }

 private:
  StartIndex<CSyntaxElement> elementStarts;
  StartIndex<CSyntaxStateChange> changeStarts;
  int indexedElements = 0, indexedChanges = 0;
};

// No file needs as many items, and more of them would make colouring slow.
constexpr int kMostSyntaxItems = 5000;

// One line inside a section that applies; a malformed one is passed over. For the
// loader, and for tests of single lines.
void AddDefinitionLine(CSyntaxDefinition& definition, const char* line);

// The attribute that a text such as "bright red on black" names, starting from
// base.
uint8_t ParseColourText(const char* text, uint8_t base);

// The user's syntax file, or the system's where he has none.
Westring FindSyntaxFile();
