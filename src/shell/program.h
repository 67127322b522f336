// The whole life of the program.
#pragma once

// Returns what main returns: 0, or 1 after a usage error or without a display.
int RunOrvane(int argc, char** argv);
