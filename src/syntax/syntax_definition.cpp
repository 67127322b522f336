// Reading the sections of a syntax file; see syntax_definition.h.
#include "syntax/syntax_definition.h"

#include <memory>
#include <string>
#include <string_view>

#include "config/values/colours.h"
#include "foundation/paths.h"
#include "foundation/wildcards.h"

namespace {

constexpr std::string_view kInclude = "!include";

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

bool IsInclude(const std::string& line) {
  return line.size() > kInclude.size() && IsBlank(line[kInclude.size()]) &&
         Compare(line.substr(0, kInclude.size()).c_str(), kInclude.data()) == 0;
}

// Patterns with ";" between, but not inside of a set or of alternatives.
bool MatchesList(const Westring& patterns, const wchar_t* name) {
  Westring pattern;
  int braces = 0, brackets = 0;
  for (const wchar_t* p = patterns.Text();; ++p) {
    if (*p == 0 || (*p == L';' && braces <= 0 && brackets <= 0)) {
      if (const Westring trimmed = Trim(pattern); !trimmed.IsEmpty() && WildMatchW(trimmed.Text(), name))
        return true;
      if (*p == 0) return false;
      pattern = L"";
      continue;
    }
    braces += (*p == L'{') - (*p == L'}');
    brackets += (*p == L'[') - (*p == L']');
    pattern += *p;
  }
}

// Where the lines of a load go.
class Sections {
 public:
  Sections(CSyntaxDefinition& target, const Westring& fileName)
      : definition(target), baseName(Mid(fileName, RFind(fileName, L'/') + 1)) {}

  void Take(const std::string& line) {
    if (line.starts_with('[')) {
      Enter(line);
    } else if (current == Kind::ColourClasses) {
      AddColourClass(line);
    } else if (current == Kind::Definition) {
      AddDefinitionLine(definition, line.c_str());
    }
  }
  bool AnyAccepted() const { return accepted; }

 private:
  enum class Kind { Other, ColourClasses, Definition };

  void Enter(const std::string& line) {
    current = Kind::Other;
    if (!line.ends_with(']')) return;
    const Estring head = Trim(Estring(line.substr(1, line.size() - 2).c_str()));
    const int colon = Find(head, ':');
    if (head == "Colour Classes") {
      current = Kind::ColourClasses;
    } else if (colon >= 0 && MatchesList(Westring(Mid(head, colon + 1).Text()), baseName.Text())) {
      current = Kind::Definition;
      accepted = true;
    }
  }

  // The first one of a name stays, so that a user's file may set its own ones
  // in front of including the system's.
  void AddColourClass(const std::string& line) {
    const Estring text(line.c_str());
    const int colon = Find(text, ':');
    if (colon < 0) return;
    auto named = std::make_unique<KeyedValue>();
    named->key = Trim(Left(text, colon));
    named->value = Trim(Mid(text, colon + 1));
    if (definition.ColourClasses.Insert(named.get()) == 0) named.release();
  }

  CSyntaxDefinition& definition;
  Westring baseName;
  Kind current = Kind::Other;
  bool accepted = false;
};

}  // namespace

CSyntaxDefinition::CSyntaxDefinition() { Clear(); }

void CSyntaxDefinition::Clear() {
  DefaultColour = Options::Colours[kColourFileViewer];
  WordChars.reset();
  for (int c = 0; c < 128; ++c)
    WordChars[c] = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  WordLists.Clear();
  SymbolLists.Clear();
  Numbers.Clear();
  StateChanges.Clear();
  Elements.Clear();
  DefaultEscape = 0;
  ColourClasses.Clear();
  IndexStarts();
}

void CSyntaxDefinition::IndexStarts() {
  if (Elements.Count() == indexedElements && StateChanges.Count() == indexedChanges) return;
  elementStarts.Build(Elements);
  changeStarts.Build(StateChanges);
  indexedElements = Elements.Count();
  indexedChanges = StateChanges.Count();
}

bool CSyntaxDefinition::Load(const Westring& iniPath, const Westring& fileName, const SyntaxComplaint& ask) {
  SyntaxReader reader(ask);
  if (!reader.Open(iniPath)) return false;
  Sections sections(*this, fileName);
  std::string line;
  while (reader.Next(line)) {
    if (IsInclude(line))
      reader.Include(Trim(Westring(line.c_str() + kInclude.size())));
    else
      sections.Take(line);
  }
  return sections.AnyAccepted();
}
