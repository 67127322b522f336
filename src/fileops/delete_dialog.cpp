// The question before something is deleted; see delete_dialog.h.
#include "fileops/delete_dialog.h"

#include <algorithm>

namespace {

constexpr int kLeastWidth = 18, kReadOnlyWidth = 42, kBesideText = 4;
constexpr int kLeastHeight = 6;
constexpr int kFirstExtraRow = 3;
constexpr int kColumn = 1, kAskColumn = 19, kAllColumn = 27, kNoneColumn = 35;

int WidthOf(const Westring& first, const Westring& second, const DeleteRows& rows) {
  const int least = rows.asksReadOnly ? kReadOnlyWidth : kLeastWidth;
  const int width = std::max({least, Length(first), Length(second)});
  return width + width % 2 + kBesideText;
}

int HeightOf(const DeleteRows& rows) {
  const int extra = (rows.asksReadOnly ? 1 : 0) + (rows.asksUndelete ? 1 : 0);
  return kLeastHeight + extra + (extra > 0 ? 1 : 0);
}

}  // namespace

CDeleteDlg::CDeleteDlg(const Westring& first, const Westring& second, const DeleteRows& rows, uint8_t colour)
    : Dialog(-1, -3, WidthOf(first, second, rows), HeightOf(rows), colour) {
  PrintCentred(0, first);
  PrintCentred(1, second);
  int y = kFirstExtraRow;
  if (rows.asksReadOnly) {
    PrintBytes(kColumn, y, "Delete Read Only: ");
    AddRadioButton(kAskColumn, y, true, &readOnlyChoice, kReadOnlyAsk, "As_k");
    AddRadioButton(kAllColumn, y, false, &readOnlyChoice, kReadOnlyAll, "_All");
    AddRadioButton(kNoneColumn, y, false, &readOnlyChoice, kReadOnlyNone, "Non_e");
    ++y;
  }
  if (rows.asksUndelete) AddCheckBox(kColumn, y, true, &noUndelete, "No _Undelete", true);
  SetFocus(AddOkCancel(-1, -1, true));
}

bool CDeleteDlg::Ask() { return Run() == static_cast<int>(kEnter); }
