// Tagging all entries at once, turning the tags over, and giving back those of
// the last operation. The panels have no window here.
#include <cstdint>
#include <set>

#include "panels/tags.h"
#include "support/hand_made_panels.h"

namespace {

using Tagged = std::set<std::wstring>;

class TagAllTest : public PanelRecords {
 protected:
  TagAllTest() {
    Options::TagDirs = false;
    Add(L"..", 0, kAttrDirectory);
    Add(L"dir", 100, kAttrDirectory);
    Add(L"link", 0, kAttrDirectory | kAttrLink);
    Add(L"a", 1);
    Add(L"descript.ion", 10);
    Add(L"b", 2);
  }
  ~TagAllTest() override { Options::TagDirs = false; }

  entry& Named(const std::wstring& name) {
    for (int i = 0; i < panel.count; ++i)
      if (panel.entries[i]->name == name) return *panel.entries[i];
    ADD_FAILURE() << "no such entry";
    return *panel.entries[0];
  }

  // The tagged names; the counters have to agree with them.
  Tagged Names() {
    Tagged names;
    uint64_t bytes = 0;
    for (int i = 0; i < panel.count; ++i) {
      if (!panel.entries[i]->tagged) continue;
      names.insert(panel.entries[i]->name);
      bytes += static_cast<uint64_t>(panel.entries[i]->size);
    }
    EXPECT_EQ(panel.taggedCount, static_cast<int>(names.size()));
    EXPECT_EQ(panel.taggedBytes, bytes);
    return names;
  }

  Tagged After(int mode, bool shift = false) {
    TagAll(panel, mode, shift);
    return Names();
  }

  void TagNamed(const std::wstring& name) {
    for (int i = 0; i < panel.count; ++i)
      if (panel.entries[i]->name == name) Tag(panel, i, 1);
  }
};

}  // namespace

TEST_F(TagAllTest, FilesAreTaggedAndDirectoriesByOption) {
  EXPECT_EQ(After(1), (Tagged{L"a", L"b"}));
  Options::TagDirs = true;
  EXPECT_EQ(After(1), (Tagged{L"a", L"b", L"dir", L"link"}));
  EXPECT_EQ(panel.taggedBytes, 103u) << "a directory counts with its size";
}

TEST_F(TagAllTest, ShiftSwapsTheMeaningOfTheOption) {
  EXPECT_EQ(After(1, true), (Tagged{L"a", L"b", L"dir", L"link"}));
  After(-1);
  Options::TagDirs = true;
  EXPECT_EQ(After(1, true), (Tagged{L"a", L"b"}));
}

TEST_F(TagAllTest, ClearingReachesDirectoriesWhateverTheOption) {
  for (bool option : {false, true}) {
    for (bool shift : {false, true}) {
      Options::TagDirs = option;
      TagNamed(L"dir");
      TagNamed(L"a");
      EXPECT_EQ(After(-1, shift), Tagged{});
      EXPECT_EQ(panel.taggedBytes, 0u);
    }
  }
}

TEST_F(TagAllTest, InvertingTurnsEachTagOver) {
  TagNamed(L"a");
  TagNamed(L"dir");
  EXPECT_EQ(After(0), (Tagged{L"b", L"dir"})) << "directories are left alone";
  EXPECT_EQ(After(0), (Tagged{L"a", L"dir"}));
  EXPECT_EQ(After(0, true), (Tagged{L"b", L"link"}));
}

TEST_F(TagAllTest, TheWayUpAndSystemFilesAreNeverTagged) {
  Options::TagDirs = true;
  for (int mode : {0, 1}) {
    After(-1);
    const Tagged names = After(mode);
    EXPECT_EQ(names.count(L".."), 0u) << mode;
    EXPECT_EQ(names.count(L"descript.ion"), 0u) << mode;
  }
}

TEST_F(TagAllTest, ASystemFileTaggedByHandIsClearedButNotTurnedOver) {
  TagNamed(L"descript.ion");
  EXPECT_EQ(After(0), (Tagged{L"a", L"b", L"descript.ion"}));
  EXPECT_EQ(After(-1), Tagged{});
}

TEST_F(TagAllTest, HiddenPanelsTreesAndInfoAreLeftAlone) {
  panel.visible = false;
  EXPECT_EQ(After(1), Tagged{});
  panel.visible = true;
  panel.panelType = kPanelInfo;
  EXPECT_EQ(After(1), Tagged{});
  panel.panelType = kPanelFiles;
  panel.style = kStyleTree;
  EXPECT_EQ(After(1), Tagged{});
}

TEST_F(TagAllTest, AnEmptyPanelHasNothingToTag) {
  TagAll(panels[1], 1, true);
  EXPECT_EQ(panels[1].taggedCount, 0);
}

TEST_F(TagAllTest, RestoringTagsWhatWasWorkedOnAndDropsTheRest) {
  Named(L"a").processed = Named(L"dir").processed = 1;
  TagNamed(L"b");
  TagNamed(L"a");
  RestoreSelection(panel);
  EXPECT_EQ(Names(), (Tagged{L"a", L"dir"}));
  EXPECT_EQ(panel.taggedBytes, 101u);
  RestoreSelection(panel);
  EXPECT_EQ(Names(), (Tagged{L"a", L"dir"}));
}

TEST_F(TagAllTest, RestoringAfterNoOperationClearsAll) {
  After(1);
  RestoreSelection(panel);
  EXPECT_EQ(Names(), Tagged{});
}

TEST_F(TagAllTest, TreesAndInfoRestoreNothing) {
  Named(L"a").processed = 1;
  panel.panelType = kPanelInfo;
  RestoreSelection(panel);
  panel.panelType = kPanelFiles;
  panel.style = kStyleTree;
  RestoreSelection(panel);
  EXPECT_EQ(Names(), Tagged{});
}
