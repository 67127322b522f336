// Escape sequences: one row a sequence, with its handler.
#include <algorithm>

#include "console/terminal.h"

namespace {

constexpr size_t kMostParameters = 65536;
constexpr int kMostNumber = 1000000;  // far beyond any screen

constexpr int kVisibleCursor = 15;  // percent

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

}  // namespace

// ---- parsing -------------------------------------------------------------------

void CTerminal::TakeEscape(char byte) {
  state = State::Text;
  switch (byte) {
    case '7':
      SaveCursor();
      break;
    case '8':
      RestoreCursor();
      break;
    case '(':
      state = State::Charset;
      break;
    case '=':
      applicationKeypad = true;
      break;
    case '>':
      applicationKeypad = false;
      break;
    case 'M':
      ScrollDown(1);
      break;
    case '[':
      csi.Begin();
      state = State::Csi;
      break;
    case ']':
      titleBytes = 0;
      titleEscape = false;
      state = State::Title;
      break;
    default:
      TakeText(&byte, &byte + 1);  // only the escape is dropped
  }
}

// The parameters keep their room: sequences come by the thousand.
void CsiSequence::Begin() {
  prefix = 0;
  isForeign = isFull = false;
  parameters.clear();
}

void CsiSequence::TakeDigit(char digit) {
  if (isFull) return;
  if (parameters.empty()) parameters.push_back(0);
  parameters.back() = std::min(parameters.back() * 10 + (digit - '0'), kMostNumber);
}

void CsiSequence::NextParameter() {
  if (parameters.empty()) parameters.push_back(0);  // the missing one in front
  if (parameters.size() < kMostParameters)
    parameters.push_back(0);
  else
    isFull = true;
}

// What no sequence of ours holds is read to its end, so that it does not show.
// Controls work inside of a sequence, and an escape begins another one.
void CTerminal::TakeCsi(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (IsDigit(byte)) {
    csi.TakeDigit(byte);
  } else if (byte == ';') {
    csi.NextParameter();
  } else if ((byte == '?' || byte == '>') && csi.parameters.empty() && csi.prefix == 0) {
    csi.prefix = byte;
  } else if (code >= ' ' && code < '@') {
    csi.isForeign = true;
  } else if (code < ' ') {
    TakeControl(byte);
  } else {
    state = State::Text;
    if (!csi.isForeign) EndCsi(byte);
  }
}

// ---- what the sequences do -------------------------------------------------------

struct CsiTable {
  struct Row {
    char prefix, final;
    void (*run)(CTerminal&, const CsiSequence&);
  };
  static const Row kRows[];

  struct Mode {
    int number;
    void (*set)(CTerminal&);
    void (*reset)(CTerminal&);
  };
  static const Mode kPrivateModes[];

  static const Mode* FindPrivateMode(int number);

  static int Count(const CsiSequence& csi) { return std::max(csi.First(1), 1); }

  // These four take a 0 as it stands.
  static void Up(CTerminal& t, const CsiSequence& csi) { t.y = std::max(t.y - csi.First(1), 0); }
  static void Down(CTerminal& t, const CsiSequence& csi) { t.y = std::min(t.y + csi.First(1), t.rows - 1); }
  static void Right(CTerminal& t, const CsiSequence& csi) {
    t.x = std::min(t.x + csi.First(1), t.columns - 1);
  }
  static void Left(CTerminal& t, const CsiSequence& csi) { t.x = std::max(t.x - csi.First(1), 0); }

  static void ToColumn(CTerminal& t, const CsiSequence& csi) { t.x = std::min(Count(csi), t.columns) - 1; }
  static void ToRow(CTerminal& t, const CsiSequence& csi) { t.y = std::min(Count(csi), t.rows) - 1; }
  static void ToPlace(CTerminal& t, const CsiSequence& csi) {
    const int column = csi.parameters.size() > 1 ? csi.parameters[1] : 1;
    ToRow(t, csi);
    t.x = std::clamp(column, 1, t.columns) - 1;
  }

