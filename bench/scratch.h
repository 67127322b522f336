// A directory of the benchmarks' own that goes with its object.
#pragma once

#include <string>

class Scratch {
 public:
  Scratch();                                   // in $TMPDIR, else /tmp; ends the process where that fails
  explicit Scratch(const std::string& place);  // in that directory
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  std::string Path(const std::string& name = "") const { return name.empty() ? root : root + "/" + name; }
  // Makes the directories above it.
  void Write(const std::string& name, const std::string& content) const;
  void MakeDirectory(const std::string& name) const;
  void MakeEmptyFile(const std::string& name) const;  // in a directory that is there

 private:
  std::string root;
};
