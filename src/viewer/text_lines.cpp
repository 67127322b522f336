// Lines of a text, and the characters of its code page.
#include <algorithm>
#include <new>
#include <utility>

#include "foundation/code_pages.h"
#include "viewer/text_file.h"

namespace {

constexpr int kByteValues = 256;
constexpr int kFirstCapacity = 65536;
// A line of a gigabyte is cut, long before an int can't tell its length.
constexpr int kMostCharacters = 1 << 28;

// What makes up the end of a line.
enum TerminatorKinds { kCarriageReturn = 1, kLineFeed = 2, kNul = 4 };

int TerminatorKind(int character) {
  if (character == '\r') return kCarriageReturn;
  if (character == '\n') return kLineFeed;
  return character == 0 ? kNul : 0;
}

bool EndsLine(int character) { return character < 1 || character == '\r' || character == '\n'; }

}  // namespace

const wchar_t* CTextFile::ReadLine(int& length, int maxChars) {
  length = 0;
  if (!line && !EnlargeLine()) return nullptr;
  if (Encoding == kCodePageText) PrepareCodePage();
  Position = std::max(Position, DataStart);
  const int stop = TakeCharacters(length, maxChars < 1 ? kMostCharacters : maxChars);
  line[length] = 0;
  if (length == 0 && stop < 0) {
    if (LineEndStyle == kLineEndUnknown) LineEndStyle = kLineEndLf;
    return nullptr;
  }
  EndedInTerminator = stop >= 0;
  TakeTerminators(stop);
  return line.get();
}

// Fills the line and gives the character it stopped at: one that ends lines, which
// is taken, or the first one too many, which is not.
int CTextFile::TakeCharacters(int& length, int most) {
  for (;;) {
    length += TakePlainBytes(length, std::min(most, lineCapacity - 1));
    const int64_t before = Position;
    const int invalidBefore = InvalidCount;
    const int character = GetChar();
    if (EndsLine(character)) return character;
    if (length >= most || (length + 1 >= lineCapacity && !EnlargeLine())) {
      Position = before;
      InvalidCount = invalidBefore;
      return character;
    }
    line[length++] = Encoding == kCodePageText ? translation[character] : static_cast<wchar_t>(character);
  }
}

// The run of bytes from Position on that are characters by themselves, until the
// line has most of them; their number. So text costs one look a block, and a hole
// of zeros that are blanks no more than text.
int CTextFile::TakePlainBytes(int length, int most) {
  if (BytesPerUnit() > 1) return 0;
  const uint8_t* bytes = nullptr;
  const int there = std::min(BytesFrom(Position, bytes), most - length);
  const int firstNotPlain = Encoding == kUtf8 ? 0x80 : 0x100;
  const int zero = KeepNul || Encoding == kUtf8 ? 0 : ' ';
  const wchar_t* const table = Encoding == kCodePageText ? translation.Text() : nullptr;
  wchar_t* const target = line.get() + length;
  int taken = 0;
  for (; taken < there; ++taken) {
    const int character = bytes[taken] == 0 ? zero : bytes[taken];
    if (EndsLine(character) || character >= firstNotPlain) break;
    target[taken] = table ? table[character] : character;
  }
  Position += taken;
  return taken;
}

// What belongs to the line end that begins with first: one of each kind, in any
// order. Nothing does where first is no part of one.
void CTextFile::TakeTerminators(int first) {
  int taken = 0, character = first;
  int64_t behind = Position;
  int invalidBefore = InvalidCount;
  for (int kind = TerminatorKind(first); kind != 0 && !(taken & kind); kind = TerminatorKind(character)) {
    taken |= kind;
    behind = Position;
    invalidBefore = InvalidCount;
    character = GetChar();
  }
  if (character >= 0) {
    Position = behind;
    InvalidCount = invalidBefore;
  }
  if (LineEndStyle == kLineEndUnknown && (taken & kLineFeed))
    LineEndStyle = taken & kCarriageReturn ? kLineEndCrLf : kLineEndLf;
}

// False where there is no memory, with the line as it was.
bool CTextFile::EnlargeLine() {
  const int capacity = std::max(kFirstCapacity, 2 * lineCapacity);
  std::unique_ptr<wchar_t[]> larger(new (std::nothrow) wchar_t[static_cast<size_t>(capacity)]);
  if (!larger) return false;
  std::copy_n(line.get(), lineCapacity, larger.get());
  line = std::move(larger);
  lineCapacity = capacity;
  return true;
}

// ---- the code page ---------------------------------------------------------

// No text holds the byte 0, so a dot stands in its place; a zero ends the line or is
// a blank before the table is asked. A page of pairs turns all bytes together into
// fewer characters; there each byte is taken alone. For a page that is unknown the
// bytes stand for themselves.
void CTextFile::PrepareCodePage() {
  if (translationPage == CodePage && !translation.IsEmpty()) return;
  translationPage = CodePage;
  char bytes[kByteValues + 1] = {'.'};
  for (int i = 1; i < kByteValues; ++i) bytes[i] = static_cast<char>(i);
  translation = L"";
  DecodeCodePage(bytes, CodePage, translation);
  if (Length(translation) == kByteValues) return;
  const bool isKnown = !translation.IsEmpty();
  translation = Westring(Estring(bytes));
  for (int i = 0; isKnown && i < kByteValues; ++i) {
    const char alone[] = {bytes[i], 0};
    Westring character;
    DecodeCodePage(alone, CodePage, character);
    if (Length(character) == 1) translation[i] = character[0];
  }
}
