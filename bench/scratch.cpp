// A directory of the benchmarks' own.
#include "scratch.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

std::string UsualPlace() {
  const char* const place = getenv("TMPDIR");
  return place && *place ? place : "/tmp";
}

}  // namespace

Scratch::Scratch() : Scratch(UsualPlace()) {}

Scratch::Scratch(const std::string& place) : root(place + "/orvane-bench-XXXXXX") {
  if (mkdtemp(root.data())) return;
  perror(root.c_str());
  exit(2);
}

Scratch::~Scratch() {
  std::error_code ignored;
  std::filesystem::remove_all(root, ignored);
}

void Scratch::Write(const std::string& name, const std::string& content) const {
  const std::filesystem::path path = Path(name);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path) << content;
}

void Scratch::MakeDirectory(const std::string& name) const {
  std::filesystem::create_directories(Path(name));
}

void Scratch::MakeEmptyFile(const std::string& name) const {
  const int file = open(Path(name).c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
  if (file < 0) {
    perror(Path(name).c_str());
    exit(2);
  }
  close(file);
}
