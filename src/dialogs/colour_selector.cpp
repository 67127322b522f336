// The list of colours: each item in the attribute that its keys change.
#include "dialogs/list_box.h"

namespace {

struct ColourKey {
  Key key;
  uint8_t mask;  // the nibble of the attribute
  int step;
};

constexpr ColourKey kColourKeys[] = {
    {'f', 0x0F, +1},
    {'F', 0x0F, -1},
    {'b', 0xF0, +16},
    {'B', 0xF0, -16},
};

const ColourKey* FindColourKey(const DialogEvent& event) {
  if (event.type != kDialogKey) return nullptr;
  for (const ColourKey& known : kColourKeys) {
    if (known.key == static_cast<Key>(event.code)) return &known;
  }
  return nullptr;
}

uint8_t Step(uint8_t attribute, const ColourKey& key) {
  return static_cast<uint8_t>((attribute & ~key.mask) | ((attribute + key.step) & key.mask));
}

}  // namespace

ColourSelector::ColourSelector(Dialog& dialog, int index, int x, int y, bool startGroup, int width,
                               int height, const char* const* strings, uint8_t* attributes, int n,
                               int32_t* selection, int exitMode)
    : ListBoxString(dialog, index, x, y, startGroup, width, height, strings, n, selection, exitMode),
      attributes(attributes) {}

int ColourSelector::HandleEvent(const DialogEvent& event) {
  const ColourKey* key = FindColourKey(event);
  if (key == nullptr) return ListBoxString::HandleEvent(event);
  EndSearch();
  Settle();
  if (count > 0) attributes[top + row] = Step(attributes[top + row], *key);
  Draw();
  return 1;
}

void ColourSelector::DrawItem(int shownRow, int index, uint8_t attribute) {
  const bool isItem = index < count;
  ListBoxString::DrawItem(shownRow, index, isItem ? attributes[index] : attribute);
  const bool isCurrent = isItem && shownRow == row;
  dialog.Print(x - 1, y + shownRow, isCurrent ? L">" : L" ", dialog.Attribute());
  dialog.Print(x + width, y + shownRow, isCurrent ? L"<" : L" ", dialog.Attribute());
}
