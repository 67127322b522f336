// The list of the colours, changed in a copy.
#include "config/colour_dialog.h"

#include <algorithm>
#include <array>

#include "config/values/colours.h"
#include "dialogs/dialog.h"
#include "dialogs/list_box.h"

namespace {

constexpr int kWidth = 32, kHeight = 21;
constexpr int kListColumn = 5, kListRow = 1, kListWidth = 20, kListHeight = 13;
constexpr int kHintRow = 15;

constexpr uint8_t kForegroundBits = 0x0F;

}  // namespace

bool ColourDialog() {
  std::array<uint8_t, kColourCount> colours;
  std::copy_n(Options::Colours, kColourCount, colours.begin());
  int selection = 0;
  Dialog dialog(-1, -3, kWidth, kHeight, Options::Colours[kColourMessages]);
  dialog.PrintCentred(-1, L" Orvane Colours ");
  dialog.AddColourSelector(kListColumn, kListRow, true, kListWidth, kListHeight, kColourNames, colours.data(),
                           kColourCount, &selection, kListDefault);
  dialog.AddStaticText(-1, kHintRow, "F=Foreground B=Background");
  dialog.AddStaticText(-1, kHintRow + 1, "Shift-F/B=Change Backwards");
  dialog.AddOkCancel(-1, -1, true);
  if (dialog.Run() == static_cast<int>(kEscape)) return false;
  // The letter stands on whatever background its item has.
  colours[kColourMenuQuickKey] &= kForegroundBits;
  std::ranges::copy(colours, Options::Colours);
  return true;
}
