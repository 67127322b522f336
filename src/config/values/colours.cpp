// The colour table, and colours written in words.
#include "config/values/colours.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

// Both lists are in the order of ColourName, which is also that of the settings
// file.
const char* const kColourNames[kColourCount] = {
    "Panel",        "Highlight",      "Tagged",         "Highlight-Tagged", "Directories",  "Directory High",
    "Command Line", "Messages",       "Errors",         "Input Fields",     "Screen Saver", "Menu",
    "Menu Bar",     "Menu Highlight", "Menu Quick Key", "Disabled Menu",    "File Viewer",  "Clock",
};

constexpr uint8_t kDefaultColours[kColourCount] = {0x1B, 0x30, 0x1E, 0x3E, 0x1A, 0x20, 0x07, 0x70, 0x4F,
                                                   0x30, 0x03, 0x3F, 0x30, 0x0F, 0x0E, 0x07, 0x1B, 0x30};

// Valid before any settings are read, as the console's first text is in one of
// them; a constant, so that no other file's initialisation comes too early.
uint8_t Options::Colours[kColourCount] = {
    kDefaultColours[kColourPanel],        kDefaultColours[kColourHighlight],
    kDefaultColours[kColourTagged],       kDefaultColours[kColourHighlightTagged],
    kDefaultColours[kColourDirectories],  kDefaultColours[kColourDirectoryHigh],
    kDefaultColours[kColourCommandLine],  kDefaultColours[kColourMessages],
    kDefaultColours[kColourErrors],       kDefaultColours[kColourInputFields],
    kDefaultColours[kColourScreenSaver],  kDefaultColours[kColourMenu],
    kDefaultColours[kColourMenuBar],      kDefaultColours[kColourMenuHighlight],
    kDefaultColours[kColourMenuQuickKey], kDefaultColours[kColourDisabledMenu],
    kDefaultColours[kColourFileViewer],   kDefaultColours[kColourClock],
};

namespace {

constexpr int kCountingLetters = 3;
constexpr int kForegroundShift = 0, kBackgroundShift = 4;
constexpr unsigned kBright = 8, kAnyForeground = 0x0F;

struct ColourWord {
  wchar_t letters[kCountingLetters + 1];
  unsigned value;
};

constexpr ColourWord kColourWords[] = {
    {L"bla", 0}, {L"blu", 1}, {L"gre", 2}, {L"cya", 3}, {L"red", 4}, {L"mag", 5}, {L"yel", 6}, {L"whi", 7},
};

// What a word counts by, in lower case; ASCII only, as no colour has other letters.
struct WordStart {
  wchar_t letters[kCountingLetters + 1] = {};

  WordStart(const wchar_t* word, size_t length) {
    for (size_t i = 0; i < std::min<size_t>(length, kCountingLetters); ++i)
      letters[i] = word[i] >= L'A' && word[i] <= L'Z' ? word[i] + (L'a' - L'A') : word[i];
  }
  bool Is(const wchar_t* text) const { return wcscmp(letters, text) == 0; }
};

// The attribute under change and where the next word goes.
class ColourText {
 public:
  explicit ColourText(uint8_t attribute) : value(attribute) {}

  void Apply(const WordStart& word) {
    if (word.Is(L"on"))
      SwitchToBackground();
    else if (word.Is(L"bri"))
      SetBright();
    else if (const auto* row = std::find_if(std::begin(kColourWords), std::end(kColourWords),
                                            [&](const ColourWord& w) { return word.Is(w.letters); });
             row != std::end(kColourWords))
      SetColour(row->value);
  }
  uint8_t Attribute() const { return static_cast<uint8_t>(value); }

 private:
  void SwitchToBackground() {
    shift = kBackgroundShift;
    value &= kAnyForeground;
  }

  void SetBright() {
    value |= kBright << shift;
    if (shift == kForegroundShift) brightAsked = true;
  }

  // The old foreground goes at the first colour, but not the "bright" that
  // this text has put in front of it.
  void SetColour(unsigned colour) {
    if (shift == kForegroundShift && !foregroundCleared) {
      value = (value & ~kAnyForeground) | (brightAsked ? kBright : 0);
      foregroundCleared = true;
    }
    value |= colour << shift;
  }

  unsigned value;
  int shift = kForegroundShift;
  bool foregroundCleared = false, brightAsked = false;
};

}  // namespace

uint8_t ApplyColourText(uint8_t attribute, const wchar_t* text) {
  constexpr const wchar_t* kBlanks = L" \t";
  ColourText colour(attribute);
  for (text += wcsspn(text, kBlanks); *text; text += wcsspn(text, kBlanks)) {
    const size_t length = wcscspn(text, kBlanks);
    colour.Apply(WordStart(text, length));
    text += length;
  }
  return colour.Attribute();
}
