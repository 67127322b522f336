// Where lines begin. Forward they are read; backward the bytes are searched for the
// end of the line before, block by block.
#include <algorithm>
#include <optional>

#include "viewer/file_holes.h"
#include "viewer/viewer.h"

namespace {

constexpr int64_t kLongScan = 16 << 20;  // bytes after which the user may break off

bool IsLineEnd(int character) { return character == '\r' || character == '\n'; }

// In UTF-8 a line end may hide in a sequence that is longer than it has to be; it
// begins with one of these.
bool MayBeLineEnd(uint8_t byte) {
  return byte == '\n' || byte == '\r' || byte == 0xC0 || byte == 0xE0 || byte == 0xF0;
}

bool IsContinuation(int byte) { return (byte & 0xC0) == 0x80; }

// The offset behind the last line end among n bytes in units, n being a multiple of
// unit; 0 for none.
int BehindLastUnit(const uint8_t* bytes, int n, int unit, bool bigEndian) {
  const int low = bigEndian ? unit - 1 : 0;
  for (int i = n - unit; i >= 0; i -= unit) {
    if (!IsLineEnd(bytes[i + low])) continue;
    const bool isWhole = std::count(bytes + i, bytes + i + unit, 0) == unit - 1;
    if (isWhole) return i + unit;
  }
  return 0;
}

int BehindLastCandidate(const uint8_t* bytes, int n) {
  while (n > 0 && !MayBeLineEnd(bytes[n - 1])) --n;
  return n;
}

int BehindLastByte(const uint8_t* bytes, int n) {
  while (n > 0 && !IsLineEnd(bytes[n - 1])) --n;
  return n;
}

}  // namespace

int64_t CViewer::NextLine(int64_t offset) {
  if (HexMode) return offset > FileSize - kHexRow ? FileSize : offset + kHexRow;
  Position = offset;
  int length;
  ReadLine(length, kLongestLine);
  return Position;
}

int64_t CViewer::PrevLine(int64_t offset) {
  if (offset <= DataStart) return DataStart;
  if (HexMode) return std::max<int64_t>(offset - kHexRow, 0);
  const int64_t end = LineEndBefore(offset);
  if (end <= DataStart) return DataStart;
  return PieceStart(LineBegin(offset, end), end);
}

int64_t CViewer::LineStart(int64_t offset) {
  const int64_t start = LineBefore(offset);
  return NextLine(start) == offset ? offset : start;
}

// Where the line that goes up to offset has its last character behind it, so without
// the line end, or before its last character if it has no line end.
int64_t CViewer::LineEndBefore(int64_t offset) {
  // A damaged text must not keep us in place.
  const auto stepBack = [&](int& character) {
    const int64_t from = Position;
    character = PrevChar();
    Position = std::max(Position >= from ? from - 1 : Position, DataStart);
  };
  Position = offset;
  int last = 0, before = 0;
  stepBack(last);
  if (!IsLineEnd(last) || Position <= DataStart) return Position;
  const int64_t end = Position;
  stepBack(before);
  const bool isPair = IsLineEnd(before) && before != last;
  return isPair ? Position : end;
}

// The beginning of the line, of any length, that has offset behind it and no line end
// before end.
int64_t CViewer::LineBegin(int64_t offset, int64_t end) {
  const bool isKnown = LongLinePos > LongLineStart && longLineEncoding == Encoding;
  if (isKnown && offset > LongLineStart && offset <= LongLinePos) return LongLineStart;

  const bool isRemembered = isKnown && longLineEnd > LongLineStart && longLineEnd <= end;
  int64_t begin = BehindLineEnd(end, isRemembered ? longLineEnd : DataStart);
  if (isRemembered && begin == longLineEnd) begin = LongLineStart;
  if (end - begin > kLongestLine) {
    LongLineStart = begin;
    LongLinePos = offset;
    longLineEnd = end;
    longLineEncoding = Encoding;
  }
  return begin;
}

// Behind the last line end before from; floor if there is none down to it. A zero is
// none, so holes are passed over. Where the user breaks off is a line's beginning.
int64_t CViewer::BehindLineEnd(int64_t from, int64_t floor) {
  const int unit = BytesPerUnit();
  std::optional<BreakScope> breaking;
  std::optional<FileHoles> holes;
  int64_t at = from;
  while (at > floor) {
    if (from - at > kLongestLine) {
      if (!holes) holes.emplace(Descriptor());
      const int64_t begin = holes->Begin(at, floor);
      at -= (at - begin) / unit * unit;
      if (at <= floor) break;
    }
    if (from - at > kLongScan) {
      if (!breaking) breaking.emplace();
      if (breaking->Stopped()) return at;
    }
    const uint8_t* bytes;
    const int inMemory = BytesUpTo(at - 1, bytes);
    if (inMemory <= 0) {  // can't be read
      at = std::max(floor, (at - 1) / kBlockSize * kBlockSize);
      continue;
    }
    const int n = static_cast<int>(std::min<int64_t>(inMemory, at - floor)) / unit * unit;
    if (n == 0) {  // a unit lies across the border of two blocks
      Position = at;
      if (IsLineEnd(PrevChar())) return at;
      at -= unit;
      continue;
    }
    bytes += inMemory - n;
    const int behind = unit > 1
                           ? BehindLastUnit(bytes, n, unit, Encoding == kUtf32Big || Encoding == kUtf16Big)
                       : Encoding == kUtf8 ? BehindLastCandidate(bytes, n)
                                           : BehindLastByte(bytes, n);
    at -= n - behind;
    if (behind == 0) continue;
    if (Encoding != kUtf8) return at;
    Position = at - 1;
    if (IsLineEnd(GetChar())) return std::min(Position, from);
    --at;
  }
  return floor;
}

// A line that is longer than what is read at once goes in pieces, counted from its
// beginning. The pieces of UTF-8 are of bytes, so one may have to give a character to
// the next.
int64_t CViewer::PieceStart(int64_t begin, int64_t end) {
  const int64_t piece = int64_t{kLongestLine} * BytesPerUnit();
  const int64_t distance = end - begin;
  if (distance <= piece) return begin;
  int64_t start = begin + distance / piece * piece;
  if (start == end) start -= piece;
  if (Encoding == kUtf8)
    for (int i = 0; i < 3 && start > begin && IsContinuation(ByteAt(start)); ++i) --start;
  return start;
}

int64_t CViewer::LineBefore(int64_t offset) {
  int64_t start = PrevLine(offset);
  if (HexMode || offset - start >= kLongestLine) return start;
  for (int64_t next = NextLine(start); next > start && next < offset; next = NextLine(next)) {
    if (ByteAt(next) < 0) break;  // a file that has become shorter has no line there
    start = next;
  }
  return start;
}
