// The keys of a list: those that move the cursor, those that end the dialog,
// and the others, which search.
#include "dialogs/list_box.h"

namespace {

struct MoveKey {
  Key key;
  void (ListView::*move)();
};

constexpr MoveKey kMoveKeys[] = {
    {kUp, &ListView::Up},              //
    {kDown, &ListView::Down},          //
    {kPageUp, &ListView::PageUp},      //
    {kPageDown, &ListView::PageDown},  //
    {kHome, &ListView::Home},          //
    {kEnd, &ListView::End},
};

}  // namespace

int ListBoxBase::HandleKey(Key key) {
  Settle();
  if (!MoveBy(key) && !LeaveBy(key)) return SearchBy(key) ? 1 : 0;
  EndSearch();
  TakeSelection();
  return 1;
}

bool ListBoxBase::MoveBy(Key key) {
  for (const MoveKey& known : kMoveKeys) {
    if (known.key != key) continue;
    ListView view = View();
    (view.*known.move)();
    SetView(view);
    return true;
  }
  return false;
}

bool ListBoxBase::LeaveBy(Key key) {
  if (key == kEnter) {
    Confirm();
    return true;
  }
  if (exitMode != kListAnyKey) return false;
  dialog.SetResult(static_cast<int>(key));
  return true;
}

void ListBoxBase::Confirm() {
  if (exitMode > 0) {
    dialog.SetResult(exitMode);
  } else {
    dialog.Accept();
  }
}
