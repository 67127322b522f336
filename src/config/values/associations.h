// Pairs of a test expression and a text, in the order of the settings file.
#pragma once

#include "foundation/collections.h"
#include "foundation/strings.h"

struct Association {
  Westring test;   // a filter expression
  Westring value;  // a command template, or a colour
};

class AssociationSet : public TObjectStore<Association> {
 public:
  void Add(const Westring& test, const Westring& value) { Append(new Association{test, value}); }
};

extern AssociationSet Associations;           // what Enter runs
extern AssociationSet ViewerAssociations;     // F3
extern AssociationSet EditorAssociations;     // F4
extern AssociationSet FileColours;            // [Colours]
extern AssociationSet DirectoryColours;       // [Directory Colours]
