// A program under measurement, in a process of its own.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

class Process {
 public:
  // Starts the program in a directory, with its home there too.
  Process(const std::vector<std::string>& command, const std::string& directory, const std::string& home);
  ~Process();  // ends it, and returns when it is gone
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  // How often its threads have gone to sleep so far.
  long Sleeps() const;
  double ResidentBytes() const;  // of memory

 private:
  pid_t pid;
};

// The first number that a program prints; ends the process if it prints none.
double NumberPrintedBy(const std::string& command);
