// Colouring a line; see highlighter.h. At each place the first of kSteps that
// applies takes what stands there. Start at CSyntaxHighlighter::RenderLine().
#include "syntax/highlighter.h"

#include <algorithm>
#include <cwchar>

#include "config/values/options.h"

namespace {

constexpr wchar_t kBell = 7, kBackspace = 8, kTab = 9;

uint8_t LowByte(wchar_t c) { return static_cast<uint8_t>(c); }

void PutBlanks(CellString& cells, int count, uint8_t colour) {
  for (; count > 0; --count) cells.Append(Cell{' ', colour});
}

void PutChar(CellString& cells, wchar_t c, uint8_t colour) {
  if (c == kTab) {
    const int width = std::max(Options::TabWidth, 1);
    PutBlanks(cells, width - cells.Length() % width, colour);
  } else {
    cells.Append(Cell{c == kBell || c == kBackspace ? L' ' : c, colour});
  }
}

class LineRenderer {
 public:
  LineRenderer(CContextStack& open, CSyntaxDefinition& syntax, const wchar_t* text, CellString& target)
      : stack(open), definition(syntax), p(text), cells(target) {}

  void Run();

 private:
  bool TakeEnd();
  bool TakeStart();
  bool TakeStateChange();
  bool TakeWord();
  bool TakeCharacter();

  void Output(int length, uint8_t colour) {
    cells.Append(p, colour, length);
    p += length;
  }
  bool IsWordChar(wchar_t c) const { return c != 0 && definition.WordChars[LowByte(c)]; }
  uint8_t BaseColour() const { return top ? top->Colour : definition.DefaultColour; }
  uint8_t NumberColour() const;
  uint8_t WordColour(int length) const;
  uint8_t SymbolColour() const;
  CSyntaxElement* TargetOf(CSyntaxStateChange& change) const;
  void Apply(CSyntaxStateChange& change);

  CContextStack& stack;
  CSyntaxDefinition& definition;
  const wchar_t* p;
  CellString& cells;
  const CSyntaxElement* top = nullptr;
};

void LineRenderer::Run() {
  using Step = bool (LineRenderer::*)();
  constexpr Step kSteps[] = {&LineRenderer::TakeEnd, &LineRenderer::TakeStart, &LineRenderer::TakeStateChange,
                             &LineRenderer::TakeWord, &LineRenderer::TakeCharacter};
  while (*p) {
    top = stack.Top();
    for (const Step step : kSteps)
      if ((this->*step)()) break;
  }
  while (stack.Top() && stack.Top()->EndsAtEol) stack.Pop();
}

// ---- what opens and closes -------------------------------------------------

bool LineRenderer::TakeEnd() {
  int length = 0;
  if (!top || !top->MatchEnd(p, length)) return false;
  Output(length, top->Colour);
  stack.Pop();
  return true;
}

bool LineRenderer::TakeStart() {
  int length = 0;
  for (CSyntaxElement* element : definition.ElementsAt(*p)) {
    if (!element->MatchStart(p, top, length)) continue;
    Output(length, element->Colour);
    stack.Push(element);
    return true;
  }
  return false;
}

bool LineRenderer::TakeStateChange() {
  for (CSyntaxStateChange* change : definition.StateChangesAt(*p)) {
    if (!StandsAt(p, change->Trigger, change->CaseSensitive) || !change->Context.ValidIn(top)) continue;
    Apply(*change);
    Output(Length(change->Trigger), change->Colour);
    return true;
  }
  return false;
}

CSyntaxElement* LineRenderer::TargetOf(CSyntaxStateChange& change) const {
  if (change.Target || change.TargetName.IsEmpty()) return change.Target;
  for (int i = 0; i < definition.Elements.Count() && !change.Target; ++i)
    if (definition.Elements.Peek(i)->Name == change.TargetName) change.Target = definition.Elements.Peek(i);
  return change.Target;
}

void LineRenderer::Apply(CSyntaxStateChange& change) {
  CSyntaxElement* target = TargetOf(change);
  if (change.Action != kSyntaxPush) stack.Pop();
  if (change.Action != kSyntaxPop && target) stack.Push(target);
}

// ---- words and characters --------------------------------------------------

// The last one wins.
uint8_t LineRenderer::NumberColour() const {
  uint8_t colour = BaseColour();
  for (int i = 0; i < definition.Numbers.Count(); ++i) {
    const SyntaxNumber& number = *definition.Numbers.Peek(i);
    if (number.Context.ValidIn(top)) colour = number.Colour;
  }
  return colour;
}

// The first one wins.
uint8_t LineRenderer::WordColour(int length) const {
  for (int i = 0; i < definition.WordLists.Count(); ++i) {
    const SyntaxWordList& list = *definition.WordLists.Peek(i);
    if (list.Context.ValidIn(top) && list.Holds(p, length)) return list.Colour;
  }
  return BaseColour();
}

// The last one wins.
uint8_t LineRenderer::SymbolColour() const {
  uint8_t colour = BaseColour();
  for (int i = 0; i < definition.SymbolLists.Count(); ++i) {
    const SyntaxSymbolList& list = *definition.SymbolLists.Peek(i);
    if (list.Symbols[LowByte(*p)] && list.Context.ValidIn(top)) colour = list.Colour;
  }
  return colour;
}

bool LineRenderer::TakeWord() {
  int length = 0;
  while (IsWordChar(p[length])) ++length;
  if (length == 0) return false;
  const bool isNumber = *p >= L'0' && *p <= L'9';
  Output(length, isNumber ? NumberColour() : WordColour(length));
  return true;
}

// A symbol or a plain character, and with an escape the one behind it.
bool LineRenderer::TakeCharacter() {
  const uint8_t colour = SymbolColour();
  if (top && top->Escape != 0 && top->Escape == *p && p[1] != 0)
    Output(2, colour);
  else
    PutChar(cells, *p++, colour);
  return true;
}

}  // namespace

// ---- the stack -------------------------------------------------------------

void CContextStack::Push(CSyntaxElement* element) {
  if (Count() < kDeepest) Append(element);
}

void CContextStack::Pop() {
  Last();
  Detach();
}

void CContextStack::CopyStack(const CContextStack& other) {
  if (&other == this) return;
  Clear();
  for (int i = 0; i < other.Count(); ++i) Append(other.Peek(i));
}

bool CContextStack::operator==(const CContextStack& other) const {
  if (Count() != other.Count()) return false;
  for (int i = 0; i < Count(); ++i)
    if (Peek(i) != other.Peek(i)) return false;
  return true;
}

// ---- the highlighter -------------------------------------------------------

void CSyntaxHighlighter::RenderLine(const wchar_t* text, CellString& cells) {
  cells.SetLength(0);
  cells.attribute = Definition.DefaultColour;
  if (Active) {
    Definition.IndexStarts();
    LineRenderer(*this, Definition, text, cells).Run();
  } else {
    for (; *text; ++text) PutChar(cells, *text, Definition.DefaultColour);
  }
}

void CSyntaxHighlighter::Load(const Westring& iniPath, const Westring& fileName) {
  if (wcscmp(fileName.Text(), loadedFor.Text()) != 0) {
    Clear();
    Definition.Clear();
    loadedFor = fileName;
  }
  Active = Definition.Load(iniPath, fileName);
}
