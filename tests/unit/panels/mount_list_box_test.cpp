#include "panels/mount_list_box.h"

#include <gtest/gtest.h>

namespace {

class MountColumnsTest : public testing::Test {
 protected:
  void Add(int device, int mountPoint, int fileSystem) {
    list.Append(new TMountPoint{Westring::Replicate(L'd', device), Westring::Replicate(L'm', mountPoint),
                                Westring::Replicate(L'f', fileSystem)});
  }
  void ExpectWidths(int room, int device, int mountPoint, int fileSystem) {
    const MountColumns columns = FitMountColumns(list, room);
    EXPECT_EQ(columns.device, device);
    EXPECT_EQ(columns.mountPoint, mountPoint);
    EXPECT_EQ(columns.fileSystem, fileSystem);
  }

  static constexpr int kRoom = 73;  // on a screen of 80 columns
  CMountPointList list;
};

TEST_F(MountColumnsTest, AreAtLeastTenTwentyAndElevenWide) {
  ExpectWidths(kRoom, 10, 20, 11);
  Add(1, 1, 1);
  Add(10, 20, 11);
  ExpectWidths(kRoom, 10, 20, 11);
}

TEST_F(MountColumnsTest, AreAsWideAsTheLongestTextOfEach) {
  Add(11, 1, 1);
  Add(1, 21, 1);
  Add(1, 1, 12);
  ExpectWidths(kRoom, 11, 21, 12);
}

TEST_F(MountColumnsTest, TakeUpAllOfTheRoomAndNoMore) {
  Add(30, 30, 11);
  ExpectWidths(kRoom, 30, 30, 11);
  Add(31, 30, 11);
  EXPECT_EQ(FitMountColumns(list, kRoom).Width(), kRoom);
}

TEST_F(MountColumnsTest, WithoutRoomTheLongOnesGiveUpAndTheShortOnesKeepTheirs) {
  Add(7, 95, 7);
  ExpectWidths(kRoom, 10, 50, 11);
}

TEST_F(MountColumnsTest, NoneFallsBelowItsLeastWidthWhereThatFits) {
  Add(1000, 1000, 1000);
  ExpectWidths(43, 10, 20, 11);
  EXPECT_EQ(FitMountColumns(list, kRoom).Width(), kRoom);
}

TEST_F(MountColumnsTest, ATinyScreenHasNoColumnsOfNegativeWidth) {
  Add(1000, 1000, 1000);
  for (const int room : {20, 2, 0, -10}) {
    const MountColumns columns = FitMountColumns(list, room);
    EXPECT_GE(columns.device, 0) << room;
    EXPECT_GE(columns.mountPoint, 0) << room;
    EXPECT_GE(columns.fileSystem, 0) << room;
    EXPECT_EQ(Length(MountRow(*list.Peek(0), columns)), columns.Width()) << room;
  }
}

TEST(MountRows, StandInColumnsWithABlankBetween) {
  EXPECT_STREQ(MountRow({L"/dev/sda1", L"/", L"ext4"}, {10, 20, 11}).Text(),
               L"/dev/sda1  /                    ext4       ");
}

TEST(MountRows, PathsThatAreTooLongLoseTheirMiddle) {
  EXPECT_STREQ(
      MountRow({L"/dev/mapper/volume-root", L"/media/user/some long name/disk", L"fuseblk"}, {12, 20, 7})
          .Text(),
      L"/dev/...root /media/... name/disk fuseblk");
}

TEST(MountRows, ATextWithoutAHeadEndsInTheMark) {
  EXPECT_STREQ(MountRow({L"portal-of-documents", L"/", L"fuse.portal"}, {10, 1, 6}).Text(),
               L"portal-of\x10 / fuse.\x10");
}

}  // namespace
