// The arithmetic of windows.
#include "dialogs/win_geometry.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <cwchar>

namespace {

constexpr int kYellow = 14, kWhite = 15, kLightGrey = 7, kDarkGrey = 8;

}  // namespace

CellRect PlaceWindow(int left, int top, int right, int bottom, int screenColumns, int screenRows) {
  CellRect window{left, top, right, bottom};
  if (left < 0) {
    window.left = std::max((screenColumns - right) / 2, 0);
    window.right = window.left + right - 1;
  }
  if (top < 0) {
    window.top = std::max((bottom - screenRows) / top, 0);
    window.bottom = window.top + bottom - 1;
  }
  window.right = std::max(window.right, window.left);
  window.bottom = std::max(window.bottom, window.top);
  return window;
}

CellRect WithShadow(const CellRect& window) {
  return {window.left, window.top, window.right + 2, window.bottom + 1};
}

bool HasRoomForShadow(const CellRect& window, int screenColumns, int screenRows) {
  const CellRect whole = WithShadow(window);
  return whole.bottom < screenRows && whole.right < screenColumns;
}

uint8_t ShadowAttribute(uint8_t attribute) {
  const int foreground = Foreground(attribute);
  return MakeAttribute(foreground > 7 ? foreground - 8 : kDarkGrey, 0);
}

uint8_t HighlightAttribute(uint8_t attribute) {
  const int foreground = Foreground(attribute), background = Background(attribute);
  if (background == kLightGrey) return MakeAttribute(foreground ^ 1, background);
  return MakeAttribute(foreground == kYellow ? kWhite : kYellow, background);
}

int FindLetter(const char* bytes, char letter) {
  const auto byte = static_cast<unsigned char>(letter);
  if (byte == 0) return -1;
  const char* found = strchr(bytes, toupper(byte));
  if (found == nullptr) found = strchr(bytes, tolower(byte));
  return found == nullptr ? -1 : static_cast<int>(found - bytes);
}

int WrappedLength(const wchar_t* text, int width) {
  width = std::max(width, 0);
  const int taken = static_cast<int>(wcsnlen(text, static_cast<size_t>(width) + 1));
  if (taken <= width || text[taken] == 0) return taken;
  int blank = taken - 1;
  while (blank >= 0 && text[blank] != L' ') --blank;
  return blank >= 0 ? blank : width;
}
