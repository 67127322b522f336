// Stepping through the user's list of code pages; see code_page_list.h.
#include "viewer/code_page_list.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/prompt.h"
#include "foundation/code_pages.h"

int TranslateCursor = 0;
int LastCodePage = 0;

namespace {

constexpr int kWidth = 32, kHeight = 5;
constexpr int kRow = 1, kLabelColumn = 1, kFieldColumn = 17, kFieldWidth = 12;
constexpr int kLongestList = 511;  // well within a line of the settings file

// The text up to the next comma, behind which the cursor goes; at the end of the
// list it goes back to its start.
Estring TakeListItem() {
  const Estring& list = Options::TranslateCP;
  const int length = Length(list);
  const char* text = list.Text() + std::clamp(TranslateCursor, 0, length);
  const char* end = std::find(text, list.Text() + length, ',');
  Estring item;
  item.Assign(text, static_cast<int>(end - text));
  if (*end == ',') ++end;
  TranslateCursor = Trim(Estring(end)).IsEmpty() ? 0 : static_cast<int>(end - list.Text());
  return item;
}

int NumberOf(const Estring& text) {
  return static_cast<int>(std::clamp<long>(strtol(text.Text(), nullptr, 10), INT_MIN, INT_MAX));
}

bool CanConvertTo(int page) { return !EncodeCodePage(L" ", page).IsEmpty(); }

}  // namespace

void NextCodePage(int& page) {
  page = NumberOf(TakeListItem());
  if (page != 0 && !CanConvertTo(page)) {
    Prompt(L"Invalid code page", L"", kPromptOk);
    page = 0;
  }
  if (page == TextPage()) page = 0;
}

int CodePageDialog() {
  Westring list(Options::TranslateCP.Text());
  Dialog dialog(-1, -3, kWidth, kHeight, Options::Colours[kColourMessages]);
  dialog.PrintCentred(-1, L" Code Page Translation ");
  dialog.PrintBytes(kLabelColumn, kRow, "Code Page List:");
  dialog.AddStringField(kFieldColumn, kRow, true, &list, kFieldWidth, kLongestList, kHistoryCodePages);
  if (dialog.Run() == kEscape) return -1;
  Options::TranslateCP = ToUtf8(list);
  TranslateCursor = 0;
  return 0;
}

int StepCodePage() {
  NextCodePage(LastCodePage);
  return LastCodePage != 0 ? LastCodePage : TextPage();
}
