// All options as they are at one moment, for dialogs that can be cancelled.
#pragma once

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

#include "config/values/colours.h"
#include "config/values/options.h"

// Takes the values at its making. Not their texts in the settings file, as not
// every value is read back from there as it was.
class OptionSnapshot {
 public:
  using ColourBytes = std::array<uint8_t, kColourCount>;
  using Value = std::variant<std::monostate, Estring, Westring, int, bool, char, ColourBytes>;

  OptionSnapshot();

  // Gives every option with a store its value back.
  void Restore() const;

 private:
  std::vector<Value> values;  // one for each row of the option table
};