  static void EraseScreen(CTerminal& t, const CsiSequence& csi) {
    switch (csi.First(0)) {
      case 0:
        t.Blank(t.x, t.y, t.columns - 1, t.y);
        t.Blank(0, t.y + 1, t.columns - 1, t.rows - 1);
        break;
      case 1:  // unlike K, with the cursor's cell
        t.Blank(0, t.y, std::min(t.x, t.columns - 1), t.y);
        t.Blank(0, 0, t.columns - 1, t.y - 1);
        break;
      case 2:
        t.Blank(0, 0, t.columns - 1, t.rows - 1);
        break;
      default:
        break;
    }
  }

  static void EraseLine(CTerminal& t, const CsiSequence& csi) {
    switch (csi.First(0)) {
      case 0:
        t.Blank(t.x, t.y, t.columns - 1, t.y);
        break;
      case 1:
        t.Blank(0, t.y, t.x - 1, t.y);
        break;
      case 2:
        t.Blank(0, t.y, t.columns - 1, t.y);
        break;
      default:
        break;
    }
  }

  // Under the region the lines move down to the last row.
  static CellRect BlockFromCursor(const CTerminal& t) {
    return {0, t.y, t.columns - 1, t.y > t.scrollBottom ? t.rows - 1 : t.scrollBottom};
  }
  static void InsertLines(CTerminal& t, const CsiSequence& csi) { t.Scroll(BlockFromCursor(t), -Count(csi)); }
  static void DeleteLines(CTerminal& t, const CsiSequence& csi) { t.Scroll(BlockFromCursor(t), Count(csi)); }

  static void InsertCells(CTerminal& t, const CsiSequence& csi) { t.InsertBlanks(Count(csi)); }
  static void DeleteCells(CTerminal& t, const CsiSequence& csi) { t.DeleteCharacters(Count(csi)); }
  static void EraseCells(CTerminal& t, const CsiSequence& csi) {
    t.Blank(t.x, t.y, std::min(t.x + csi.First(1), t.columns) - 1, t.y);
  }

  static void ScrollUp(CTerminal& t, const CsiSequence& csi) { t.ScrollUp(csi.First(0)); }
  static void ScrollDown(CTerminal& t, const CsiSequence& csi) { t.ScrollDown(Count(csi)); }

  // One screenful reaches the last row from anywhere, another one scrolls all out
  // of any region. More would show nothing else, and fill the scrollback; the
  // cursor ends in the same column.
  static void Repeat(CTerminal& t, const CsiSequence& csi) {
    const int most = 2 * t.columns * t.rows, count = Count(csi);
    if (t.lastCharacter == 0) return;
    t.PutRepeated(t.lastCharacter, count > most ? most + (count - most) % t.columns : count);
  }

  static void Colours(CTerminal& t, const CsiSequence& csi) {
    if (csi.parameters.empty()) t.colours.Apply(0);
    for (const int parameter : csi.parameters) t.colours.Apply(parameter);
  }

  static void SetInsert(CTerminal& t, const CsiSequence& csi) {
    for (const int mode : csi.parameters)
      if (mode == 4) t.insertMode = true;
  }
  static void ResetInsert(CTerminal& t, const CsiSequence& csi) {
    for (const int mode : csi.parameters)
      if (mode == 4) t.insertMode = false;
  }
  static void SetPrivate(CTerminal& t, const CsiSequence& csi) {
    for (const int number : csi.parameters)
      if (const Mode* mode = FindPrivateMode(number)) mode->set(t);
  }
  static void ResetPrivate(CTerminal& t, const CsiSequence& csi) {
    for (const int number : csi.parameters)
      if (const Mode* mode = FindPrivateMode(number)) mode->reset(t);
  }

  // Without both margins only the upper one goes back: programs that leave the
  // lower one where it was rely on it.
  static void SetRegion(CTerminal& t, const CsiSequence& csi) {
    if (csi.parameters.size() != 2) {
      t.scrollTop = 0;
      return;
    }
    const int top = csi.parameters[0], bottom = csi.parameters[1];
    if (top >= 1 && top <= t.rows) t.scrollTop = top - 1;
    if (bottom >= 1 && bottom <= t.rows) t.scrollBottom = bottom - 1;
  }

