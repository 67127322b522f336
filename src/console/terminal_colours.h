// The colours in which a terminal writes: SGR parameters become an attribute.
#pragma once

#include <cstdint>

class TerminalColours {
 public:
  explicit TerminalColours(uint8_t defaultAttribute);

  void Apply(int parameter);  // one SGR parameter; unknown ones do nothing
  uint8_t Attribute() const { return attribute; }

 private:
  void Reset();
  void Build();

  uint8_t defaultAttribute;
  uint8_t attribute;
  int foreground, background;  // palette indices
  bool inverse = false, bold = false, underline = false;
};
