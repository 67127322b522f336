// Looking at cells in tests.
#pragma once

#include "console/cell.h"

// The character by value: the field of a packed cell may stand at any address,
// and the test library binds references to what it compares.
inline int32_t CharacterOf(const Cell& cell) { return cell.character; }
