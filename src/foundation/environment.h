// Sets of environment variables with inheritance, and the process's own set.
#pragma once

#include <memory>

#include "foundation/collections.h"

// Names compare without regard to case.
class Environment : public KeyedValueSet {
 public:
  explicit Environment(Environment* parentSet = nullptr) : parent(parentSet) {}

  // The value, here or in a parent; null if nowhere. Valid until the next Set.
  const char* Get(const char* name);
  void Set(const char* name, const char* value);  // a null value removes the name
  void CopyTo(Environment& other);                // the parent's variables first, then its own
  // "NAME=value" strings, each zero-ended, then one more zero; PATH has the
  // program's own directory at its end; empty values are left out. Owned here,
  // valid until the next Set.
  const char* Block();

 private:
  std::unique_ptr<char[]> block;
  Environment* parent;
};

// The variables of this process; children start from them.
class ProcessEnvironment : public Environment {
 public:
  ProcessEnvironment() { Load(); }
  void Load();  // forgets all and takes environ anew
};

extern ProcessEnvironment Variables;

// $HOME, or without one the home of the user's account; empty if that has none.
Estring HomeDirectory();

// A leading "~/" becomes $HOME and "/"; each "$name" its value, with a closing
// "$" where there is a value. An unknown name vanishes, a lone "$" stays.
Westring ExpandEnvironment(const Westring& text);