  static void EnterAlternate(CTerminal& t) { t.EnterAlternateScreen(); }
  static void LeaveAlternate(CTerminal& t) { t.LeaveAlternateScreen(); }
};

const CsiTable::Row CsiTable::kRows[] = {
    {0, 'A', Up},          {0, 'B', Down},         {0, 'C', Right},          {0, 'D', Left},
    {0, 'G', ToColumn},    {0, 'H', ToPlace},      {0, 'd', ToRow},          {0, 'J', EraseScreen},
    {0, 'K', EraseLine},   {0, 'L', InsertLines},  {0, 'M', DeleteLines},    {0, 'P', DeleteCells},
    {0, '@', InsertCells}, {0, 'X', EraseCells},   {0, 'S', ScrollUp},       {0, 'T', ScrollDown},
    {0, 'b', Repeat},      {0, 'm', Colours},      {0, 'h', SetInsert},      {0, 'l', ResetInsert},
    {0, 'r', SetRegion},   {'?', 'h', SetPrivate}, {'?', 'l', ResetPrivate},
};

const CsiTable::Mode CsiTable::kPrivateModes[] = {
    {1, [](CTerminal& t) { t.applicationCursor = true; }, [](CTerminal& t) { t.applicationCursor = false; }},
    {25, [](CTerminal& t) { t.cursorSize = kVisibleCursor; }, [](CTerminal& t) { t.cursorSize = 0; }},
    {47, EnterAlternate, LeaveAlternate},
    {1047, EnterAlternate, LeaveAlternate},
    {1048, [](CTerminal& t) { t.SaveCursor(); }, [](CTerminal& t) { t.RestoreCursor(); }},
    {1049,
     [](CTerminal& t) {
       t.SaveCursor();
       t.EnterAlternateScreen();
     },
     [](CTerminal& t) {
       t.LeaveAlternateScreen();
       t.RestoreCursor();
     }},
};

const CsiTable::Mode* CsiTable::FindPrivateMode(int number) {
  for (const Mode& mode : kPrivateModes)
    if (mode.number == number) return &mode;
  return nullptr;
}

void CTerminal::EndCsi(char final) {
  for (const CsiTable::Row& row : CsiTable::kRows) {
    if (row.prefix != csi.prefix || row.final != final) continue;
    row.run(*this, csi);
    return;
  }
}

// ---- cells and screens -----------------------------------------------------------

void CTerminal::Blank(int left, int top, int right, int bottom) {
  screen.Changed(grid.FillBlank(left, top, right - left + 1, bottom - top + 1, colours.Attribute()));
}

// The rest of the row moves right; what leaves it is lost.
void CTerminal::InsertBlanks(int n) {
  n = std::min(n, columns - x);
  if (n <= 0) return;
  Cell* const row = grid.MutableRow(y);
  std::copy_backward(row + x, row + columns - n, row + columns);
  std::fill(row + x, row + x + n, Cell{' ', colours.Attribute()});
  screen.Changed({x, y, columns - 1, y});
}

void CTerminal::DeleteCharacters(int n) {
  n = std::min(n, columns - x);
  if (n <= 0) return;
  Cell* const row = grid.MutableRow(y);
  std::copy(row + x + n, row + columns, row + x);
  std::fill(row + columns - n, row + columns, Cell{' ', colours.Attribute()});
  screen.Changed({x, y, columns - 1, y});
}

void CTerminal::SaveCursor() {
  savedX = x;
  savedY = y;
}

void CTerminal::RestoreCursor() {
  x = std::min(savedX, columns);
  y = std::min(savedY, rows - 1);
}

void CTerminal::EnterAlternateScreen() {
  if (mainScreen != nullptr) return;
  mainScreen = grid.SaveBlock(0, 0, columns, rows);
  mainColumns = columns;
  mainRows = rows;
  mainX = x;
  mainY = y;
  Blank(0, 0, columns - 1, rows - 1);
  x = y = 0;
}

void CTerminal::LeaveAlternateScreen() {
  if (mainScreen == nullptr) return;
  screen.Changed(grid.RestoreBlock(0, 0, mainColumns, mainRows, mainScreen.get()));
  mainScreen.reset();
}
