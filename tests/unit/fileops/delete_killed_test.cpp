// A kill while files are deleted, at any call that changes the disk.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "fileops/delete_file.h"
#include "support/faults.h"
#include "unit/scratch_directory.h"

namespace {

constexpr int kFiles = 4;

std::string Name(int i) { return "file" + std::to_string(i); }
std::string Line(int i) { return Name(i) + " text " + std::to_string(i) + "\n"; }

class DeleteKilled : public testing::Test {
 protected:
  // False once the deletion came to its end before the n-th call.
  bool KillsAt(FaultCall call, int n) {
    const pid_t child = fork();
    if (child == 0) {
      Fault kill(call, {.path = scratch.Path(), .at = n, .before = [] { raise(SIGKILL); }});
      FileOperation operation;
      for (int i = 0; i < kFiles; ++i)
        DeleteFile(operation, Westring(scratch.Path(Name(i)).c_str()), kDeleteAnyway);
      _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
  }

  void MakeFiles() {
    std::string lines;
    for (int i = 0; i < kFiles; ++i) {
      scratch.Write(Name(i), "content " + std::to_string(i));
      lines += Line(i);
    }
    scratch.Write("other", "kept");
    scratch.Write("descript.ion", lines + "other text\n");
  }

  ScratchDirectory scratch;
};

}  // namespace

TEST_F(DeleteKilled, WhatIsLeftIsWholeAndKeepsItsDescription) {
  for (const FaultCall call : {kCallUnlink, kCallWrite, kCallTruncate}) {
    bool wasKilled = true;
    int n = 0;
    while (wasKilled) {
      MakeFiles();
      wasKilled = KillsAt(call, ++n);
      const std::string descriptions = scratch.Content("descript.ion");
      int gone = 0;
      while (gone < kFiles && !scratch.Exists(Name(gone))) ++gone;
      EXPECT_EQ(gone, wasKilled ? call == kCallUnlink ? n - 1 : n : kFiles);
      for (int i = gone; i < kFiles; ++i) {
        EXPECT_EQ(scratch.Content(Name(i)), "content " + std::to_string(i));
        EXPECT_NE(descriptions.find(Line(i)), std::string::npos) << descriptions;
      }
      EXPECT_EQ(scratch.Content("other"), "kept");
      EXPECT_NE(descriptions.find("other text\n"), std::string::npos) << descriptions;
    }
    EXPECT_EQ(n, kFiles + 1);
  }
}
