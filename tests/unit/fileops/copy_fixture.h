// A scratch directory and a command, for copies that ask nothing.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

#include "fileops/copy_file.h"
#include "support/as_nobody.h"
#include "support/faults.h"
#include "unit/scratch_directory.h"

class CopyFixture : public testing::Test {
 protected:
  CopyFixture() { umask(022); }

  Westring Wide(const std::string& name) const { return Westring(files.Path(name).c_str()); }

  int Copy(const std::string& from = "source", const std::string& to = "target", bool force = false,
           int flags = 0) {
    return CopyFile(operation, Wide(from), Wide(to), force, false, nullptr, flags);
  }
  int Replace(const std::string& from = "source", const std::string& to = "target") {
    return Copy(from, to, true);
  }
  int Move(const std::string& from = "source", const std::string& to = "target") {
    return CopyFile(operation, Wide(from), Wide(to), false, true, nullptr, 0);
  }

  // All zeros where there is nothing.
  struct stat Status(const std::string& name) const {
    struct stat status = {};
    lstat(files.Path(name).c_str(), &status);
    return status;
  }
  mode_t Mode(const std::string& name) const { return Status(name).st_mode & 07777; }

  // Bytes that differ from block to block.
  static std::string Bytes(size_t n) {
    std::string bytes(n, 0);
    uint32_t value = 1;
    char* const data = bytes.data();
    for (size_t i = 0; i < n; ++i) data[i] = static_cast<char>((value = value * 1664525 + 1013904223) >> 24);
    return bytes;
  }

  // In one piece, for files of many megabytes.
  std::string Content(const std::string& name) const {
    std::string content(static_cast<size_t>(Status(name).st_size), 0);
    std::ifstream file(files.Path(name), std::ios::binary);
    file.read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
  }

  FaultPlan About(const std::string& name, int at, int code) const {
    return {files.Path(name), at, 1, code, {}};
  }
  FaultPlan Before(const std::string& name, int at, std::function<void()> act) const {
    return {files.Path(name), at, 1, 0, std::move(act)};
  }

  ScratchDirectory files;
  FileOperation operation;
};
