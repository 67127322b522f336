#include "panels/entry_source.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <string>

#include "unit/scratch_directory.h"

namespace {

constexpr uid_t kNobody = 65534;

struct FreeingEntry {
  void operator()(entry* e) const { FreeEntry(e); }
};
using OwnedEntry = std::unique_ptr<entry, FreeingEntry>;

std::map<std::wstring, OwnedEntry> Scan(const std::string& path, uint32_t attributes = kScanAll,
                                        const wchar_t* mask = L"*") {
  std::map<std::wstring, OwnedEntry> found;
  const auto source = ScanDirectory(Westring(path.c_str()), mask, attributes);
  entry* e = nullptr;
  int code = source->First(e);
  for (; code == 0; code = source->Next(e)) found[e->name].reset(e);
  EXPECT_EQ(code, kNoMoreEntries);
  return found;
}

std::wstring Listed(const std::map<std::wstring, OwnedEntry>& found) {
  std::wstring list;
  for (const auto& item : found) list += item.first + L" ";
  return list;
}

TEST(DirectoryScan, GivesEveryNameWithTheTwoDotsOnes) {
  ScratchDirectory scratch;
  scratch.Write("file", "12345");
  scratch.Write(".hidden", "");
  scratch.MakeDirectory("directory");
  EXPECT_EQ(Listed(Scan(scratch.Path())), L". .. .hidden directory file ");
}

TEST(DirectoryScan, WithoutTheHiddenBitNamesWithALeadingDotAreLeftOut) {
  ScratchDirectory scratch;
  scratch.Write("file", "");
  scratch.Write(".hidden", "");
  EXPECT_EQ(Listed(Scan(scratch.Path(), 1 + 2)), L"file ");
}

TEST(DirectoryScan, TheMaskMindsCase) {
  ScratchDirectory scratch;
  for (const char* name : {"a.c", "B.c", "a.h"}) scratch.Write(name, "");
  EXPECT_EQ(Listed(Scan(scratch.Path(), kScanAll, L"?.c")), L"B.c a.c ");
  EXPECT_EQ(Listed(Scan(scratch.Path(), kScanAll, L"A*")), L"");
}

TEST(DirectoryScan, OnlyRealDirectoriesPassWhereOnlyDirectoriesAreWanted) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("real");
  scratch.Write("file", "");
  ASSERT_EQ(symlink("real", scratch.Path("link").c_str()), 0);
  EXPECT_EQ(Listed(Scan(scratch.Path(), kScanAll | kScanDirectories)), L". .. real ");
}

TEST(DirectoryScan, AFileHasItsSizeAndADirectoryNone) {
  ScratchDirectory scratch;
  scratch.Write("file", "12345");
  scratch.MakeDirectory("directory");
  const auto found = Scan(scratch.Path());
  EXPECT_EQ(found.at(L"file")->size, 5);
  EXPECT_FALSE(found.at(L"file")->IsDirectory());
  EXPECT_EQ(found.at(L"directory")->size, 0);
  EXPECT_TRUE(found.at(L"directory")->IsDirectory());
  EXPECT_EQ(found.at(L"directory")->treeLink, -1);
}

TEST(DirectoryScan, ALinkHasWhatItsTargetHas) {
  ScratchDirectory scratch;
  scratch.Write("file", "12345");
  scratch.MakeDirectory("directory");
  chmod(scratch.Path("file").c_str(), 0640);
  ASSERT_EQ(symlink("file", scratch.Path("toFile").c_str()), 0);
  ASSERT_EQ(symlink("directory", scratch.Path("toDirectory").c_str()), 0);
  const auto found = Scan(scratch.Path());
  EXPECT_EQ(found.at(L"toFile")->attributes & (kAttrLink | kAttrDirectory | kAttrDangling), kAttrLink);
  EXPECT_EQ(found.at(L"toFile")->size, 5);
  EXPECT_EQ(found.at(L"toFile")->mode, S_IFREG | 0640);
  EXPECT_EQ(found.at(L"toDirectory")->attributes & (kAttrLink | kAttrDirectory | kAttrDangling),
            kAttrLink | kAttrDirectory);
  EXPECT_EQ(found.at(L"toDirectory")->size, 0);
}

TEST(DirectoryScan, ALinkThatLeadsNowhereOrInCirclesDangles) {
  ScratchDirectory scratch;
  ASSERT_EQ(symlink("nothing", scratch.Path("dead").c_str()), 0);
  ASSERT_EQ(symlink("two", scratch.Path("one").c_str()), 0);
  ASSERT_EQ(symlink("one", scratch.Path("two").c_str()), 0);
  const auto found = Scan(scratch.Path());
  for (const wchar_t* name : {L"dead", L"one", L"two"}) {
    EXPECT_EQ(found.at(name)->attributes & (kAttrLink | kAttrDangling), kAttrLink | kAttrDangling);
    EXPECT_FALSE(found.at(name)->IsDirectory());
  }
  EXPECT_EQ(found.at(L"dead")->mode & S_IFMT, S_IFLNK);
}

