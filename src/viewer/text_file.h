// A text of any size and encoding, read by characters and lines, forward and
// backward.
#pragma once

#include <memory>

#include "foundation/strings.h"
#include "viewer/block_file.h"

// In the order in which the marks at a file's beginning are tried.
enum TextEncoding {
  kUtf32Little = 0,
  kUtf32Big = 1,
  kUtf16Little = 2,
  kUtf16Big = 3,
  kUtf8 = 4,
  kCodePageText = 5,  // one byte a character
  kUnknownEncoding = 6,
};

enum LineEnd { kLineEndCrLf = 0, kLineEndLf = 1, kLineEndUnknown = 2 };

constexpr int64_t kSearchNone = -2, kSearchStopped = -1;  // instead of an offset

class CTextFile : public CBlockFile {
 public:
  CTextFile();
  ~CTextFile();

  // Opens and detects the encoding, unless one was set before; then only a mark
  // at the beginning counts.
  int Open(const Westring& path);

  // The character at Position, which moves behind it; -1 at the end of the file,
  // where a character that is cut off there is passed over.
  int GetChar();
  // The character before Position, which moves onto it; -1 at the beginning, which
  // leaves Position negative, and where nothing can be read.
  int PrevChar();

  // The line from Position on without its end, zero-ended and valid until the next
  // read, and its length; at most maxChars characters, any number where that is
  // below 1. Null at the end of the file.
  const wchar_t* ReadLine(int& length, int maxChars);

  // Offset of the first hit from start on, or back from it; kSearchNone, or
  // kSearchStopped for a Break or an encoding that is not known.
  int64_t Search(const Westring& text, int64_t start, bool caseSensitive, bool wholeWord, bool reverse);
  // The same over the bytes of a code page.
  int64_t SearchBytes(const Westring& text, int64_t start, bool reverse, bool caseSensitive, bool wholeWord,
                      int codePage);

  int BytesPerUnit() const;  // 1 for UTF-8
  bool BigEndian() const { return Encoding == kUtf32Big || Encoding == kUtf16Big; }

  int Encoding = kUnknownEncoding;
  int CodePage;  // for kCodePageText
  bool HasBOM = false;
  int LineEndStyle = kLineEndUnknown;
  bool EndedInTerminator = false;  // the line read last
  bool KeepNul = true;             // a zero is read as it is, not as a blank
  int InvalidCount = 0;            // bytes met that begin no character of UTF-8
  int64_t Position = 0;            // of the next character
  int64_t DataStart = 0;           // behind the mark

 private:
  void DetectEncoding();
  void PrepareCodePage();
  int NextByte();
  int NextUtf8();
  int NextUnit();
  bool StepBack();
  bool EnlargeLine();
  int TakePlainBytes(int length, int most);
  int TakeCharacters(int& length, int most);
  void TakeTerminators(int first);

  std::unique_ptr<wchar_t[]> line;
  int lineCapacity = 0;
  Westring translation;  // the 256 characters of translationPage
  int translationPage = 0;
};
