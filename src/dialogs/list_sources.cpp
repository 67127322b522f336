// Where the items of a list come from: an array of strings or a store of them;
// and the functions of Dialog that make lists.
#include "console/console.h"
#include "dialogs/list_box.h"

namespace {

Westring Decode(const char* bytes) {
  return bytes != nullptr ? Westring(bytes, Console->CodePage()) : Westring();
}

}  // namespace

ListBoxString::ListBoxString(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                             const char* const* strings, int n, int32_t* selection, int exitMode)
    : ListBoxBase(dialog, index, x, y, startGroup, width, height, n, selection, exitMode), strings(strings) {}

Westring ListBoxString::GetItemText(int index) { return Decode(strings[index]); }

ListBoxEstring::ListBoxEstring(Dialog& dialog, int index, int x, int y, bool startGroup, int width,
                               int height, TObjectStore<Estring>* store, int32_t* selection, int exitMode)
    : ListBoxBase(dialog, index, x, y, startGroup, width, height, store->Count(), selection, exitMode),
      store(store) {}

// A store may be shorter than its list has been told, until it is told anew.
Westring ListBoxEstring::GetItemText(int index) {
  const Estring* item = store->Peek(index);
  return item != nullptr ? Decode(item->Text()) : Westring();
}

ListBoxWestring::ListBoxWestring(Dialog& dialog, int index, int x, int y, bool startGroup, int width,
                                 int height, WestringStore* store, int32_t* selection, int exitMode)
    : ListBoxBase(dialog, index, x, y, startGroup, width, height, store->Count(), selection, exitMode),
      store(store) {}

Westring ListBoxWestring::GetItemText(int index) {
  const Westring* item = store->Peek(index);
  return item != nullptr ? *item : Westring();
}

int Dialog::AddListBoxString(int x, int y, bool startGroup, int width, int height, const char* const* strings,
                             int n, int32_t* selection, int exitMode) {
  return Add(
      new ListBoxString(*this, count, x, y, startGroup, width, height, strings, n, selection, exitMode));
}

int Dialog::AddListBoxEstring(int x, int y, bool startGroup, int width, int height,
                              TObjectStore<Estring>* store, int32_t* selection, int exitMode) {
  return Add(new ListBoxEstring(*this, count, x, y, startGroup, width, height, store, selection, exitMode));
}

int Dialog::AddListBoxWestring(int x, int y, bool startGroup, int width, int height, WestringStore* store,
                               int32_t* selection, int exitMode) {
  return Add(new ListBoxWestring(*this, count, x, y, startGroup, width, height, store, selection, exitMode));
}

int Dialog::AddColourSelector(int x, int y, bool startGroup, int width, int height,
                              const char* const* strings, uint8_t* attributes, int n, int32_t* selection,
                              int exitMode) {
  return Add(new ColourSelector(*this, count, x, y, startGroup, width, height, strings, attributes, n,
                                selection, exitMode));
}
