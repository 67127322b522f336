// Search in a list by typing: the text typed so far stands in a box at the
// dialog's bottom right.
#include <algorithm>

#include "dialogs/list_box.h"

namespace {

constexpr Key kFirstSearched = 32, kLastSearched = 0xFFFF;

}  // namespace

bool ListBoxBase::SearchBy(Key key) {
  if (key < kFirstSearched || key > kLastSearched) return false;
  const Westring wanted = search + Westring::Replicate(static_cast<wchar_t>(key), 1);
  const int found = FindItem(wanted);
  if (found < 0) return false;
  search = wanted;
  *selection = found;
  Draw();
  ShowSearch();
  return true;
}

int ListBoxBase::FindItem(const Westring& text) {
  const int length = Length(text), start = View().Index();
  for (int i = 0; i < count; ++i) {
    const int candidate = (start + i) % count;
    if (Left(GetItemText(candidate), length) == text) return candidate;
  }
  return -1;
}

// The box keeps the width it began with; of a longer text the end shows, which
// is what is being typed.
void ListBoxBase::ShowSearch() {
  if (search.IsEmpty()) return;
  const uint8_t attribute = dialog.Colour(kDialogField);
  if (searchBox == nullptr) {
    const int right = std::max(dialog.Right() - 1, 0), bottom = std::max(dialog.Bottom(), 0);
    const int cells = std::clamp(Length(search), 1, std::max(dialog.InnerWidth(), 1));
    const int left = std::max(right - cells + 1, 0);
    searchBox = std::make_unique<Win>(left, bottom, right, bottom, attribute);
  }
  const int cells = searchBox->InnerWidth();
  const Westring shown = Length(search) > cells ? Right(search, cells) : search;
  searchBox->Print(0, 0, LJust(shown, cells), attribute);
}

void ListBoxBase::EndSearch() {
  search = L"";
  searchBox.reset();
}

void ListSearch(Dialog& dialog, int i, const Westring& text) {
  DialogElement* element = i < dialog.Count() ? dialog.Element(i) : nullptr;
  if (element == nullptr || element->TypeId() != kTypeListBox || text.IsEmpty()) return;
  auto& list = static_cast<ListBoxBase&>(*element);
  list.EndSearch();
  list.search = DropRight(text, 1);
  DialogEvent last;
  last.type = kDialogKey;
  last.code = static_cast<int32_t>(text[Length(text) - 1]);
  dialog.SendEvent(i, last);  // a worker may be telling the list its length right now
  list.ShowSearch();
}
