// A directory tree that a test has for itself.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

// Path below the sandbox and content; a path that ends in "/" is a directory.
using FileText = std::pair<std::string, std::string>;

// A class of its own: two strings in braces are then a file, never two
// iterators over a vector's items.
class FileList : public std::vector<FileText> {
 public:
  FileList() = default;
  FileList(std::initializer_list<FileText> files) : std::vector<FileText>(files) {}
};

// A fresh directory under /tmp, gone with the object. Its path always has the
// same length, so that what a screen shows of it does too.
class Sandbox {
 public:
  Sandbox();
  ~Sandbox();
  Sandbox(const Sandbox&) = delete;
  Sandbox& operator=(const Sandbox&) = delete;

  std::string Path(const std::string& name = "") const;  // absolute
  void Make(const FileList& files);                      // parent directories too
  void Write(const std::string& name, const std::string& content);
  bool Exists(const std::string& name) const;  // a dangling link exists
  // Empty for a file that is not there; tell the two apart with Exists.
  std::string Content(const std::string& name) const;

 private:
  std::string root;
};
