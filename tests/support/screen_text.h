// A run of characters read from the screen, with the questions that tests ask.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

// UTF-8.
class ScreenText {
 public:
  ScreenText() = default;
  explicit ScreenText(std::string utf8) : text(std::move(utf8)) {}

  bool StartsWith(std::string_view head) const { return text.starts_with(head); }
  bool EndsWith(std::string_view tail) const { return text.ends_with(tail); }  // blanks at the end count
  bool Contains(std::string_view middle) const { return text.find(middle) != std::string::npos; }
  std::string Trimmed() const;  // without the blanks at both ends
  const std::string& String() const { return text; }

  friend bool operator==(const ScreenText& a, std::string_view b) { return a.text == b; }
  friend std::ostream& operator<<(std::ostream& out, const ScreenText& a) { return out << '"' << a.text << '"'; }

 private:
  std::string text;
};
