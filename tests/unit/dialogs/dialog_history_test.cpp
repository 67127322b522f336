// What was entered in fields, kept by kind.
#include "dialogs/dialog_history.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Strings = std::vector<std::string>;

class DialogHistory : public testing::Test {
 protected:
  DialogHistory() { Clear(); }
  ~DialogHistory() override { Clear(); }

  static Strings Links() {
    Strings items;
    for (int i = 0; i < DialogHistories[kHistoryLink].Count(); ++i) {
      items.push_back(ToUtf8(*DialogHistories[kHistoryLink].Peek(i)).Text());
    }
    return items;
  }

 private:
  static void Clear() {
    for (WestringStore& history : DialogHistories) history.Clear();
  }
};

}  // namespace

TEST_F(DialogHistory, TakesTextsAtItsEndAndEachOnceByItsLetters) {
  for (const wchar_t* item : {L"a", L"b", L"A", L"a"}) AddDialogHistory(item, kHistoryLink);
  EXPECT_EQ(Links(), (Strings{"b", "A", "a"}));
}

TEST_F(DialogHistory, TakesOneOfItsOwnTexts) {
  for (const wchar_t* item : {L"a", L"b"}) AddDialogHistory(item, kHistoryLink);
  AddDialogHistory(*DialogHistories[kHistoryLink].Peek(0), kHistoryLink);
  EXPECT_EQ(Links(), (Strings{"b", "a"}));
}

TEST_F(DialogHistory, TakesNoEmptyText) {
  AddDialogHistory(L"", kHistoryLink);
  EXPECT_EQ(Links(), Strings{});
}

TEST_F(DialogHistory, KnowsTwelveKindsAndNoOthers) {
  for (const int kind : {-1, 12, int{kNoHistory}, 1000000}) AddDialogHistory(L"text", kind);
  for (const WestringStore& history : DialogHistories) EXPECT_EQ(history.Count(), 0);
  for (int kind = 0; kind < 12; ++kind) AddDialogHistory(L"text", kind);
  for (const WestringStore& history : DialogHistories) EXPECT_EQ(history.Count(), 1);
}

namespace {

Strings kept;

void Keep(const Westring& text, int kind) {
  kept.push_back(std::to_string(kind) + ":" + ToUtf8(text).Text());
}

}  // namespace

TEST_F(DialogHistory, HandsOnWhatIsNewUnlessQuiet) {
  kept.clear();
  KeepDialogEntry = Keep;
  AddDialogHistory(L"a", kHistoryLink);
  AddDialogHistory(L"quiet", kHistoryLink, true);
  AddDialogHistory(L"a", kHistoryLink);
  AddDialogHistory(L"a", kHistoryLink);  // a field committed twice
  AddDialogHistory(L"", kHistoryLink);
  AddDialogHistory(L"b", kNoHistory);
  KeepDialogEntry = nullptr;
  AddDialogHistory(L"c", kHistoryLink);
  EXPECT_EQ(kept, (Strings{"10:a", "10:a"}));
  EXPECT_EQ(Links(), (Strings{"quiet", "a", "c"}));
}
