// Numbers for fields of a limited width, with the locale's separators.
#pragma once

#include <cstdint>

#include "foundation/strings.h"

// For a field of width columns: whole where it fits, else in K, M, G or T. A value
// just at a unit's limit, or more T than fit, is longer than the field.
Westring FormatSize(uint64_t value, int width);

// For counts: at most 11 digits, and only K and M.
Westring FormatCount(uint64_t value, int width);

// Bytes for each second, in the form of a count.
inline Westring FormatRate(uint64_t value, int width) { return FormatCount(value, width); }
