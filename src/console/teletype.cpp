// Tab, carriage return, backspace, line feed, wrapping and scrolling.
#include "console/teletype.h"

#include <algorithm>
#include <cwctype>

#include "console/scrollback.h"

namespace {

class Teletype {
 public:
  Teletype(TeletypeScreen& screen, uint8_t attribute, int x, int y)
      : screen(screen), attribute(attribute), x(x), y(y) {
    LoadRow();
  }
  ~Teletype() { screen.StoreRow(y, row); }
  Teletype(const Teletype&) = delete;
  Teletype& operator=(const Teletype&) = delete;

  void Print(wchar_t character);
  int X() const { return x; }
  int Y() const { return y; }

 private:
  void LoadRow() {
    row.SetLength(0);
    screen.LoadRow(y, row);
  }
  void NextRow();

  TeletypeScreen& screen;
  const uint8_t attribute;
  int x, y;
  CellString row;  // the row at y, put back when it is left
};

void Teletype::NextRow() {
  screen.StoreRow(y, row);
  x = 0;
  ++y;
  if (y >= screen.Rows()) {
    --y;
    row.SetLength(0);
    screen.LoadRow(0, row);
    ScrollBack.Append(row.Cells(), row.Length());
    screen.ScrollUpOneRow(attribute);
  }
  LoadRow();
}

void Teletype::Print(wchar_t character) {
  switch (character) {
    case L'\t': x = (x | 7) + 1; break;
    case L'\r': x = 0; break;
    case L'\b': x = std::max(x - 1, 0); break;
    case L'\n': NextRow(); break;
    default:
      if (iswprint(static_cast<wint_t>(character)) != 0) row[x++] = Cell{character, attribute};
  }
  if (x >= screen.Columns()) NextRow();
}

}  // namespace

void PrintText(TeletypeScreen& screen, const Westring& text, uint8_t attribute, int& x, int& y) {
  x = std::clamp(x, 0, screen.Columns() - 1);
  y = std::clamp(y, 0, screen.Rows() - 1);
  Teletype teletype(screen, attribute, x, y);
  for (const wchar_t* p = text.Text(); *p != 0; ++p) teletype.Print(*p);
  x = teletype.X();
  y = teletype.Y();
}
