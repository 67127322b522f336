// One line of a definition:
//   key[(contexts)][/options]:colour[:rest]
// A row of the table below for each key. Start at AddDefinitionLine().
#include <memory>

#include "foundation/wildcards.h"
#include "syntax/syntax_definition.h"

namespace {

// Taking names off a list costs time by the square of its length.
constexpr int kLongestContexts = 4000;

struct DefinitionLine {
  Estring key, contexts, options, colour, rest;
  bool hasContexts = false;

  bool Has(char option) const { return Find(options, option) >= 0; }
  bool CaseSensitive() const { return !Has('i'); }
};

// ---- taking apart ----------------------------------------------------------

// Cuts text in front of the separator and moves what is behind it to tail.
bool CutAt(Estring& text, char separator, Estring& tail) {
  const int index = Find(text, separator);
  if (index < 0) return false;
  tail = Mid(text, index + 1);
  text = Left(text, index);
  return true;
}

// "key(contexts)".
void CutContexts(DefinitionLine& line) {
  line.key = Trim(line.key);
  if (!WildMatch("*(*)", line.key.Text())) return;
  line.hasContexts = true;
  CutAt(line.key, '(', line.contexts);
  line.contexts = DropRight(line.contexts, 1);
  line.key = RTrim(line.key);
}

bool Split(const char* text, DefinitionLine& line) {
  line.key = text;
  if (!CutAt(line.key, ':', line.colour)) return false;
  CutAt(line.colour, ':', line.rest);
  CutAt(line.key, '/', line.options);
  CutContexts(line);
  return Length(line.contexts) <= kLongestContexts;
}

wchar_t FirstCharacter(const Estring& utf8) { return Westring(utf8.Text())[0]; }

// Up to the next ":", where a backslash makes the character behind it literal.
Westring TakeField(const char*& text) {
  Estring field = Estring::Reserved(Length(Estring(text)));
  char* end = field.Text();
  for (; *text && *text != ':'; ++text) {
    if (*text == '\\' && *++text == 0) break;
    *end++ = *text;
  }
  *end = 0;
  if (*text) ++text;
  return Westring(field.Text());
}

// ---- items -----------------------------------------------------------------

uint8_t ColourOf(CSyntaxDefinition& definition, const DefinitionLine& line) {
  const Estring name = Trim(line.colour);
  const KeyedValue* named = definition.ColourClasses.Find(&name);
  return ParseColourText(named ? named->value.Text() : name.Text(), definition.DefaultColour);
}

// What all kinds of items have.
template <class Item>
std::unique_ptr<Item> MakeItem(CSyntaxDefinition& definition, const DefinitionLine& line) {
  auto item = std::make_unique<Item>();
  item->Colour = ColourOf(definition, line);
  item->Context.Set(line.hasContexts ? &line.contexts : nullptr);
  return item;
}

void SetBytes(ByteSet& set, const Estring& text) {
  for (const char* p = text.Text(); *p; ++p) set.set(static_cast<uint8_t>(*p));
}

void AddWordChars(CSyntaxDefinition& definition, const DefinitionLine& line) {
  SetBytes(definition.WordChars, line.colour);
}

void AddWords(CSyntaxDefinition& definition, const DefinitionLine& line) {
  auto list = MakeItem<SyntaxWordList>(definition, line);
  list->CaseSensitive = line.CaseSensitive();
  list->AddWords(Westring(line.rest.Text()));
  definition.WordLists.Append(list.release());
}

void AddSymbols(CSyntaxDefinition& definition, const DefinitionLine& line) {
  auto list = MakeItem<SyntaxSymbolList>(definition, line);
  SetBytes(list->Symbols, line.rest);
  definition.SymbolLists.Append(list.release());
}

void AddNumber(CSyntaxDefinition& definition, const DefinitionLine& line) {
  definition.Numbers.Append(MakeItem<SyntaxNumber>(definition, line).release());
}

void AddLineComment(CSyntaxDefinition& definition, const DefinitionLine& line) {
  auto comment = MakeItem<CSyntaxLineComment>(definition, line);
  comment->Name = "linecomment";
  comment->CaseSensitive = line.CaseSensitive();
  comment->SetStart(line.rest);
  definition.Elements.Append(comment.release());
}

void AddBlock(CSyntaxDefinition& definition, const DefinitionLine& line, const Estring& name, Estring start) {
  Estring end;
  CutAt(start, ':', end);
  auto block = MakeItem<CSyntaxBlock>(definition, line);
  block->Name = name;
  block->CaseSensitive = line.CaseSensitive();
  block->EndsAtEol = line.Has('l');
  block->Start = Westring(start.Text());
  block->End = Westring(end.Text());
  definition.Elements.Append(block.release());
}

void AddBlockComment(CSyntaxDefinition& definition, const DefinitionLine& line) {
  AddBlock(definition, line, "blockcomment", line.rest);
}

void AddState(CSyntaxDefinition& definition, const DefinitionLine& line) {
  Estring name = line.rest, borders;
  CutAt(name, ':', borders);
  AddBlock(definition, line, name, borders);
}

void AddString(CSyntaxDefinition& definition, const DefinitionLine& line) {
  Estring open = line.rest, close, escape;
  if (!CutAt(open, ':', close)) return;
  CutAt(close, ':', escape);
  if (open.IsEmpty() || close.IsEmpty()) return;
  auto string = MakeItem<CSyntaxLiteralString>(definition, line);
  string->Name = "string";
  string->Open = FirstCharacter(open);
  string->Close = FirstCharacter(close);
  string->Escape = escape.IsEmpty() ? definition.DefaultEscape : FirstCharacter(escape);
  definition.Elements.Append(string.release());
}

void SetEscape(CSyntaxDefinition& definition, const DefinitionLine& line) {
  definition.DefaultEscape = FirstCharacter(line.colour);
}

int ActionOf(const Westring& name) {
  if (name == L"push") return kSyntaxPush;
  return name == L"pop" ? kSyntaxPop : kSyntaxChange;
}

void AddStateChange(CSyntaxDefinition& definition, const DefinitionLine& line) {
  auto change = MakeItem<CSyntaxStateChange>(definition, line);
  const char* text = line.rest.Text();
  change->CaseSensitive = line.CaseSensitive();
  change->Trigger = TakeField(text);
  change->Action = ActionOf(TakeField(text));
  change->TargetName = ToUtf8(TakeField(text));
  definition.StateChanges.Append(change.release());
}

struct KeyRow {
  const char* key;
  void (*add)(CSyntaxDefinition& definition, const DefinitionLine& line);
};

constexpr KeyRow kKeys[] = {
    {"wordchars", AddWordChars},       {"words", AddWords},   {"symbols", AddSymbols},
    {"linecomment", AddLineComment},   {"string", AddString}, {"number", AddNumber},
    {"blockcomment", AddBlockComment}, {"escape", SetEscape}, {"state", AddState},
    {"statechange", AddStateChange},
};

int ItemCount(const CSyntaxDefinition& definition) {
  return definition.WordLists.Count() + definition.SymbolLists.Count() + definition.Numbers.Count() +
         definition.Elements.Count() + definition.StateChanges.Count();
}

}  // namespace

void AddDefinitionLine(CSyntaxDefinition& definition, const char* text) {
  DefinitionLine line;
  if (ItemCount(definition) >= kMostSyntaxItems || !Split(text, line)) return;
  for (const KeyRow& row : kKeys)
    if (line.key == row.key) row.add(definition, line);
}
