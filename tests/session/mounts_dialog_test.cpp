// The list of mounts: choosing and ejecting. The mounts are those of the test,
// but for one question to the desktop's services.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "panels/mount_dialog.h"
#include "panels/navigation.h"
#include "session/main_screen.h"
#include "support/console_fixture.h"

namespace {

using Strings = std::vector<std::string>;

struct Mount {
  std::string device, mountPoint, fileSystem;
};

// What the dialog gets to see and what it did.
struct Play {
  std::vector<Mount> mounts;
  int readError = 0;
  EjectResult answer = EjectResult::Ejected;
  const wchar_t* error = L"";
  const Session* session = nullptr;  // for a look while the eject runs

  std::vector<bool> readAll;
  Strings ejected;
  uint32_t patience = 0;
  std::string directoryDuring, screenDuring;
};
Play play;

std::string ProcessDirectory() { return std::filesystem::current_path().string(); }

bool ReadPlayed(CMountPointList& list, bool all) {
  play.readAll.push_back(all);
  list.Clear();
  errno = play.readError;
  if (play.readError != 0) return false;
  for (const Mount& mount : play.mounts) {
    list.Append(new TMountPoint{mount.device.c_str(), mount.mountPoint.c_str(), mount.fileSystem.c_str()});
  }
  return true;
}

EjectResult EjectPlayed(const Westring& mountPoint, uint32_t patienceMs, Westring& error) {
  play.ejected.push_back(ToUtf8(mountPoint).Text());
  play.patience = patienceMs;
  play.directoryDuring = ProcessDirectory();
  if (play.session != nullptr) play.screenDuring = play.session->Screen();
  error = play.error;
  if (play.answer == EjectResult::Ejected) {
    std::erase_if(play.mounts, [&](const Mount& mount) { return mount.mountPoint == play.ejected.back(); });
  }
  return play.answer;
}

// Mounted are left, left/usb and right of the sandbox, in this order.
class Mounts : public testing::Test {
 protected:
  Mounts() {
    play = Play();
    TheMountHooks = {ReadPlayed, EjectPlayed};
  }
  ~Mounts() override { TheMountHooks = MountHooks(); }

  void Mount3(const Session& s) {
    play.mounts = {{"/dev/sda1", s.Path("left"), "ext4"},
                   {"/dev/sdb1", s.Path("left/usb"), "vfat"},
                   {"/dev/sdc1", s.Path("right"), "fuse.sshfs"}};
  }
};

const FileList kTree = {{"left/usb/photos/one.jpg", ""}, {"left/z", ""}, {"right/r/deep", ""}};

bool IsOpen(const Session& s) { return s.FindRow(" Mount Points ").has_value(); }

// The rows of the list, from the column of the devices on.
Strings Devices(const Session& s) {
  Strings devices;
  const int bottom = s.FindRow(" Alt-E=Eject ").value_or(0);
  for (int y = s.FindRow("Device ").value_or(0) + 2; y < bottom; ++y) {
    const std::string row = s.Row(y).String();
    const size_t start = row.find("/dev/");
    if (start != std::string::npos) devices.push_back(row.substr(start, row.find(' ', start) - start));
  }
  return devices;
}

}  // namespace

TEST_F(Mounts, ThreeStandInABoxThatFitsThem) {
  Session s;
  play.mounts = {
      {"/dev/sda1", "/", "ext4"}, {"/dev/sdb1", "/media/My Disk", "vfat"}, {"host:/x", "/mnt", "nfs4"}};
  s.Keys("Alt-F1");
  // 47 by 7 cells at (16, 6).
  EXPECT_EQ(s.Text(16, 6, 47), "╔═══════════════ Mount Points ════════════════╗");
  EXPECT_EQ(s.Text(16, 7, 47), "║ Device     Mount Point          File System ║");
  EXPECT_EQ(s.Text(16, 8, 47), "╟─────────────────────────────────────────────╢");
  EXPECT_EQ(s.Text(16, 9, 47), "║ /dev/sda1  /                    ext4        ║");
  EXPECT_EQ(s.Text(16, 10, 47), "║ /dev/sdb1  /media/My Disk       vfat        ║");
  EXPECT_EQ(s.Text(16, 11, 47), "║ host:/x    /mnt                 nfs4        ║");
  EXPECT_EQ(s.Text(16, 12, 47), "╚════════════════ Alt-E=Eject ════════════════╝");
  EXPECT_EQ(s.Attribute(17, 7), 0x3F);
  EXPECT_EQ(s.Attribute(18, 9), 0x0F);
  EXPECT_EQ(s.Attribute(60, 9), 0x0F);
  EXPECT_EQ(s.Attribute(61, 9), 0x3F);
  EXPECT_EQ(s.Attribute(18, 10), 0x3F);
  s.Keys("Esc");
  EXPECT_FALSE(IsOpen(s));
}

