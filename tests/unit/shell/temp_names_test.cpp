// Names of temporary files.
#include "shell/temp_names.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <set>
#include <thread>
#include <vector>

#include "foundation/environment.h"
#include "shell/list_file.h"
#include "unit/scratch_directory.h"

namespace {

class TempNames : public testing::Test {
 protected:
  TempNames() { UseDirectory(""); }
  ~TempNames() override { Variables.Load(); }

  void UseDirectory(const std::string& name) {
    files.MakeDirectory(name);
    Variables.Set("TMP", files.Path(name).c_str());
  }

  static std::string Name(const std::string& rest) { return Number(0) + rest; }
  // As another process would have it.
  static std::string Number(int offset) {
    return "Orvane#" + std::to_string((static_cast<unsigned>(getpid()) + offset) & 0xFFFF);
  }
  std::string Made(const std::string& directory = "") const {
    Westring name;
    MakeTempName(name, directory.c_str());
    return ToUtf8(name).Text();
  }

  // False if a file was gone before its time, or stayed.
  static bool MakeAndRemoveMany() {
    for (int i = 0; i < 200; ++i) {
      Westring first, second;
      if (WriteListFile("1", first) != 0 || WriteListFile("2", second) != 0) return false;
      if (!IsThere(first) || !IsThere(second)) return false;
      RemoveTempFiles();
      if (IsThere(first) || IsThere(second)) return false;
    }
    return true;
  }
  static bool IsThere(const Westring& path) { return access(ToUtf8(path).Text(), F_OK) == 0; }

  ScratchDirectory files;
};

}  // namespace

TEST_F(TempNames, TheDirectoryIsTmpElseTempElseTheSystems) {
  Variables.Set("TMP", "/a");
  Variables.Set("TEMP", "/b");
  EXPECT_STREQ(TempDirectory().Text(), L"/a");
  Variables.Set("TMP", nullptr);
  EXPECT_STREQ(TempDirectory().Text(), L"/b");
  Variables.Set("TEMP", "");
  EXPECT_STREQ(TempDirectory().Text(), L"/tmp");
}

TEST_F(TempNames, ANameHasTheProcessesNumberAndTheFirstFreeCounter) {
  EXPECT_EQ(Made(), files.Path(Name(".0")));
  EXPECT_EQ(Made(), files.Path(Name(".0")));  // nothing has been made
  files.Write(Name(".0"), "");
  files.Write(Name(".2"), "");
  EXPECT_EQ(Made(), files.Path(Name(".1")));
  files.Write(Name(".1"), "");
  EXPECT_EQ(Made(), files.Path(Name(".3")));
}

TEST_F(TempNames, ADirectoryOfTheCallersIsTaken) {
  files.MakeDirectory("sub");
  files.Write(Name(".0"), "");
  EXPECT_EQ(Made(files.Path("sub")), files.Path("sub/" + Name(".0")));
}

TEST_F(TempNames, ALinkThatLeadsNowhereIsInTheWay) {
  ASSERT_EQ(symlink("/nowhere/at/all", files.Path(Name(".0")).c_str()), 0);
  EXPECT_EQ(Made(), files.Path(Name(".1")));
}

TEST_F(TempNames, RemovingTakesAllOfThisProcess) {
  for (const char* rest : {".0", ".1", ".17", ".extra", "."}) files.Write(Name(rest), "x");
  RemoveTempFiles();
  for (const char* rest : {".0", ".1", ".17", ".extra", "."}) EXPECT_FALSE(files.Exists(Name(rest))) << rest;
}

TEST_F(TempNames, RemovingLeavesAllElse) {
  const std::vector<std::string> others = {Number(1) + ".0", Number(-1) + ".0",
                                           Name("0.0"),      Name(""),
                                           "x" + Name(".0"), "orvane" + Name(".0").substr(6),
                                           "Orvane#.0"};
  for (const std::string& other : others) files.Write(other, "");
  files.MakeDirectory(Name(".5"));
  RemoveTempFiles();
  for (const std::string& other : others) EXPECT_TRUE(files.Exists(other)) << other;
  EXPECT_TRUE(files.Exists(Name(".5")));
}

TEST_F(TempNames, CopiesThatRunAtOnceLeaveEachOthersFiles) {
  const pid_t other = fork();
  ASSERT_GE(other, 0);
  const bool isWell = MakeAndRemoveMany();
  if (other == 0) _exit(isWell ? 0 : 1);
  int status = -1;
  ASSERT_EQ(waitpid(other, &status, 0), other);
  EXPECT_TRUE(isWell);
  EXPECT_EQ(status, 0);
}

// As copies do whose numbers have the same low half.
TEST_F(TempNames, MakersUnderOneNumberNeverGetTheSameFile) {
  constexpr int kEach = 100;
  std::vector<std::string> made[2];
  const auto make = [&made](int maker) {
    for (int i = 0; i < kEach; ++i) {
      Westring path;
      if (WriteListFile(std::to_string(maker), path) == 0) made[maker].push_back(ToUtf8(path).Text());
    }
  };
  std::thread other(make, 1);
  make(0);
  other.join();
  std::set<std::string> names;
  for (int maker : {0, 1})
    for (const std::string& path : made[maker]) {
      names.insert(path);
      EXPECT_EQ(files.Content(path.substr(files.Path().size() + 1)), std::to_string(maker));
    }
  EXPECT_EQ(names.size(), 2u * kEach);
}

TEST_F(TempNames, CharactersOfPatternsInTheDirectoryMeanNothing) {
  for (const char* name : {"a*b", "a?b", "[ab]", "{a,b}", "a.b", "x\ny"}) {
    UseDirectory(name);
    files.Write(std::string(name) + "/" + Name(".0"), "");
    files.MakeDirectory("aXb");
    files.Write("aXb/" + Name(".0"), "");
    RemoveTempFiles();
    EXPECT_FALSE(files.Exists(std::string(name) + "/" + Name(".0"))) << name;
    EXPECT_TRUE(files.Exists("aXb/" + Name(".0")));
  }
}

TEST_F(TempNames, ADirectoryThatIsNotThereIsNoMatter) {
  Variables.Set("TMP", files.Path("missing").c_str());
  RemoveTempFiles();
  EXPECT_EQ(Made(), files.Path("missing/" + Name(".0")));
}
