// The values of options as the settings file writes them.
#pragma once

#include "config/values/options.h"
#include "foundation/strings.h"

// Both need a row with a store. Text that the type can't read gives the value
// that stands for "anything else"; an empty character leaves the old one.
void SetOption(const OptionRow& row, const char* text);
Estring OptionText(const OptionRow& row);
