// A console in this process, on which the rooms above it may draw.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "console/console.h"
#include "console/toolkit.h"

class BenchConsole {
 public:
  // Ends the process if there is no display.
  BenchConsole() : toolkit(argc, argv) {
    if (!toolkit.IsReady()) {
      fputs("This benchmark needs a display.\n", stderr);
      exit(2);
    }
    Console = new CConsole;
    Console->GetSize(ScreenColumns, ScreenRows);
  }
  ~BenchConsole() {
    delete Console;
    Console = nullptr;
  }
  BenchConsole(const BenchConsole&) = delete;
  BenchConsole& operator=(const BenchConsole&) = delete;

 private:
  char name[6] = "bench";
  char* arguments[2] = {name, nullptr};
  int argc = 1;
  char** argv = arguments;
  Toolkit toolkit;
};
