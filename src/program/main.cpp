// The process; everything is in the shell.
#include "shell/program.h"

int main(int argc, char** argv) { return RunOrvane(argc, argv); }
