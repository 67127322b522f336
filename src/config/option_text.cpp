// The values of options as text, type by type; see option_text.h.
#include "config/option_text.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <span>

#include "config/values/colours.h"
#include "panels/sort_order.h"

namespace {

int Number(const char* text, char** end = nullptr) {
  return static_cast<int>(std::clamp<long>(strtol(text, end, 10), INT_MIN, INT_MAX));
}

// The index of text in names, without regard to case, or fallback.
int NameIndex(std::span<const char* const> names, const char* text, int fallback) {
  for (size_t i = 0; i < names.size(); ++i)
    if (Compare(names[i], text) == 0) return static_cast<int>(i);
  return fallback;
}

Estring NameAt(std::span<const char* const> names, int index, int fallback) {
  const bool known = index >= 0 && index < static_cast<int>(names.size());
  return names[static_cast<size_t>(known ? index : fallback)];
}

constexpr const char* kStyleNames[] = {"brief", "full", "wide", "briefwide", "unix", "tree"};
constexpr const char* kTypeNames[] = {"files", "info"};
constexpr int kByName = 0, kFullStyle = 1, kFilesType = 0;

// A tree is not read back: the panel starts as a full listing.
constexpr std::span<const char* const> kStylesRead(kStyleNames, 5);

void SetBytes(void* store, const char* text) { *static_cast<Estring*>(store) = text; }
Estring BytesText(const void* store) { return *static_cast<const Estring*>(store); }

void SetWide(void* store, const char* text) { *static_cast<Westring*>(store) = Westring(text); }
Estring WideText(const void* store) { return ToUtf8(*static_cast<const Westring*>(store)); }

void SetInteger(void* store, const char* text) { *static_cast<int*>(store) = Number(text); }
Estring IntegerText(const void* store) { return Estring::FromLong(*static_cast<const int*>(store)); }

void SetOnOff(void* store, const char* text) { *static_cast<bool*>(store) = Compare(text, "on") == 0; }
Estring OnOffText(const void* store) { return *static_cast<const bool*>(store) ? "on" : "off"; }

// A macro character of zero would end every command.
void SetCharacter(void* store, const char* text) {
  if (*text) *static_cast<char*>(store) = *text;
}
Estring CharacterText(const void* store) { return Estring::Replicate(*static_cast<const char*>(store), 1); }

void SetTimeMode(void* store, const char* text) {
  *static_cast<int*>(store) = strcmp(text, "24") == 0 ? 24 : 12;
}

void SetSort(void* store, const char* text) {
  *static_cast<int*>(store) = NameIndex(kSortNames, text, kByName);
}
Estring SortText(const void* store) { return NameAt(kSortNames, *static_cast<const int*>(store), kByName); }

void SetStyle(void* store, const char* text) {
  *static_cast<int*>(store) = NameIndex(kStylesRead, text, kFullStyle);
}
Estring StyleText(const void* store) {
  return NameAt(kStyleNames, *static_cast<const int*>(store), kFullStyle);
}

void SetType(void* store, const char* text) {
  *static_cast<int*>(store) = NameIndex(kTypeNames, text, kFilesType);
}
Estring TypeText(const void* store) {
  return NameAt(kTypeNames, *static_cast<const int*>(store), kFilesType);
}

// A shorter list leaves the tail as it was.
void SetColours(void* store, const char* text) {
  auto* colours = static_cast<uint8_t*>(store);
  for (int i = 0; i < kColourCount; ++i) {
    char* end = nullptr;
    const int value = Number(text, &end);
    if (end == text) return;
    colours[i] = static_cast<uint8_t>(value);
    text = end;
  }
}
Estring ColoursText(const void* store) {
  const auto* colours = static_cast<const uint8_t*>(store);
  Estring text;
  for (int i = 0; i < kColourCount; ++i) text += Estring::Format("%d ", colours[i]);
  return text;
}

struct TypeRow {
  void (*set)(void* store, const char* text);
  Estring (*text)(const void* store);
};

// In the order of OptionType.
constexpr TypeRow kTypes[] = {
    {SetBytes, BytesText},     {SetWide, WideText},           {SetInteger, IntegerText},
    {SetOnOff, OnOffText},     {SetCharacter, CharacterText}, {SetTimeMode, IntegerText},
    {SetSort, SortText},       {SetStyle, StyleText},         {SetType, TypeText},
    {SetColours, ColoursText},
};

const TypeRow& TypeOf(const OptionRow& row) { return kTypes[static_cast<int>(row.type)]; }

}  // namespace

void SetOption(const OptionRow& row, const char* text) { TypeOf(row).set(row.store, text); }
Estring OptionText(const OptionRow& row) { return TypeOf(row).text(row.store); }
