// Archives that exist only here, opened through the hook of the real ones.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "console/input.h"
#include "panels/entry_source.h"

struct FakeMember {
  std::wstring name;
  uint16_t attributes = 0;
  int64_t size = 0;
};

struct FakeArchive {
  std::map<std::wstring, std::vector<FakeMember>> directories;  // by interior path, "" for the top
  bool exists = true;
  int openError = 0;    // what the source's First gives in place of entries
  int stopBehind = -1;  // the user asks to stop when so many entries were given
};

// What the hook finds at a path, and what became of it.
inline std::map<std::wstring, FakeArchive> FakeArchives;
inline std::vector<std::wstring> ClosedArchives;

class FakeSource : public EntrySource {
 public:
  FakeSource(const FakeArchive& source, const std::wstring& interior) : archive(source) {
    const auto found = archive.directories.find(interior);
    if (found != archive.directories.end()) members = found->second;
  }
  int First(entry*& e) override {
    next = 0;
    return archive.openError ? archive.openError : Next(e);
  }
  int Next(entry*& e) override {
    if (next == members.size()) return kNoMoreEntries;
    const FakeMember& member = members[next++];
    e = NewEntry(member.name.c_str());
    e->attributes = member.attributes;
    e->size = member.size;
    if (static_cast<int>(next) == archive.stopBehind) RequestBreak();
    return 0;
  }

 private:
  const FakeArchive& archive;
  std::vector<FakeMember> members;
  size_t next = 0;
};

class FakeLevel : public ArchiveLevel {
 public:
  explicit FakeLevel(const Westring& shownPath) : ArchiveLevel(shownPath) {}
  ~FakeLevel() override { ClosedArchives.push_back(Path().Text()); }

  bool StillThere() const override { return Archive().exists; }
  std::unique_ptr<EntrySource> Open(const Westring& interior) override {
    return std::make_unique<FakeSource>(Archive(), interior.Text());
  }
  bool Lookup(const Westring& interior, uint16_t& attributes) override {
    const std::wstring path = interior.Text();
    const size_t slash = path.rfind(L'/');
    const std::wstring directory = slash == std::wstring::npos ? L"" : path.substr(0, slash);
    const std::wstring name = slash == std::wstring::npos ? path : path.substr(slash + 1);
    for (const FakeMember& member : Archive().directories[directory]) {
      if (member.name != name) continue;
      attributes = member.attributes;
      return true;
    }
    return false;
  }

 private:
  FakeArchive& Archive() const { return FakeArchives[Path().Text()]; }
};

inline std::unique_ptr<ArchiveLevel> OpenFakeArchive(const Westring& path, ArchiveLevel*) {
  const auto found = FakeArchives.find(path.Text());
  if (found == FakeArchives.end() || !found->second.exists) return nullptr;
  return std::make_unique<FakeLevel>(path);
}

// The hook, for the life of a test.
class FakeArchiveHook {
 public:
  FakeArchiveHook() {
    FakeArchives.clear();
    ClosedArchives.clear();
    OpenArchive = OpenFakeArchive;
  }
  ~FakeArchiveHook() { OpenArchive = nullptr; }
  FakeArchiveHook(const FakeArchiveHook&) = delete;
  FakeArchiveHook& operator=(const FakeArchiveHook&) = delete;
};
