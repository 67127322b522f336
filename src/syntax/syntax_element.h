// What can be open at a place of a text: comments, strings, states.
#pragma once

#include "foundation/strings.h"
#include "syntax/start_index.h"
#include "syntax/syntax_context.h"

// Texts are zero-ended arrays of characters; a match is at their beginning. Made
// by the loader and owned by the definition.
class CSyntaxElement {
 public:
  virtual ~CSyntaxElement() = default;

  // True with the number of characters where the element begins at text, current
  // being open there.
  virtual bool MatchStart(const wchar_t* text, const CSyntaxElement* current, int& length) const = 0;
  virtual bool MatchEnd(const wchar_t* text, int& length) const = 0;
  virtual bool ValidIn(const CSyntaxElement* current) const { return Context.ValidIn(current); }
  virtual SyntaxStart FirstOfStart() const = 0;  // nothing else can match

  Estring Name;
  CSyntaxContext Context;
  uint8_t Colour = 0;
  bool EndsAtEol = false;
  wchar_t Escape = 0;  // 0 for none
};

class CSyntaxLineComment : public CSyntaxElement {
 public:
  CSyntaxLineComment() { EndsAtEol = true; }
  bool MatchStart(const wchar_t* text, const CSyntaxElement* current, int& length) const override;
  bool MatchEnd(const wchar_t*, int&) const override { return false; }
  SyntaxStart FirstOfStart() const override { return {start[0], CaseSensitive}; }

  void SetStart(const Estring& text);

  Estring Start;  // UTF-8
  bool CaseSensitive = true;

 private:
  Westring start;  // the same, as lines are compared with it
};

// Block comments, and the states that contexts refer to.
class CSyntaxBlock : public CSyntaxElement {
 public:
  bool MatchStart(const wchar_t* text, const CSyntaxElement* current, int& length) const override;
  bool MatchEnd(const wchar_t* text, int& length) const override;
  SyntaxStart FirstOfStart() const override { return {Start[0], CaseSensitive}; }

  Westring Start, End;
  bool CaseSensitive = true;
};

class CSyntaxLiteralString : public CSyntaxElement {
 public:
  bool MatchStart(const wchar_t* text, const CSyntaxElement* current, int& length) const override;
  bool MatchEnd(const wchar_t* text, int& length) const override;
  SyntaxStart FirstOfStart() const override { return {Open, true}; }

  wchar_t Open = 0, Close = 0;
};

// Whether word stands at text; letters one by one in lower case if case does not
// count. An empty word stands nowhere.
bool StandsAt(const wchar_t* text, const Westring& word, bool caseSensitive);
