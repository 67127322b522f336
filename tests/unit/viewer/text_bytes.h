// Bytes of files in the encodings, and a reader that is open on some.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/scratch_directory.h"
#include "viewer/text_file.h"

// The low width bytes of a unit, in either order.
inline std::string UnitBytes(uint32_t unit, int width, bool highFirst) {
  std::string bytes;
  for (int i = 0; i < width; ++i)
    bytes += static_cast<char>(unit >> 8 * (highFirst ? width - 1 - i : i) & 0xFF);
  return bytes;
}

inline std::string Utf8Bytes(uint32_t character) {
  std::string bytes;
  const auto more = [&bytes, character](int shift) {
    bytes += static_cast<char>(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) return {static_cast<char>(character)};
  if (character < 0x800) {
    bytes += static_cast<char>(0xC0 | character >> 6);
  } else if (character < 0x10000) {
    bytes += static_cast<char>(0xE0 | character >> 12);
    more(6);
  } else {
    bytes += static_cast<char>(0xF0 | character >> 18);
    more(12);
    more(6);
  }
  more(0);
  return bytes;
}

// A text in an encoding; characters above 255 need a mode that has them.
inline std::string Encoded(const std::u32string& text, int encoding) {
  constexpr int kWidths[] = {4, 4, 2, 2};
  std::string bytes;
  for (const char32_t character : text) {
    if (encoding == kUtf8)
      bytes += Utf8Bytes(character);
    else if (encoding > kUtf8)
      bytes += static_cast<char>(character);
    else
      bytes += UnitBytes(character, kWidths[encoding], encoding == kUtf32Big || encoding == kUtf16Big);
  }
  return bytes;
}

// Instead of a line, where there is none.
inline const std::wstring kNoLine = L"(end of the file)";

// A file with content, read in an encoding; without one it is found out.
class OpenText : public CTextFile {
 public:
  explicit OpenText(const std::string& content, int encoding = kUnknownEncoding) {
    box.Write("text", content);
    EXPECT_EQ(Open(Path()), 0);
    if (encoding != kUnknownEncoding) Encoding = encoding;
  }

  Westring Path() const { return Westring(box.Path("text").c_str()); }
  std::wstring Line(int most = 0) {
    int length = -1;
    const wchar_t* text = ReadLine(length, most);
    if (!text) return kNoLine;
    EXPECT_EQ(text[length], 0);
    return std::wstring(text, static_cast<size_t>(length));
  }
  std::vector<std::wstring> Lines(int most = 0) {
    std::vector<std::wstring> lines;
    for (std::wstring text = Line(most); text != kNoLine; text = Line(most)) lines.push_back(text);
    return lines;
  }

  ScratchDirectory box;
};