TEST_F(Mounts, AHundredLeaveFiveRowsOfTheScreenFree) {
  Session s;
  for (int i = 0; i < 100; ++i) play.mounts.push_back({"/dev/x" + std::to_string(i), "/", "ext4"});
  s.Keys("Alt-F1");
  EXPECT_EQ(s.FindRow(" Mount Points "), 1);
  EXPECT_EQ(s.FindRow(" Alt-E=Eject "), 20);
  EXPECT_EQ(Devices(s).size(), 16u);
  EXPECT_EQ(Devices(s).front(), "/dev/x0");
  s.Keys("End");
  EXPECT_EQ(Devices(s).front(), "/dev/x84");
  EXPECT_EQ(Devices(s).back(), "/dev/x99");
  s.Keys("Home PgDn");
  EXPECT_EQ(Devices(s).front(), "/dev/x16");
}

TEST_F(Mounts, LongPathsAreCutToABoxThreeColumnsNarrowerThanTheScreen) {
  Session s;
  const std::string longPath = "/var/lib/" + std::string(600, 'x') + "/merged";
  play.mounts = {{"overlay", longPath, "overlay"}};
  s.Keys("Alt-F1");
  EXPECT_EQ(s.Text(1, 6, 77).String().substr(0, 3), "╔");
  EXPECT_EQ(s.Character(77, 6), U'╗');
  EXPECT_TRUE(s.Row(9).Contains(" overlay    /var/...xxx"));
  EXPECT_TRUE(s.Row(9).Contains("/merged overlay     ║")) << s.Row(9);
}

TEST_F(Mounts, OddCharactersOfAMountPointKeepToTheirCells) {
  Session s;
  play.mounts = {{"/dev/sda1", "/a\nb\tc", "ext4"}, {"/dev/sdb1", "/媒体/é", "ext4"}};
  s.Keys("Alt-F1");
  EXPECT_EQ(Devices(s), (Strings{"/dev/sda1", "/dev/sdb1"}));
  for (const int y : {9, 10}) EXPECT_EQ(s.Character(62, y), U'║') << y;
  EXPECT_EQ(s.Text(29, 10, 6), "/媒体/é ");
}

TEST_F(Mounts, EnterTakesThePanelToTheMountPoint) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Alt-F1 Down Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/usb"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "photos"}));
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
  EXPECT_EQ(PromptRow(s), s.Path("left/usb") + ">");
  EXPECT_EQ(ProcessDirectory(), s.Path("left/usb"));
}

TEST_F(Mounts, AltF2IsForTheRightPanelWhicheverIsActive) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Alt-F2 Down Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left/usb"));
  EXPECT_EQ(s.Active(), kLeftSide);
  EXPECT_EQ(ProcessDirectory(), s.Path("left"));
  s.Keys("Tab Alt-F1 End Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left/usb"));
  EXPECT_EQ(ProcessDirectory(), s.Path("left/usb"));
}

TEST_F(Mounts, CtrlMIsForTheActivePanel) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Tab Ctrl-m Down Enter");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left/usb"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST_F(Mounts, OnlyShiftShowsThemAll) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Alt-F1 Esc Alt-F2 Esc Ctrl-m Esc Ctrl-Shift-m");
  EXPECT_EQ(play.readAll, (std::vector<bool>{false, false, false, true}));
  EXPECT_TRUE(IsOpen(s));
}

TEST_F(Mounts, CtrlROpensThemByOptionAndOtherwiseReadsAgain) {
  {
    Session s(kTree);
    Mount3(s);
    s.Keys("Ctrl-r");
    EXPECT_FALSE(IsOpen(s));
  }
  Session s(kTree, {.settings = "CtrlRDriveChng=on\n"});
  Mount3(s);
  s.Keys("Tab Ctrl-r");
  EXPECT_TRUE(IsOpen(s));
  s.Keys("Down Enter");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left/usb"));
  EXPECT_EQ(play.readAll, (std::vector<bool>{false}));
}

TEST_F(Mounts, TypedLettersSearchTheRows) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Alt-F1 '/DEV/sdc' Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
}

TEST_F(Mounts, ADoubleClickChooses) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Alt-F1");
  const int row = s.FindRow("/dev/sdb1").value_or(0);
  s.Click(30, row);
  EXPECT_TRUE(IsOpen(s));
  s.Mouse(kMouseLeftDouble, 30, row);
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/usb"));
}

