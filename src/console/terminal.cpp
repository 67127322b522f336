// Text and control bytes of a child's output.
#include "console/terminal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/scrollback.h"

namespace {

constexpr char kBell = 7, kBackspaceByte = 8, kTabByte = 9, kLineFeed = 10, kReturn = 13, kEscapeByte = 27;
constexpr char kTitleEnd = '\x9C';
// A title without an end must not swallow all that follows; but what is sent
// as one, a clipboard for example, may be long.
constexpr int kMostTitleBytes = 1 << 20;

bool IsControl(char byte) { return static_cast<unsigned char>(byte) < 32; }
bool IsPlain(char byte) { return static_cast<signed char>(byte) >= 32; }  // a character of one byte
bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// Bytes of the UTF-8 sequence that a byte begins; 1 where it begins none.
int SequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte >= 0xF0 && byte < 0xF8) return 4;
  if (byte >= 0xE0 && byte < 0xF0) return 3;
  return byte >= 0xC0 && byte < 0xE0 ? 2 : 1;
}

// How many bytes at the end of text begin a character that goes on behind it.
int UnfinishedBytes(const char* text, int n) {
  for (int back = 1; back <= std::min(n, 3); ++back) {
    const char byte = text[n - back];
    if (!IsContinuation(byte)) return SequenceLength(byte) > back ? back : 0;
  }
  return 0;
}

// From 96 on, in the character set of lines and symbols.
constexpr wchar_t kGraphics[] = {
    0x25C6, 0x2592, 0x2409, 0x240C, 0x240D, 0x240A, 0x00B0, 0x00B1, 0x2424, 0x240B, 0x2518,
    0x2510, 0x250C, 0x2514, 0x253C, 0x23BA, 0x23BB, 0x2500, 0x23BC, 0x23BD, 0x251C, 0x2524,
    0x2534, 0x252C, 0x2502, 0x2264, 0x2265, 0x03C0, 0x2260, 0x00A3, 0x00B7,
};
constexpr int kFirstGraphic = 96;
static_assert(std::size(kGraphics) == 126 - kFirstGraphic + 1);

wchar_t GraphicCharacter(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (code == kFirstGraphic - 1) return L' ';
  return code >= kFirstGraphic && code <= 126 ? kGraphics[code - kFirstGraphic] : static_cast<wchar_t>(code);
}

// As MapCharacter, without a call for nearly all.
template <class Char>
int32_t StoredCharacter(Char character) {
  return character >= 32 && character < 127 ? character : MapCharacter(character);
}

}  // namespace

CTerminal::CTerminal(TerminalScreen& screen, int masterFd)
    : screen(screen),
      grid(screen.Grid()),
      masterFd(masterFd),
      columns(grid.Columns()),
      rows(grid.Rows()),
      colours(Options::Colours[kColourCommandLine]),
      scrollBottom(grid.Rows() - 1) {
  const int flags = fcntl(masterFd, F_GETFL);
  if (flags != -1) fcntl(masterFd, F_SETFL, flags | O_NONBLOCK);
}

// A child that is killed has the cursor anywhere, and what comes next would be
// written over the rows that are shown again.
CTerminal::~CTerminal() {
  if (mainScreen != nullptr)
    screen.SetCursor(std::min(mainX, grid.Columns() - 1), std::min(mainY, grid.Rows() - 1));
  LeaveAlternateScreen();
}

void CTerminal::SendKey(Key code) {
  if (!SendRest()) return;
  const Estring bytes = KeySequence(code, applicationCursor);
  const int length = code < 256 ? 1 : Length(bytes);  // the zero byte is a key too
  const ssize_t sent = length > 0 ? write(masterFd, bytes.Text(), static_cast<size_t>(length)) : 0;
  if (sent > 0) unsentRest.Assign(bytes.Text() + sent, length - static_cast<int>(sent));
}

// A sequence that was cut, where there was no room for more, goes on before
// anything else: the child would read its end as text. False while it has none.
bool CTerminal::SendRest() {
  const int length = Length(unsentRest);
  if (length == 0) return true;
  const ssize_t sent = write(masterFd, unsentRest.Text(), static_cast<size_t>(length));
  if (sent > 0) unsentRest = Estring(unsentRest.Text() + sent);
  return unsentRest.IsEmpty();
}

// ---- the stream ----------------------------------------------------------------

void CTerminal::Write(const char* bytes, int n) {
  TakeSize();
  screen.GetCursor(x, y);
  x = std::clamp(x, 0, columns);
  y = std::clamp(y, 0, rows - 1);
  cursorSize = screen.CursorSize();
  const char* const end = bytes + n;
  while (bytes < end) {
    switch (state) {
      case State::Text:
        bytes = TakeText(bytes, end);
        break;
      case State::Escape:
        TakeEscape(*bytes++);
        break;
      case State::Charset:
        TakeCharset(*bytes++);
        break;
      case State::Title:
        TakeTitle(*bytes++);
        break;
      case State::Csi:
        TakeCsi(*bytes++);
        break;
    }
  }
  screen.SetCursor(x, y);
  screen.SetCursorSize(cursorSize);
}

