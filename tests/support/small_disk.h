// A file system of a few bytes for a test's own process, gone with the object. It
// takes rights that not everybody has; see IsThere.
#pragma once

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

class SmallDisk {
 public:
  // To be made before the program's threads: they see what the thread that
  // started them sees.
  explicit SmallDisk(int kilobytes) {
    char name[] = "/tmp/orvane.XXXXXX";
    if (!mkdtemp(name)) return;
    root = name;
    const std::string size = "size=" + std::to_string(kilobytes) + "k";
    isThere = unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
              mount("none", root.c_str(), "tmpfs", 0, size.c_str()) == 0;
  }
  ~SmallDisk() {
    if (isThere) umount2(root.c_str(), MNT_DETACH);
    if (!root.empty()) rmdir(root.c_str());
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  bool IsThere() const { return isThere; }
  // What is written from now on is refused. False where something is open.
  bool Protect() const { return mount(nullptr, root.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0; }
  std::string Path(const std::string& name = "") const { return name.empty() ? root : root + "/" + name; }

 private:
  std::string root;
  bool isThere = false;
};
