// What the tests of copying and moving look at.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "panels/panel.h"
#include "session/main_screen.h"

using Strings = std::vector<std::string>;

inline Strings NamesWhere(SessionSide side, bool (*holds)(const entry&)) {
  Strings names;
  for (int i = 0; i < Panels[side].count; ++i)
    if (holds(*Panels[side].entries[i])) names.push_back(ToUtf8(Panels[side].entries[i]->name).Text());
  return names;
}
inline Strings Tagged(SessionSide side) {
  return NamesWhere(side, [](const entry& e) { return e.tagged != 0; });
}
inline Strings Processed(SessionSide side) {
  return NamesWhere(side, [](const entry& e) { return e.processed != 0; });
}

inline void GoTo(Session& s, const std::string& name) {
  s.Keys("Home");
  for (int i = 0; s.Under(kLeftSide) != name && i < 100; ++i) s.Keys("Down");
  ASSERT_EQ(s.Under(kLeftSide), name);
}

inline void TagNames(Session& s, const Strings& names) {
  for (const std::string& name : names) {
    GoTo(s, name);
    s.Keys("Ins");
  }
}

// Seconds since the epoch; the file need not be one.
inline void SetTime(const std::string& path, long seconds) {
  const timespec times[2] = {{seconds, 0}, {seconds, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
}

inline bool Shows(const Session& s, const std::string& text) { return s.FindRow(text).has_value(); }

// A directory of another file system than the sandbox's, gone with the object.
class OtherFileSystem {
 public:
  explicit OtherFileSystem(const std::string& here) {
    char name[] = "/dev/shm/orvane.XXXXXX";
    if (!mkdtemp(name)) return;
    root = name;
    struct stat one, other;
    isOther = stat(root.c_str(), &one) == 0 && stat(here.c_str(), &other) == 0 && one.st_dev != other.st_dev;
  }
  ~OtherFileSystem() {
    std::error_code ignored;
    if (!root.empty()) std::filesystem::remove_all(root, ignored);
  }
  OtherFileSystem(const OtherFileSystem&) = delete;
  OtherFileSystem& operator=(const OtherFileSystem&) = delete;

  bool IsOther() const { return isOther; }
  std::string Path(const std::string& name = "") const { return name.empty() ? root : root + "/" + name; }
  bool Exists(const std::string& name) const { return std::filesystem::exists(Path(name)); }

 private:
  std::string root;
  bool isOther = false;
};
