// Colouring lines one after the other. A line's colours depend on the elements
// open at its start and on nothing else.
#pragma once

#include "console/cell_string.h"
#include "syntax/syntax_definition.h"

// The open elements, the innermost on top. They are the definition's; copying a
// stack copies pointers.
class CContextStack : public TObjectStoreAbstract<CSyntaxElement> {
 public:
  // A text that opens elements without end must not eat the memory.
  static constexpr int kDeepest = 1000;

  CContextStack() = default;
  ~CContextStack() override { ObjectStore::Clear(); }

  CSyntaxElement* Top() const { return Count() ? Peek(Count() - 1) : nullptr; }
  void Push(CSyntaxElement* element);  // beyond the deepest: nothing
  void Pop();
  void Clear() { ObjectStore::Clear(); }
  void CopyStack(const CContextStack& other);
  bool operator==(const CContextStack& other) const;

 protected:
  using TObjectStoreAbstract<CSyntaxElement>::FreeItem;
  void FreeItem(CSyntaxElement*) override {}
};

class CSyntaxHighlighter : public CContextStack {
 public:
  // Replaces cells by the line's, with tabs expanded to Options::TabWidth, and
  // goes on to the state behind it.
  void RenderLine(const wchar_t* text, CellString& cells);

  // Reads the syntax file for a file of that name; sets Active. The name of the
  // last load again adds to the definition; another one drops what was loaded
  // and the stack, and states that were remembered of it have to be gone by then.
  void Load(const Westring& iniPath, const Westring& fileName);

  CSyntaxDefinition Definition;
  bool Active = false;

 private:
  Westring loadedFor;
};
