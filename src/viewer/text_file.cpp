// Opening a text, and its characters forward and backward.
#include "viewer/text_file.h"

#include <algorithm>

#include "config/values/options.h"
#include "viewer/encoding_detection.h"

namespace {

constexpr int kReplacement = 0xFFFD;

// Bytes that follow a first byte of UTF-8; 0 for what is none.
int BytesBehind(int first) {
  if (first < 0xC0 || first >= 0xF8) return 0;
  return first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
}

}  // namespace

CTextFile::CTextFile() : CodePage(TextPage()) {}

CTextFile::~CTextFile() = default;

int CTextFile::Open(const Westring& path) {
  const int code = CBlockFile::Open(path);
  LineEndStyle = kLineEndUnknown;
  EndedInTerminator = false;
  InvalidCount = 0;
  DetectEncoding();
  return code;
}

void CTextFile::DetectEncoding() {
  const DetectedMark mark = FindMark(*this);
  HasBOM = mark.encoding != kUnknownEncoding;
  Position = DataStart = mark.length;
  if (HasBOM) {
    Encoding = mark.encoding;
  } else if (Encoding == kUnknownEncoding && IsOpen()) {
    Encoding = GuessEncoding(*this);
  }
}

int CTextFile::BytesPerUnit() const {
  constexpr int kWidths[] = {4, 4, 2, 2};
  return Encoding >= kUtf32Little && Encoding <= kUtf16Big ? kWidths[Encoding] : 1;
}

// ---- forward ---------------------------------------------------------------

int CTextFile::GetChar() { return Encoding == kUtf8 ? NextUtf8() : NextUnit(); }

int CTextFile::NextByte() {
  const int byte = ByteAt(Position);
  if (byte >= 0) ++Position;
  return byte;
}

// The form of the bytes behind the first is not looked at.
int CTextFile::NextUtf8() {
  const int first = NextByte();
  if (first < 0x80) return first;
  const int behind = BytesBehind(first);
  if (behind == 0) {
    ++InvalidCount;
    return first & 0x7F;
  }
  int character = first & 0x3F >> behind;
  for (int i = 0; i < behind; ++i) {
    const int byte = NextByte();
    if (byte < 0) return -1;
    character = character << 6 | (byte & 0x3F);
  }
  return character;
}

// Halves of a pair in UTF-16 stay two characters.
int CTextFile::NextUnit() {
  const int width = BytesPerUnit();
  const bool highFirst = BigEndian();
  uint32_t character = 0;
  for (int i = 0; i < width; ++i) {
    const int byte = NextByte();
    if (byte < 0) return -1;
    character |= static_cast<uint32_t>(byte) << 8 * (highFirst ? width - 1 - i : i);
  }
  if (character == 0) return KeepNul ? 0 : ' ';
  // A word that no int takes must not look like the end of the file.
  return character > INT32_MAX ? kReplacement : static_cast<int>(character);
}

// ---- backward --------------------------------------------------------------

// A character that the file's end cuts off is none, neither forward nor here.
int CTextFile::PrevChar() {
  if (Encoding == kUtf8) {
    const int byte = ByteAt(Position - 1);
    if (byte >= 0 && byte < 0x80) {
      --Position;
      return byte;
    }
  }
  while (StepBack()) {
    const int64_t start = Position;
    const int character = GetChar();
    const bool isCut = character < 0 && Position > start;
    Position = start;
    if (!isCut) return character;
  }
  return -1;
}

// To the first byte of the character before; false before the beginning.
bool CTextFile::StepBack() {
  Position = ReadableEnd(Position);
  if (Encoding == kUtf8) {
    do --Position;
    while (Position >= 0 && (ByteAt(Position) & 0xC0) == 0x80);
    return Position >= 0;
  }
  // From inside of a unit it goes to that unit's start, so that a position in any
  // byte finds the text again.
  const int width = BytesPerUnit();
  const int64_t inside = ((Position - DataStart) % width + width) % width;
  Position -= inside != 0 ? inside : width;
  return Position >= 0;
}
