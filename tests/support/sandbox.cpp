// A directory tree that a test has for itself; see the header.
#include "support/sandbox.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace fs = std::filesystem;

Sandbox::Sandbox() {
  char name[] = "/tmp/orvane.XXXXXX";
  if (!mkdtemp(name)) std::abort();
  root = name;
}

Sandbox::~Sandbox() {
  std::error_code ignored;
  // Directories that a test closed to itself have to be opened to be removed.
  for (fs::recursive_directory_iterator i(root, fs::directory_options::skip_permission_denied, ignored), end;
       !ignored && i != end; i.increment(ignored)) {
    if (i->is_directory(ignored) && !i->is_symlink(ignored)) {
      fs::permissions(i->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    }
  }
  fs::remove_all(root, ignored);
}

std::string Sandbox::Path(const std::string& name) const { return name.empty() ? root : root + "/" + name; }

void Sandbox::Make(const FileList& files) {
  for (const auto& [name, content] : files) {
    if (name.back() == '/') {
      fs::create_directories(Path(name));
    } else {
      Write(name, content);
    }
  }
}

void Sandbox::Write(const std::string& name, const std::string& content) {
  fs::create_directories(fs::path(Path(name)).parent_path());
  std::ofstream file(Path(name), std::ios::binary | std::ios::trunc);
  file << content;
}

bool Sandbox::Exists(const std::string& name) const { return fs::symlink_status(Path(name)).type() != fs::file_type::not_found; }

std::string Sandbox::Content(const std::string& name) const {
  std::ifstream file(Path(name), std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}
