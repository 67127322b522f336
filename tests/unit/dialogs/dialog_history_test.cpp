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
