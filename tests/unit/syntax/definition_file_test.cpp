// Which syntax file is taken.
#include <gtest/gtest.h>

#include "config/data_paths.h"
#include "config/values/options.h"
#include "syntax/syntax_definition.h"
#include "unit/scratch_directory.h"

namespace {

// The settings file of the command line has the user's files beside it.
class SyntaxFile : public testing::Test {
 protected:
  SyntaxFile() { IniFileArgument = Westring(scratch.Path("my.ini").c_str()); }
  ~SyntaxFile() override { IniFileArgument = L""; }

  ScratchDirectory scratch;
};

TEST_F(SyntaxFile, TheUsersOwnIsTaken) {
  scratch.Write("mysyntax.ini", "");
  EXPECT_STREQ(FindSyntaxFile().Text(), Westring(scratch.Path("mysyntax.ini").c_str()).Text());
}

TEST_F(SyntaxFile, WithoutOneItIsTheSystems) {
  EXPECT_STREQ(FindSyntaxFile().Text(), DataFilePath(kSyntaxFile, true).Text());
  EXPECT_STRNE(FindSyntaxFile().Text(), DataFilePath(kSyntaxFile).Text());
}

}  // namespace