TEST_F(Mounts, AMountPointThatCannotBeEnteredIsToldAndTheListStays) {
  Session s(kTree);
  play.mounts = {{"/dev/sda1", "/gone/away", "ext4"}, {"/dev/sdb1", s.Path("right"), "ext4"}};
  s.Keys("Alt-F1 Enter");
  const int message = s.FindRow("Invalid directory").value_or(-1);
  ASSERT_GE(message, 0);
  EXPECT_TRUE(s.Row(message + 1).Contains(" /gone/away "));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  s.Keys("Enter");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_FALSE(s.FindRow("Invalid directory").has_value());
  s.Keys("Down Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
}

TEST_F(Mounts, AMountPointLongerThanAnyPathIsToldAsInvalid) {
  Session s(kTree);
  play.mounts = {{"/dev/sda1", "/" + std::string(800, 'x'), "ext4"}};
  s.Keys("Alt-F1 Enter");
  EXPECT_TRUE(s.FindRow("Invalid directory").has_value());
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST_F(Mounts, ATableThatCannotBeReadIsTold) {
  Session s;
  play.readError = EACCES;
  s.Keys("Alt-F1");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_TRUE(s.FindRow("Permission denied (13)").has_value());
  EXPECT_TRUE(s.FindRow(" /etc/mtab ").has_value());
  s.Keys("Esc");
  EXPECT_FALSE(s.FindRow("Permission denied").has_value());
}

TEST_F(Mounts, AnEmptyListOpensNothing) {
  Session s;
  const std::string before = s.Screen();
  s.Keys("Alt-F1");
  EXPECT_EQ(play.readAll.size(), 1u);
  EXPECT_EQ(s.Screen(), before);
}

TEST_F(Mounts, TheRealTableOpensWhereThereIsOne) {
  TheMountHooks = MountHooks();
  CMountPointList all;
  if (!ReadMounts(all, true) || all.Count() == 0) GTEST_SKIP() << "no mount table here";
  Session s;
  s.Keys("Ctrl-Shift-m");
  EXPECT_TRUE(IsOpen(s));
}

// ---- ejecting

TEST_F(Mounts, EjectingTakesTheRowOutAndLeavesThePanelsOfOtherPlacesAlone) {
  Session s(kTree);
  Mount3(s);
  const std::string before = ProcessDirectory();
  s.Keys("Alt-F1 Down Alt-e");
  EXPECT_EQ(play.ejected, (Strings{s.Path("left/usb")}));
  EXPECT_EQ(play.patience, 15000u);
  EXPECT_EQ(play.directoryDuring, before);
  EXPECT_EQ(Devices(s), (Strings{"/dev/sda1", "/dev/sdc1"}));
  EXPECT_EQ(play.readAll, (std::vector<bool>{false, false}));
  s.Keys("Esc");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("right"));
}

TEST_F(Mounts, ABoxTellsThatItIsEjecting) {
  Session s(kTree);
  Mount3(s);
  play.session = &s;
  s.Keys("Alt-F1 Alt-e");
  EXPECT_NE(play.screenDuring.find("║ Ejecting... ║"), std::string::npos) << play.screenDuring;
  EXPECT_NE(play.screenDuring.find(" Mount Points "), std::string::npos);
  EXPECT_FALSE(s.FindRow("Ejecting...").has_value());
}

TEST_F(Mounts, APanelOnTheMediumMovesToTheDirectoryAboveTheMount) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Down Enter Down Enter");
  ASSERT_EQ(s.PanelPath(kLeftSide), s.Path("left/usb/photos"));
  s.Keys("Alt-F1 Down Alt-e");
  EXPECT_EQ(play.directoryDuring, s.Path("left"));
  EXPECT_TRUE(IsOpen(s));
  s.Keys("Esc");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "usb", "z"}));
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">");
  EXPECT_EQ(ProcessDirectory(), s.Path("left"));
}

TEST_F(Mounts, AfterAnEjectAnotherMountCanBeChosenAtOnce) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Down Enter Alt-F1 Down Alt-e");
  EXPECT_EQ(Devices(s), (Strings{"/dev/sda1", "/dev/sdc1"}));
  s.Keys("Enter");  // the row is the same, what stands there is the next mount
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
  EXPECT_EQ(ProcessDirectory(), s.Path("right"));
}

TEST_F(Mounts, TheOtherPanelLeavesTheMediumAsWell) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Down Enter Alt-F2 Down Alt-e");
  EXPECT_EQ(play.directoryDuring, s.Path("left"));
  s.Keys("Esc");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("right"));
  EXPECT_EQ(ProcessDirectory(), s.Path("left"));
}

