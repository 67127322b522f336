// A run of characters read from the screen; see the header.
#include "support/screen_text.h"

std::string ScreenText::Trimmed() const {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}