TEST(DirectoryScan, HiddenIsALeadingDotButForTheTwoDotsNames) {
  ScratchDirectory scratch;
  for (const char* name : {".profile", "..foo", "...", "a.b"}) scratch.Write(name, "");
  const auto found = Scan(scratch.Path());
  EXPECT_TRUE(found.at(L".profile")->attributes & kAttrHidden);
  EXPECT_TRUE(found.at(L"..foo")->attributes & kAttrHidden);
  EXPECT_TRUE(found.at(L"...")->attributes & kAttrHidden);
  EXPECT_FALSE(found.at(L"a.b")->attributes & kAttrHidden);
  EXPECT_FALSE(found.at(L".")->attributes & kAttrHidden);
  EXPECT_FALSE(found.at(L"..")->attributes & kAttrHidden);
}

TEST(DirectoryScan, TheTimeHasItsNanoseconds) {
  ScratchDirectory scratch;
  scratch.Write("file", "");
  const timespec times[2] = {{0, UTIME_OMIT}, {1234567890, 123456789}};
  ASSERT_EQ(utimensat(AT_FDCWD, scratch.Path("file").c_str(), times, 0), 0);
  const auto found = Scan(scratch.Path());
  EXPECT_EQ(found.at(L"file")->modified.seconds, 1234567890u);
  EXPECT_EQ(found.at(L"file")->modified.nanoseconds, 123456789u);
}

TEST(DirectoryScan, ATimeBeforeTheEpochIsTheEpochAndNoneOfTheFarFuture) {
  ScratchDirectory scratch;
  scratch.Write("file", "");
  const timespec times[2] = {{0, UTIME_OMIT}, {-86400, 5}};
  ASSERT_EQ(utimensat(AT_FDCWD, scratch.Path("file").c_str(), times, 0), 0);
  EXPECT_EQ(Scan(scratch.Path()).at(L"file")->modified, FileTime());
}

// The rule for the present user, so that it holds for root as well.
TEST(DirectoryScan, ReadOnlyIsWhatNeitherOwnerNorGroupNorAllMayWrite) {
  ScratchDirectory scratch;
  const auto readOnly = [&](mode_t mode, uid_t uid, gid_t gid) {
    scratch.Write("file", "");
    EXPECT_EQ(chown(scratch.Path("file").c_str(), uid, gid), 0);
    EXPECT_EQ(chmod(scratch.Path("file").c_str(), mode), 0);
    const bool result = Scan(scratch.Path()).at(L"file")->attributes & kAttrReadOnly;
    unlink(scratch.Path("file").c_str());
    return result;
  };
  const uid_t user = getuid();
  const gid_t group = getgid();
  EXPECT_TRUE(readOnly(0555, user, group));
  EXPECT_FALSE(readOnly(0755, user, group));
  EXPECT_FALSE(readOnly(0575, user, group));
  EXPECT_FALSE(readOnly(0557, user, group));
  if (user != 0) GTEST_SKIP() << "only root can give files away";
  EXPECT_TRUE(readOnly(0755, user + 1, group)) << "the owner's bit is for the owner only";
  EXPECT_FALSE(readOnly(0775, user + 1, group));
  EXPECT_TRUE(readOnly(0775, user + 1, group + 1)) << "the group's bit is for the group only";
  EXPECT_FALSE(readOnly(0557, user + 1, group + 1));
  EXPECT_FALSE(readOnly(0755, user, group + 1));
}

TEST(DirectoryScan, OwnersAreCutToSixteenBits) {
  ScratchDirectory scratch;
  scratch.Write("file", "");
  if (chown(scratch.Path("file").c_str(), 70000, 70001) != 0) GTEST_SKIP() << "only root can give files away";
  const auto found = Scan(scratch.Path());
  EXPECT_EQ(found.at(L"file")->uid, 4464);
  EXPECT_EQ(found.at(L"file")->gid, 4465);
}

TEST(DirectoryScan, NamesOfAnyBytesAreListed) {
  ScratchDirectory scratch;
  const std::string longest(255, 'n');
  for (const std::string& name : {std::string("a\nb"), std::string("\x01\x1b[31m"),
                                  std::string("bad\xff\xfe"), std::string("\xc3\xa4\xe2\x82\xac"), longest}) {
    scratch.Write(name, "x");
  }
  const auto found = Scan(scratch.Path());
  EXPECT_EQ(found.size(), 7u);
  for (const std::wstring& name :
       {std::wstring(L"a\nb"), std::wstring(L"\x01\x1b[31m"), std::wstring(L"bad\xff\xfe"),
        std::wstring(L"\xe4\x20ac"), std::wstring(255, L'n')}) {
    ASSERT_EQ(found.count(name), 1u) << found.size();
    EXPECT_EQ(found.at(name)->size, 1);
  }
}

TEST(DirectoryScan, APathOfAnyLengthCanBeRead) {
  ScratchDirectory scratch;
  std::string path = scratch.Path();
  for (int i = 0; i < 5; ++i) path += "/" + std::string(200, static_cast<char>('a' + i));
  std::filesystem::create_directories(path);
  ASSERT_EQ(close(open((path + "/file").c_str(), O_CREAT | O_WRONLY, 0644)), 0);
  EXPECT_EQ(Listed(Scan(path)), L". .. file ");
}

