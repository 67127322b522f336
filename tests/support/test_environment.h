// The environment of a program under test.
#pragma once

#include <string>

#include "support/sandbox.h"

// HOME, TZ, LANG and the like for a program in this sandbox, and nothing else
// of what the tests were started with. The sandbox becomes the current
// directory.
void EnterTestEnvironment(const Sandbox& files, const std::string& display);
