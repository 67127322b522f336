// What a real shell makes of a command line: the arguments that a program gets.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "foundation/strings.h"
#include "unit/scratch_directory.h"

// Those of this machine.
inline std::vector<const char*> Shells() {
  std::vector<const char*> shells;
  for (const char* shell : {"/bin/sh", "/bin/bash", "/bin/dash", "/bin/zsh", "/bin/ksh", "/bin/mksh"})
    if (access(shell, X_OK) == 0) shells.push_back(shell);
  return shells;
}

// A program that prints its arguments, each with a zero behind it, and stands in a
// directory of its own with some files that patterns could find.
class ArgumentPrinter {
 public:
  explicit ArgumentPrinter(const std::string& programName = "print") : name(programName) {
    files.MakeDirectory("bin");
    files.Write("bin/" + name, "#!/bin/sh\nfor argument; do printf '%s\\0' \"$argument\"; done\n");
    chmod(files.Path("bin/" + name).c_str(), 0755);
    files.MakeDirectory("work");
    for (const char* file : {"work/a", "work/b", "work/ab", "work/1"}) files.Write(file, "");
  }

  // The arguments are the shell's text behind the program's name.
  std::vector<std::string> Run(const char* shell, const std::wstring& arguments) const {
    return Split(Output(shell, files.Path("bin/" + name) + " " + Bytes(arguments)));
  }

  // The line names the program, which is found by way of PATH.
  std::vector<std::string> RunByName(const char* shell, const std::wstring& line) const {
    return Split(Output(shell, Bytes(line)));
  }

 private:
  static std::string Bytes(const std::wstring& text) { return ToUtf8(text.c_str()).Text(); }

  // By a file, so that the shell may read a line of any length.
  std::string Output(const char* shell, const std::string& command) const {
    const std::string output = files.Path("output"), path = files.Path("bin") + ":/usr/bin:/bin";
    const pid_t child = fork();
    if (child == 0) {
      const int fd = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      if (fd < 0 || dup2(fd, STDOUT_FILENO) < 0 || chdir(files.Path("work").c_str()) != 0) _exit(126);
      setenv("PATH", path.c_str(), 1);
      execl(shell, shell, "-c", command.c_str(), nullptr);
      _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return files.Content("output");
  }

  static std::vector<std::string> Split(const std::string& output) {
    std::vector<std::string> parts;
    for (size_t from = 0, end; (end = output.find('\0', from)) != std::string::npos; from = end + 1)
      parts.push_back(output.substr(from, end - from));
    return parts;
  }

  std::string name;
  ScratchDirectory files;
};
