// How a list moves and scrolls.
#include "dialogs/list_view.h"

#include <algorithm>

int32_t ListView::ItemsInView() const { return std::clamp(count - top, 0, height); }

void ListView::Show(int32_t index) {
  row = index - top;
  if (row < 0) {
    top = index;
    row = 0;
  } else if (row >= height) {
    row = height - 1;
    top = index - row;
  }
}

void ListView::PointAt(int32_t shownRow) { row = std::clamp(shownRow, 0, std::max(ItemsInView() - 1, 0)); }

void ListView::Up() {
  if (Index() > 0) Show(Index() - 1);
}

void ListView::Down() {
  if (Index() < count - 1) Show(Index() + 1);
}

void ListView::PageUp() {
  if (top < height) {
    Home();
  } else {
    top -= height;
  }
}

void ListView::PageDown() {
  if (count - top <= height) {
    PointAt(height - 1);
  } else {
    top += height;
    PointAt(row);
  }
}

void ListView::Home() { top = row = 0; }

void ListView::End() {
  top = std::max(count - height, 0);
  PointAt(height - 1);
}

bool ListView::ScrollUp() {
  if (top == 0) return false;
  --top;
  return true;
}

bool ListView::ScrollDown() {
  if (count - top <= height) return false;
  ++top;
  return true;
}

int32_t NearestItem(int32_t selection, int32_t count) {
  if (count > 0) return std::clamp(selection, 0, count - 1);
  return selection == 0 ? 0 : -1;
}