TEST_F(Mounts, ADirectoryWhoseNameOnlyBeginsLikeTheMountStays) {
  Session s({{"left/usb2/x", ""}});
  play.mounts = {{"/dev/sdb1", s.Path("left/usb"), "vfat"}};
  s.Keys("Down Enter Alt-F1 Alt-e Esc");
  EXPECT_EQ(play.directoryDuring, s.Path("left/usb2"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/usb2"));
}

TEST_F(Mounts, EjectingTheLastOneClosesTheList) {
  Session s(kTree);
  play.mounts = {{"/dev/sdb1", s.Path("left/usb"), "vfat"}};
  s.Keys("Down Enter Alt-F1 Alt-e");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST_F(Mounts, AnEjectOfTheLastRowLeavesTheCursorOnTheNewLastRow) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Alt-F1 End Alt-e Alt-e");
  EXPECT_EQ(play.ejected, (Strings{s.Path("right"), s.Path("left/usb")}));
}

TEST_F(Mounts, AFailureIsToldWithItsTextAndNothingHasMoved) {
  Session s(kTree);
  Mount3(s);
  play.answer = EjectResult::Failed;
  play.error = L"The device is busy";
  s.Keys("Down Enter Alt-F1 Down Alt-e");
  EXPECT_EQ(play.directoryDuring, s.Path("left"));
  const int message = s.FindRow("Error ejecting").value_or(-1);
  ASSERT_GE(message, 0);
  EXPECT_TRUE(s.Row(message + 1).Contains(" The device is busy "));
  EXPECT_EQ(ProcessDirectory(), s.Path("left/usb"));
  s.Keys("Enter");
  EXPECT_EQ(Devices(s).size(), 3u);
  EXPECT_EQ(play.readAll.size(), 1u);
  s.Keys("Esc");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/usb"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "photos"}));
  EXPECT_EQ(ProcessDirectory(), s.Path("left/usb"));
}

TEST_F(Mounts, TheEndOfALongReasonIsNotLost) {
  Session s(kTree);
  Mount3(s);
  play.answer = EjectResult::Failed;
  play.error =
      L"Error unmounting /dev/sdb1: Command-line `umount \"/media/usb\"' exited with status 32:\n"
      L"umount: /media/usb: target is busy.";
  s.Keys("Alt-F1 Alt-e");
  EXPECT_TRUE(s.FindRow("Error ejecting").has_value());
  EXPECT_TRUE(s.FindRow(" Error unmounting /dev/sdb1:").has_value());
  EXPECT_TRUE(s.FindRow(" umount: /media/usb: target is busy. ").has_value());
}

TEST_F(Mounts, ATimeOutIsToldAndTheProcessGoesBack) {
  Session s(kTree);
  Mount3(s);
  play.answer = EjectResult::TimedOut;
  s.Keys("Down Enter Alt-F1 Down Alt-e");
  EXPECT_TRUE(s.FindRow(" eject failed ").has_value());
  EXPECT_FALSE(s.FindRow("Error ejecting").has_value());
  EXPECT_EQ(ProcessDirectory(), s.Path("left/usb"));
  s.Keys("Enter Esc");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/usb"));
}

TEST_F(Mounts, ThePlainLetterSearchesAndDoesNotEject) {
  Session s(kTree);
  Mount3(s);
  s.Keys("Alt-F1 e");
  EXPECT_TRUE(play.ejected.empty());
  EXPECT_TRUE(IsOpen(s));
}

// ---- the desktop's services

using RealEject = ConsoleFixture;

TEST_F(RealEject, TheRootCannotBeEjectedAndThatIsToldWithinThePatience) {
  Westring error;
  EXPECT_EQ(EjectMount(L"/", 15000, error), EjectResult::Failed);
  EXPECT_FALSE(error.IsEmpty());
}

TEST_F(RealEject, WhatIsMountedNowhereIsAnErrorToo) {
  Westring error;
  EXPECT_EQ(EjectMount(L"/nowhere/at all", 15000, error), EjectResult::Failed);
  EXPECT_FALSE(error.IsEmpty());
}

// An answer that comes after the asker has gone finds its request alive.
TEST_F(RealEject, AnAnswerAfterThePatienceHarmsNothing) {
  Westring error;
  for (int i = 0; i < 20; ++i) EXPECT_NE(EjectMount(L"/", 0, error), EjectResult::Ejected);
  EXPECT_EQ(EjectMount(L"/", 15000, error), EjectResult::Failed);
}
