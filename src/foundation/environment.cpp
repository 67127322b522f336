// Environment variables; see environment.h.
#include "foundation/environment.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "foundation/paths.h"

namespace {

constexpr wchar_t kVariableNameCharacters[] =
    L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

}  // namespace

ProcessEnvironment Variables;

const char* Environment::Get(const char* name) {
  const Estring key(name);
  if (const KeyedValue* found = Find(&key)) return found->value.Text();
  return parent ? parent->Get(name) : nullptr;
}

void Environment::Set(const char* name, const char* value) {
  const Estring key(name);
  if (key.IsEmpty()) return;
  block.reset();
  KeyedValue* found = Find(&key);
  if (!value) {
    if (found) Remove();
  } else if (found) {
    found->value = Estring(value);  // a copy first: value may be found's own text
  } else {
    Insert(new KeyedValue{key, value});
  }
}

void Environment::CopyTo(Environment& other) {
  if (parent) parent->CopyTo(other);
  for (int64_t i = 0; const KeyedValue* item = Peek(i); ++i) other.Set(item->key.Text(), item->value.Text());
}

const char* Environment::Block() {
  Environment copy;
  CopyTo(copy);
  const Estring directory = ProgramDirectory();
  if (!directory.IsEmpty()) {
    // Without a PATH there is no colon: an empty part would mean the current directory.
    const char* path = copy.Get("PATH");
    const Estring search = path && *path ? Estring(path) + ":" + directory : directory;
    copy.Set("PATH", search.Text());
  }

  size_t size = 1;
  for (int64_t i = 0; const KeyedValue* item = copy.Peek(i); ++i)
    if (!item->value.IsEmpty()) size += strlen(item->key.Text()) + strlen(item->value.Text()) + 2;

  block.reset(new char[size]);
  char* next = block.get();
  for (int64_t i = 0; const KeyedValue* item = copy.Peek(i); ++i)
    if (!item->value.IsEmpty()) next += sprintf(next, "%s=%s", item->key.Text(), item->value.Text()) + 1;
  *next = 0;
  return block.get();
}

void ProcessEnvironment::Load() {
  Clear();
  for (char** entry = environ; entry && *entry; ++entry) {
    const char* equals = strchr(*entry, '=');
    if (!equals) continue;
    Set(Left(Estring(*entry), static_cast<int>(equals - *entry)).Text(), equals + 1);
  }
}

Estring HomeDirectory() {
  const char* home = getenv("HOME");
  if (home && *home) return Estring(home);
  const passwd* user = getpwuid(getuid());
  return Estring(user ? user->pw_dir : nullptr);
}

Westring ExpandEnvironment(const Westring& text) {
  Westring result;
  const wchar_t* p = text.Text();
  if (p[0] == L'~' && p[1] == L'/') {
    const char* home = Variables.Get("HOME");
    result = home && *home ? Westring(home) : Westring(HomeDirectory().Text());
    p++;
  }
  while (*p) {
    const int run = static_cast<int>(wcscspn(p, L"$"));
    result += Westring(p, run);
    p += run;
    if (!*p) break;
    const int length = static_cast<int>(wcsspn(p + 1, kVariableNameCharacters));
    if (length == 0) {
      result += *p++;
      continue;
    }
    const Estring name = ToUtf8(Westring(p + 1, length));
    p += 1 + length;
    if (const char* value = Variables.Get(name.Text())) {
      result += Westring(value);
      if (*p == L'$') p++;
    }
  }
  return result;
}