// A control byte, or text up to the next one; of that the plain part by itself,
// which is all there is in nearly every row.
const char* CTerminal::TakeText(const char* from, const char* to) {
  if (IsControl(*from)) {
    if (*from != kBell) PutPending();  // a bell may ring in the middle of a character
    TakeControl(*from);
    return from + 1;
  }
  if (pending.IsEmpty() && !graphicsCharset) {
    const char* const end = std::find_if_not(from, to, IsPlain);
    PutText(from, static_cast<int>(end - from));
    if (end > from) return end;
  }
  const char* const end = std::find_if(from, to, IsControl);
  PutRun(from, static_cast<int>(end - from));
  return end;
}

void CTerminal::TakeControl(char byte) {
  switch (byte) {
    case kBell:
      screen.Beep();
      break;
    case kBackspaceByte:
      x = std::max(x - 1, 0);
      break;
    case kTabByte:
      x = (x | 7) + 1;
      if (x >= columns) {
        LineFeed();
        x = 0;
      }
      break;
    case kLineFeed:
      LineFeed();
      break;
    case kReturn:
      x = 0;
      break;
    case kEscapeByte:
      state = State::Escape;
      break;
    default:
      break;
  }
}

void CTerminal::TakeCharset(char byte) {
  state = State::Text;
  if (byte == '0') graphicsCharset = true;
  if (byte == 'B') graphicsCharset = false;
}

// The end comes as one byte or as the two that stand for it.
void CTerminal::TakeTitle(char byte) {
  const bool isEnd = byte == kBell || byte == kTitleEnd || (titleEscape && byte == '\\');
  titleEscape = byte == kEscapeByte;
  if (isEnd || ++titleBytes == kMostTitleBytes) state = State::Text;
}

// ---- text ----------------------------------------------------------------------

void CTerminal::PutRun(const char* text, int n) {
  if (graphicsCharset)
    PutGraphics(text, n);
  else
    PutUtf8(text, n);
}

void CTerminal::PutGraphics(const char* text, int n) {
  wchar_t shown[128];
  while (n > 0) {
    const int piece = std::min(n, static_cast<int>(std::size(shown)));
    std::transform(text, text + piece, shown, GraphicCharacter);
    PutText(shown, piece);
    text += piece;
    n -= piece;
  }
}

void CTerminal::PutUtf8(const char* text, int n) {
  Estring run;
  run.Assign(text, n);
  if (!pending.IsEmpty()) run = pending + run;
  const int length = Length(run), whole = length - UnfinishedBytes(run.Text(), length);
  pending = run.Text() + whole;
  run[whole] = 0;
  const Westring decoded(run.Text());
  PutText(decoded.Text(), Length(decoded));
}

// A character that something else came into the middle of.
void CTerminal::PutPending() {
  if (pending.IsEmpty()) return;
  const Westring decoded(pending.Text());
  pending = "";
  PutText(decoded.Text(), Length(decoded));
}

// Characters of either width, a row's worth at a time.
template <class Char>
void CTerminal::PutText(const Char* text, int n) {
  const uint8_t attribute = colours.Attribute();
  while (n > 0) {
    if (x >= columns) WrapLine();
    const int fit = std::min(n, columns - x);
    if (insertMode) InsertBlanks(fit);
    Cell* const cells = grid.MutableRow(y) + x;
    for (int i = 0; i < fit; ++i) cells[i] = Cell{StoredCharacter(text[i]), attribute};
    screen.Changed({x, y, x + fit - 1, y});
    lastCharacter = text[fit - 1];
    x += fit;
    text += fit;
    n -= fit;
  }
}

void CTerminal::PutRepeated(wchar_t character, int n) {
  const Westring text = Westring::Replicate(character, n);
  PutText(text.Text(), n);
}

// ---- rows ----------------------------------------------------------------------

// A region that ended with the screen still does.
void CTerminal::TakeSize() {
  if (columns == grid.Columns() && rows == grid.Rows()) return;
  const bool isToTheEnd = scrollBottom == rows - 1;
  columns = grid.Columns();
  rows = grid.Rows();
  scrollTop = std::min(scrollTop, rows - 1);
  scrollBottom = isToTheEnd ? rows - 1 : std::min(scrollBottom, rows - 1);
}

void CTerminal::LineFeed() {
  if (y >= scrollBottom)
    ScrollUp(1);
  else
    ++y;
}

// Looks at the screen's last row, not at the region's.
void CTerminal::WrapLine() {
  x = 0;
  if (y + 1 >= rows)
    ScrollUp(1);
  else
    ++y;
}

void CTerminal::SaveScreenRow(int y) { ScrollBack.Append(grid.Row(y), columns); }

// The rows that are kept are the screen's first, wherever the region begins.
void CTerminal::ScrollUp(int lines) {
  lines = std::min(lines, rows);
  if (lines < 1) return;
  if (mainScreen == nullptr && Options::ConsoleScrollback) {
    for (int i = 0; i < lines; ++i) SaveScreenRow(i);
  }
  Scroll(Region(), lines);
}

void CTerminal::ScrollDown(int lines) { Scroll(Region(), -lines); }

void CTerminal::Scroll(const CellRect& block, int lines) {
  if (block.IsEmpty() || lines == 0) return;
  const int height = block.bottom - block.top + 1;
  lines = std::clamp(lines, -height, height);
  grid.Scroll(block, lines, colours.Attribute());
  screen.Scrolled(block, lines);
}
