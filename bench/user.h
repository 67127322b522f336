// A person at the two panels, in this process: the commands are the program's
// own, and their keys come from the X server whenever they wait for one.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "bench_console.h"
#include "panels/panel.h"

class Watcher;

// A command on the left panel, and the keys that answer what it asks.
struct UserCommand {
  void (*run)();
  const char* keys;  // letters, and a line end for Enter
};

extern const UserCommand kCopyCommand, kMoveCommand, kDeleteCommand, kCountCommand;

class User {
 public:
  User();
  ~User();
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  // Both directories are read, and the cursor is on that name in the left one.
  void GoTo(const std::string& left, const std::string& name, const std::string& right);

  // Seconds until the command is over, with both panels read again. Ends the
  // process where the command asks for more than it has keys for.
  double Time(const UserCommand& command);
  // The same from Escape on, which is pressed that many seconds after the start;
  // nothing where the command was over before.
  std::optional<double> StopTime(const UserCommand& command, double delay);

 private:
  static void TypeNext();

  const std::unique_ptr<Watcher> screen;
  BenchConsole console;
  TPanel records[2];
};
