// A directory of its own for a unit test, which links nothing but its room.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

class ScratchDirectory {
 public:
  ScratchDirectory() {
    char name[] = "/tmp/orvane.XXXXXX";
    if (!mkdtemp(name)) std::abort();
    root = name;
  }
  ~ScratchDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(root, ignored);
  }
  ScratchDirectory(const ScratchDirectory&) = delete;
  ScratchDirectory& operator=(const ScratchDirectory&) = delete;

  std::string Path(const std::string& name = "") const { return name.empty() ? root : root + "/" + name; }
  void MakeDirectory(const std::string& name) { std::filesystem::create_directories(Path(name)); }
  void Write(const std::string& name, const std::string& content) {
    std::ofstream(Path(name), std::ios::binary) << content;
  }
  bool Exists(const std::string& name) const {
    return std::filesystem::symlink_status(Path(name)).type() != std::filesystem::file_type::not_found;
  }
  std::string Content(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

 private:
  std::string root;
};
