// Code pages through iconv, with the program's own text as UCS-4LE. Multibyte
// pages are outside what is promised, but never outside the buffers.
#include "foundation/code_pages.h"

#include <iconv.h>

#include <cctype>
#include <cerrno>
#include <cstring>
#include <cwchar>

unsigned short DefaultCodePage = 850;

unsigned char UpperTable[256];
unsigned char LowerTable[256];
bool CaseTablesReady = false;

namespace {

constexpr char kWideForm[] = "UCS-4LE";
constexpr wchar_t kUndefinedByte = 0x2302;

// An iconv descriptor with its input and output places.
class Converter {
 public:
  Converter(const char* to, const char* from) : descriptor(iconv_open(to, from)) {}
  ~Converter() {
    if (IsOpen()) iconv_close(descriptor);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool IsOpen() const { return descriptor != reinterpret_cast<iconv_t>(-1); }

  // 0 when all input is used up, otherwise errno.
  int Run() { return iconv(descriptor, &in, &inLeft, &out, &outLeft) == size_t(-1) ? errno : 0; }
  // What a page with combining characters has held back for the next one.
  void Flush() { iconv(descriptor, nullptr, nullptr, &out, &outLeft); }

  char* in = nullptr;
  size_t inLeft = 0;
  char* out = nullptr;
  size_t outLeft = 0;

 private:
  iconv_t descriptor;
};

}  // namespace

Estring CodePageName(int page) {
  if (page == 878 || page == 20866) return "KOI8-R";
  if (page == 819) return "ISO-8859-1";
  return Estring::Format("CP%d", page);
}

// The buffer is cleared first, so the text ends where the conversion stopped.
Estring EncodeCodePage(const Westring& text, int page) {
  Converter converter(CodePageName(page).Text(), kWideForm);
  if (!converter.IsOpen()) return Estring();
  const int length = Length(text);
  Estring result = Estring::Replicate('\0', length);
  converter.in = reinterpret_cast<char*>(const_cast<wchar_t*>(text.Text()));
  converter.inLeft = length * sizeof(wchar_t);
  converter.out = result.Text();
  converter.outLeft = length;
  converter.Run();
  return result;
}

bool DecodeCodePage(const char* bytes, int page, Westring& target) {
  Converter converter(kWideForm, CodePageName(page).Text());
  if (!converter.IsOpen()) return false;
  const Estring source(bytes);
  const int length = Length(source);
  Westring result = Westring::Replicate(L'\0', length);
  converter.in = const_cast<char*>(source.Text());
  converter.inLeft = length;
  converter.out = reinterpret_cast<char*>(result.Text());
  converter.outLeft = length * sizeof(wchar_t);
  bool complete = true;
  while (converter.Run() != 0) {
    complete = false;
    converter.Flush();
    if (converter.outLeft < sizeof kUndefinedByte || converter.inLeft == 0) break;
    memcpy(converter.out, &kUndefinedByte, sizeof kUndefinedByte);
    converter.out += sizeof kUndefinedByte;
    converter.outLeft -= sizeof kUndefinedByte;
    converter.in++;
    converter.inLeft--;
  }
  converter.Flush();
  target = result;
  return complete;
}

Estring ToCodePage(const Westring& text, int page) { return EncodeCodePage(text, page); }
Estring ToSystem(const Westring& text) { return EncodeCodePage(text, DefaultCodePage); }
Westring FromSystem(const char* bytes) { return Westring(bytes, DefaultCodePage); }

void BuildCaseTables() {
  for (int byte = 1; byte < 256; byte++) {
    UpperTable[byte] = static_cast<unsigned char>(toupper(byte));
    LowerTable[byte] = static_cast<unsigned char>(tolower(byte));
  }
  CaseTablesReady = true;
}

Estring EncodingName(int mode, int page) {
  constexpr const char* kNames[] = {"UTF-32", "UTF-32", "UTF-16", "UTF-16", "UTF-8"};
  if (mode >= 0 && mode < 5) return kNames[mode];
  return mode == 5 ? Estring::Format("CP%d", page) : Estring();
}
