// Launchers; see desktop_file.h. What stands in one is escaped twice: a value of
// the file has escapes of its own, and those of a quoted argument are under them.
#include "panels/desktop_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cwchar>
#include <cwctype>

#include "foundation/paths.h"
#include "foundation/std_file.h"

namespace {

constexpr char kExtension[] = ".desktop";
constexpr int kMostNameBytes = 255;

// Also what is no character: a byte of broken UTF-8 may stand as a negative one.
bool IsControl(wchar_t ch) { return ch < 32 || (ch >= 127 && ch < 160); }

Westring OneLine(const Westring& title) {
  Westring result;
  for (const wchar_t* p = title.Text(); *p; ++p) result += IsControl(*p) ? L' ' : *p;
  return result;
}

// What a double-quoted argument of the command may not hold as it is. A "%" would
// stand for the files that are dropped on the launcher.
Westring Quoted(const Westring& argument) {
  Westring result = L"\"";
  for (const wchar_t* p = argument.Text(); *p; ++p) {
    if (wcschr(L"\"`$\\", *p)) result += L'\\';
    if (*p == L'%') result += L'%';
    result += *p;
  }
  return result + L"\"";
}

struct Escape {
  wchar_t character;
  const wchar_t* text;
};
constexpr Escape kEscapes[] = {{L'\\', L"\\\\"}, {L'\n', L"\\n"}, {L'\t', L"\\t"}, {L'\r', L"\\r"}};

// The text as a value of the file.
Westring Escaped(const Westring& text) {
  Westring result;
  for (const wchar_t* p = text.Text(); *p; ++p) {
    const Escape* found = nullptr;
    for (const Escape& escape : kEscapes)
      if (escape.character == *p) found = &escape;
    if (found)
      result += found->text;
    else
      result += *p;
  }
  return result;
}

// Beside the launcher, and hidden from the desktop until it is whole.
Westring ScratchPath(const Westring& path) {
  const Estring name = Estring::Format(".orvane-%d", static_cast<int>(getpid()));
  return Left(path, RFind(path, L'/') + 1) + Westring(name.Text());
}

int WriteWhole(const Westring& path, const Estring& text) {
  StdFile file;
  if (const int code = file.Open(path, kOpenWrite | kOpenCreate | kOpenExecutable)) return code;
  if (const int code = file.PutText(text.Text())) return code;
  if (const int code = file.Sync()) return code;
  return file.Close();
}

}  // namespace

Westring DefaultTitle(const Westring& fileName) {
  const int dot = RFind(fileName, L'.');
  // All of a name like ".profile" would be its extension.
  Westring title = Lower(dot > 0 ? Left(fileName, dot) : fileName);
  if (!title.IsEmpty()) title[0] = static_cast<wchar_t>(towupper(static_cast<wint_t>(title[0])));
  return title;
}

Westring LauncherName(const Westring& title) {
  constexpr int kMostBytes = kMostNameBytes - static_cast<int>(sizeof kExtension - 1);
  Westring name;
  int bytes = 0;
  for (const wchar_t* p = title.Text(); *p; ++p) {
    const bool isFirstDot = *p == L'.' && p == title.Text();
    const wchar_t kept = IsControl(*p) || *p == L'/' || isFirstDot ? L'_' : *p;
    bytes += Length(ToUtf8(Westring(&kept, 1)));
    if (bytes > kMostBytes) break;
    name += kept;
  }
  if (name.IsEmpty()) name = L"_";
  return name + Westring(kExtension);
}

Estring LauncherText(const DesktopFile& launcher) {
  const Westring command = (launcher.isExecutable ? L"" : L"xdg-open ") + Quoted(launcher.target);
  Westring text =
      L"#!/usr/bin/env xdg-open\n"
      L"\n"
      L"[Desktop Entry]\n"
      L"Version=1.0\n"
      L"Encoding=UTF-8\n"
      L"Name=";
  text += Escaped(OneLine(launcher.title));
  text += L"\nExec=";
  text += Escaped(command);
  text += L"\nTerminal=";
  text += launcher.terminal ? L"true" : L"false";
  text += L"\nType=Application\n";
  return ToUtf8(text);
}

int WriteLauncher(const Westring& path, const Estring& text) {
  const Westring scratch = ScratchPath(path);
  const Estring scratchBytes = ToUtf8(scratch);
  unlink(scratchBytes.Text());  // of a crashed process with our number
  int code = WriteWhole(scratch, text);
  if (code == 0 && rename(scratchBytes.Text(), ToUtf8(path).Text()) != 0) code = errno;
  if (code != 0) unlink(scratchBytes.Text());
  return code;
}
