// Keys as a person says them; see the header.
#include "support/key_script.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "console/key_codes.h"

namespace {

struct NamedKey {
  const char* name;
  uint32_t keyval, keycode;
};

constexpr NamedKey kNamedKeys[] = {
    {"Esc", 0xFF1B, 9},        {"Enter", 0xFF0D, 36},     {"Tab", 0xFF09, 23},      {"Backspace", 0xFF08, 22},
    {"Space", ' ', 65},        {"Home", 0xFF50, 110},     {"Left", 0xFF51, 113},    {"Up", 0xFF52, 111},
    {"Right", 0xFF53, 114},    {"Down", 0xFF54, 116},     {"PgUp", 0xFF55, 112},    {"PgDn", 0xFF56, 117},
    {"End", 0xFF57, 115},      {"Ins", 0xFF63, 118},      {"Del", 0xFFFF, 119},     {"Break", 0xFF6B, 127},
    {"Grey+", 0xFFAB, 86},     {"Grey-", 0xFFAD, 82},     {"Grey*", 0xFFAA, 63},    {"PadEnter", 0xFF8D, 104},
    {"PadHome", 0xFF95, 79},   {"PadLeft", 0xFF96, 83},   {"PadUp", 0xFF97, 80},    {"PadRight", 0xFF98, 85},
    {"PadDown", 0xFF99, 88},   {"PadPgUp", 0xFF9A, 81},   {"PadPgDn", 0xFF9B, 89},  {"PadEnd", 0xFF9C, 87},
    {"PadIns", 0xFF9E, 90},    {"PadDel", 0xFF9F, 91},    {"Pad0", 0xFFB0, 90},     {"Pad1", 0xFFB1, 87},
    {"Pad2", 0xFFB2, 88},      {"Pad3", 0xFFB3, 89},      {"Pad4", 0xFFB4, 83},     {"Pad5", 0xFFB5, 84},
    {"Pad6", 0xFFB6, 85},      {"Pad7", 0xFFB7, 79},      {"Pad8", 0xFFB8, 80},     {"Pad9", 0xFFB9, 81},
    {"Pad.", 0xFFAE, 91},      {"F1", 0xFFBE, 67},        {"F2", 0xFFBF, 68},       {"F3", 0xFFC0, 69},
    {"F4", 0xFFC1, 70},        {"F5", 0xFFC2, 71},        {"F6", 0xFFC3, 72},       {"F7", 0xFFC4, 73},
    {"F8", 0xFFC5, 74},        {"F9", 0xFFC6, 75},        {"F10", 0xFFC7, 76},      {"F11", 0xFFC8, 95},
    {"F12", 0xFFC9, 96},
};
constexpr uint32_t kTabSymbol = 0xFF09, kShiftTabSymbol = 0xFE20;

struct NamedModifier {
  const char* name;
  uint32_t bit;
};
constexpr NamedModifier kNamedModifiers[] = {{"Ctrl", kModCtrl}, {"Alt", kModAlt}, {"Shift", kModShift}};

// The rows of the keyboard: the plain and the shifted characters of the keys
// from a hardware key code on.
struct KeyboardRow {
  uint32_t first;
  const char* plain;
  const char* shifted;
};
constexpr KeyboardRow kKeyboard[] = {
    {10, "1234567890-=", "!@#$%^&*()_+"},
    {24, "qwertyuiop[]", "QWERTYUIOP{}"},
    {38, "asdfghjkl;'`", "ASDFGHJKL:\"~"},
    {51, "\\zxcvbnm,./", "|ZXCVBNM<>?"},
    {65, " ", " "},
};

uint32_t KeycodeOf(char ch) {
  for (const KeyboardRow& row : kKeyboard) {
    for (const char* keys : {row.plain, row.shifted}) {
      if (const char* found = std::strchr(keys, ch)) return row.first + static_cast<uint32_t>(found - keys);
    }
  }
  return 0;
}

[[noreturn]] void Refuse(const std::string& script, const std::string& word) {
  std::fprintf(stderr, "No such key: \"%s\" in the script \"%s\"\n", word.c_str(), script.c_str());
  std::abort();
}

const NamedKey* FindNamedKey(const std::string& name) {
  for (const NamedKey& key : kNamedKeys) {
    if (name == key.name) return &key;
  }
  return nullptr;
}

// Cuts "Ctrl-" and its like off the front of word and returns their bits.
uint32_t TakeModifiers(std::string& word) {
  uint32_t bits = 0;
  for (bool again = true; again;) {
    again = false;
    for (const NamedModifier& modifier : kNamedModifiers) {
      const std::string prefix = std::string(modifier.name) + "-";
      if (word.size() > prefix.size() && word.compare(0, prefix.size(), prefix) == 0) {
        bits |= modifier.bit;
        word.erase(0, prefix.size());
        again = true;
      }
    }
  }
  return bits;
}

// +Ctrl or -Ctrl; false if the word is nothing of the kind.
bool ParseHold(const std::string& word, KeyStroke& stroke) {
  if (word.size() < 2 || (word[0] != '+' && word[0] != '-')) return false;
  for (const NamedModifier& modifier : kNamedModifiers) {
    if (word.substr(1) != modifier.name) continue;
    stroke.kind = word[0] == '+' ? KeyStroke::kHold : KeyStroke::kRelease;
    stroke.modifiers = modifier.bit;
    return true;
  }
  return false;
}

KeyStroke Typed(char32_t ch) {
  KeyStroke stroke;
  stroke.kind = KeyStroke::kText;
  stroke.text = ch;
  return stroke;
}

// The characters of UTF-8 text, which the test's author wrote: trusted.
void AppendTyped(const std::string& utf8, std::vector<KeyStroke>& strokes) {
  for (size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i++]);
    const int more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    char32_t ch = more ? lead & (0x3F >> more) : lead;
    for (int n = 0; n < more && i < utf8.size(); ++n) ch = ch << 6 | (static_cast<unsigned char>(utf8[i++]) & 0x3F);
    strokes.push_back(Typed(ch));
  }
}

