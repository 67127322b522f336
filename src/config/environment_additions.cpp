// The settings file's variables; see environment_additions.h.
#include "config/environment_additions.h"

#include <cstring>

#include "foundation/environment.h"

EnvironmentAdditionStore EnvironmentAdditions;

namespace {

Estring Expanded(const Estring& text) { return ToUtf8(ExpandEnvironment(Westring(text.Text()))); }

EnvironmentAddition* FindAddition(const Estring& name) {
  for (int i = 0; EnvironmentAddition* addition = EnvironmentAdditions.Peek(i); ++i)
    if (addition->name == name) return addition;
  return nullptr;
}

bool IsSame(const Estring& a, const Estring& b) { return strcmp(a.Text(), b.Text()) == 0; }

// Whether a line of the file can hold the value, and is not expanded once more.
// The value of another variable may have anything in it.
bool ReadsBack(const Estring& value) {
  return !strpbrk(value.Text(), "\r\n") && IsSame(value, Trim(value)) && IsSame(value, Expanded(value));
}

}  // namespace

void AddToEnvironment(const Estring& name, const Estring& text) {
  if (name.IsEmpty()) return;
  EnvironmentAddition* addition = FindAddition(name);
  if (!addition) {
    const char* before = Variables.Get(name.Text());
    addition = new EnvironmentAddition{name, "", "", before, before != nullptr};
    EnvironmentAdditions.Append(addition);
  }
  addition->text = text;
  addition->value = Expanded(text);
  Variables.Set(name.Text(), addition->value.Text());
}

void RemoveEnvironmentAdditions() {
  for (int i = 0; const EnvironmentAddition* addition = EnvironmentAdditions.Peek(i); ++i) {
    const char* now = Variables.Get(addition->name.Text());
    if (!now || strcmp(now, addition->value.Text()) != 0) continue;
    Variables.Set(addition->name.Text(), addition->hadBefore ? addition->before.Text() : nullptr);
  }
  EnvironmentAdditions.Clear();
}

Estring WrittenValue(const EnvironmentAddition& addition) {
  return ReadsBack(addition.value) ? addition.value : addition.text;
}
