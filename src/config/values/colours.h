// The colours that the user may set: one attribute byte each.
#pragma once

#include <cstdint>

enum ColourName {
  kColourPanel,
  kColourHighlight,
  kColourTagged,
  kColourHighlightTagged,
  kColourDirectories,
  kColourDirectoryHigh,
  kColourCommandLine,
  kColourMessages,
  kColourErrors,
  kColourInputFields,
  kColourScreenSaver,
  kColourMenu,
  kColourMenuBar,
  kColourMenuHighlight,
  kColourMenuQuickKey,
  kColourDisabledMenu,
  kColourFileViewer,
  kColourClock,
  kColourCount,
};

namespace Options {
extern uint8_t Colours[kColourCount];
}
extern const uint8_t kDefaultColours[kColourCount];
extern const char* const kColourNames[kColourCount];  // "Panel" and so on

// A colour in words ("bright yellow on blue") applied on top of an attribute.
// Words count by their first three letters; unknown ones are passed over.
uint8_t ApplyColourText(uint8_t attribute, const wchar_t* text);