KeyStroke ParseKey(const std::string& script, const std::string& word) {
  KeyStroke stroke;
  std::string name = word;
  stroke.modifiers = TakeModifiers(name);
  if (const NamedKey* key = FindNamedKey(name)) {
    stroke.keyval = key->keyval;
    stroke.keycode = key->keycode;
    if (key->keyval == kTabSymbol && stroke.modifiers & kModShift) stroke.keyval = kShiftTabSymbol;
    return stroke;
  }
  if (name.size() != 1 || KeycodeOf(name[0]) == 0) Refuse(script, word);
  if (stroke.modifiers == 0) return Typed(static_cast<unsigned char>(name[0]));
  stroke.keyval = name[0] >= 'A' && name[0] <= 'Z' ? name[0] + 32u : static_cast<unsigned char>(name[0]);
  stroke.keycode = KeycodeOf(name[0]);
  return stroke;
}

// The text of a quoted word that starts at position i; leaves i behind it.
std::string TakeQuoted(const std::string& script, size_t& i) {
  std::string text;
  for (++i; i < script.size(); ++i) {
    if (script[i] == '\'') {
      if (i + 1 >= script.size() || script[i + 1] != '\'') {
        ++i;
        return text;
      }
      ++i;
    }
    text += script[i];
  }
  Refuse(script, "' without its end");
}

}  // namespace

std::vector<KeyStroke> ParseKeys(const std::string& script) {
  std::vector<KeyStroke> strokes;
  for (size_t i = 0; i < script.size();) {
    if (script[i] == ' ' || script[i] == '\n') {
      ++i;
    } else if (script[i] == '\'') {
      AppendTyped(TakeQuoted(script, i), strokes);
    } else {
      const size_t end = std::min(script.find_first_of(" \n", i), script.size());
      const std::string word = script.substr(i, end - i);
      KeyStroke stroke;
      strokes.push_back(ParseHold(word, stroke) ? stroke : ParseKey(script, word));
      i = end;
    }
  }
  return strokes;
}
