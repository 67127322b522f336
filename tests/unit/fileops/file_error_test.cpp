// How errors are told, one rule a row.
#include "fileops/file_error.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "dialogs/prompt.h"

namespace {

struct Told {
  std::string text;
  bool aboutTarget;
  int kind;
  bool operator==(const Told&) const = default;
};

void PrintTo(const Told& told, std::ostream* out) {
  *out << '"' << told.text << "\" " << told.aboutTarget << " " << told.kind;
}

Told Describe(int code) {
  const FileErrorText error = DescribeFileError(code);
  return {ToUtf8(error.text).Text(), error.aboutTarget, error.kind};
}

}  // namespace

TEST(FileError, EachCodeHasItsTextItsSubjectAndItsButtons) {
  EXPECT_EQ(Describe(2), (Told{"File not found", false, 1}));
  EXPECT_EQ(Describe(5), (Told{"Error reading disk", false, 3}));
  EXPECT_EQ(Describe(13), (Told{"Access Denied", false, 3}));
  EXPECT_EQ(Describe(20), (Told{"Path not found", true, 1}));
  EXPECT_EQ(Describe(28), (Told{"No room for", false, 3}));
  EXPECT_EQ(Describe(30), (Told{"Disk write protected, cannot write", false, 3}));
  EXPECT_EQ(Describe(36), (Told{"Name too long", true, 1}));
  EXPECT_EQ(Describe(0x40000002), (Told{"Drive not ready", false, 3}));
}

TEST(FileError, AnyOtherHasTheSystemsTextAndItsNumber) {
  EXPECT_EQ(Describe(ENOTEMPTY), (Told{"Directory not empty (39)", false, 3}));
  EXPECT_EQ(Describe(EPERM), (Told{"Operation not permitted (1)", false, 3}));
  EXPECT_EQ(Describe(EEXIST), (Told{"File exists (17)", false, 3}));
  EXPECT_EQ(Describe(EILSEQ).text, "Invalid or incomplete multibyte or wide character (84)");
}

TEST(FileError, TheCodesAreThoseOfThisSystem) {
  EXPECT_EQ(ENOENT, 2);
  EXPECT_EQ(EIO, 5);
  EXPECT_EQ(EACCES, 13);
  EXPECT_EQ(ENOTDIR, 20);
  EXPECT_EQ(ENOSPC, 28);
  EXPECT_EQ(EROFS, 30);
  EXPECT_EQ(ENAMETOOLONG, 36);
}
