// The superuser may do everything; as somebody else he may not. Root stays root
// in reserve, and is it again when the object goes.
#pragma once

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <filesystem>
#include <string>

class AsNobody {
 public:
  // Nobody owns root and all below it.
  explicit AsNobody(const std::string& root) {
    if (geteuid() != 0) return;
    for (const auto& item : std::filesystem::recursive_directory_iterator(root))
      EXPECT_EQ(lchown(item.path().c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(chown(root.c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(setgroups(0, nullptr), 0);
    EXPECT_EQ(setresgid(kNobody, kNobody, 0), 0);
    EXPECT_EQ(setresuid(kNobody, kNobody, 0), 0);
    EXPECT_EQ(prctl(PR_SET_DUMPABLE, 1), 0);  // or the leak check could not look
    changed = true;
  }
  ~AsNobody() {
    if (!changed) return;
    EXPECT_EQ(setresuid(0, 0, 0), 0);
    EXPECT_EQ(setresgid(0, 0, 0), 0);
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  bool changed = false;
};
