// The variables that the settings file adds to the process's own.
#pragma once

#include "foundation/collections.h"
#include "foundation/strings.h"

struct EnvironmentAddition {
  Estring name;
  Estring text;   // as it stood in the file
  Estring value;  // text expanded, which the variable got
  Estring before;
  bool hadBefore;  // there was a variable, with the value before
};

// In the order of the file, each name once.
class EnvironmentAdditionStore : public TObjectStore<EnvironmentAddition> {};
extern EnvironmentAdditionStore EnvironmentAdditions;

// Expands text and sets name in Variables to the result.
void AddToEnvironment(const Estring& name, const Estring& text);

// Forgets the additions. A variable that still has its added value gets back
// the one from before; one that the user has set since keeps it.
void RemoveEnvironmentAdditions();

// What to write for an addition: its value, or where that would not read back
// the same, the text that it came from.
Estring WrittenValue(const EnvironmentAddition& addition);