TEST(DirectoryScan, WhatCannotBeOpenedFailsWithItsError) {
  ScratchDirectory scratch;
  scratch.Write("file", "");
  const auto firstOf = [](const std::string& path) {
    entry* e = nullptr;
    const auto source = ScanDirectory(Westring(path.c_str()), L"*", kScanAll);
    const int code = source->First(e);
    EXPECT_EQ(source->Next(e), kNoMoreEntries);
    return code;
  };
  EXPECT_EQ(firstOf(scratch.Path("nothing")), ENOENT);
  EXPECT_EQ(firstOf(scratch.Path("file")), ENOTDIR);
  EXPECT_EQ(firstOf(scratch.Path(std::string(256, 'x'))), ENAMETOOLONG);
  EXPECT_EQ(firstOf(""), ENOENT);
}

TEST(DirectoryScan, AnUnreadableDirectoryFailsWithItsError) {
  if (getuid() != 0) GTEST_SKIP() << "needs root to become nobody";
  ScratchDirectory scratch;
  scratch.MakeDirectory("closed");
  chmod(scratch.Path().c_str(), 0755);
  chmod(scratch.Path("closed").c_str(), 0700);
  const pid_t child = fork();
  if (child == 0) {
    if (setegid(kNobody) != 0 || seteuid(kNobody) != 0) _exit(255);
    entry* e = nullptr;
    _exit(ScanDirectory(Westring(scratch.Path("closed").c_str()), L"*", kScanAll)->First(e));
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), EACCES);
}

TEST(DirectoryScan, WhatVanishesDuringTheScanIsSkipped) {
  ScratchDirectory scratch;
  for (int i = 0; i < 200; ++i) scratch.Write("file" + std::to_string(i), "");
  const auto source = ScanDirectory(Westring(scratch.Path().c_str()), L"*", kScanAll);
  entry* e = nullptr;
  ASSERT_EQ(source->First(e), 0);
  FreeEntry(e);
  for (int i = 0; i < 200; ++i) unlink(scratch.Path("file" + std::to_string(i)).c_str());
  int files = 0, code = 0;
  while ((code = source->Next(e)) == 0) {
    files += !e->IsDirectory();
    FreeEntry(e);
  }
  EXPECT_EQ(code, kNoMoreEntries);
  EXPECT_EQ(files, 0);
}

TEST(DirectoryScan, ADirectoryThatVanishesEndsTheScan) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("gone");
  for (int i = 0; i < 200; ++i) scratch.Write("gone/file" + std::to_string(i), "");
  const auto source = ScanDirectory(Westring(scratch.Path("gone").c_str()), L"*", kScanAll);
  entry* e = nullptr;
  ASSERT_EQ(source->First(e), 0);
  FreeEntry(e);
  std::filesystem::remove_all(scratch.Path("gone"));
  int given = 0;
  while (source->Next(e) == 0 && ++given < 1000) FreeEntry(e);
  EXPECT_LT(given, 1000);
}

TEST(DirectoryScan, AProcessListIsReadThoughItChanges) {
  const auto found = Scan("/proc");
  EXPECT_EQ(found.count(L"self"), 1u);
}

TEST(DirectoryScan, FirstStartsTheScanAnew) {
  ScratchDirectory scratch;
  scratch.Write("file", "");
  const auto source = ScanDirectory(Westring(scratch.Path().c_str()), L"*", kScanAll);
  for (int round = 0; round < 2; ++round) {
    int given = 0;
    entry* e = nullptr;
    for (int code = source->First(e); code == 0; code = source->Next(e)) {
      ++given;
      FreeEntry(e);
    }
    EXPECT_EQ(given, 3);
  }
}

TEST(StatEntry, MakesTheEntryThatAScanMakes) {
  ScratchDirectory scratch;
  scratch.Write("file", "12345");
  ASSERT_EQ(symlink("file", scratch.Path(".link").c_str()), 0);
  const auto scanned = Scan(scratch.Path());
  for (const wchar_t* name : {L"file", L".link"}) {
    entry* e = nullptr;
    ASSERT_EQ(StatEntry(Westring(scratch.Path().c_str()), name, e), 0);
    const OwnedEntry owned(e);
    const entry& other = *scanned.at(name);
    EXPECT_STREQ(e->name, other.name);
    EXPECT_EQ(e->attributes, other.attributes);
    EXPECT_EQ(e->size, other.size);
    EXPECT_EQ(e->mode, other.mode);
    EXPECT_EQ(e->modified, other.modified);
  }
}

TEST(StatEntry, AFailureLeavesTheEntryAlone) {
  ScratchDirectory scratch;
  entry* e = nullptr;
  EXPECT_EQ(StatEntry(Westring(scratch.Path().c_str()), L"nothing", e), ENOENT);
  EXPECT_EQ(e, nullptr);
}

}  // namespace
