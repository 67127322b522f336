// Names of files that a shell could make something else of.
#pragma once

#include <iterator>
#include <random>
#include <string>
#include <vector>

// Every character below 256 at each place of a name, and all of them together.
inline std::vector<std::wstring> AwkwardNames() {
  std::vector<std::wstring> names;
  std::wstring all;
  for (wchar_t c = 1; c < 256; ++c) {
    if (c == L'/') continue;
    const std::wstring one(1, c);
    for (const std::wstring& name : {L"x" + one, one + L"b", L"a" + one + L"b", one + one + one, L"-" + one})
      names.push_back(name);
    if (c != L'.') names.push_back(one);
    all += one;
  }
  names.push_back(all);
  for (const wchar_t* name : {L"-",
                              L"-rf",
                              L"--",
                              L"  both ends  ",
                              L"$HOME",
                              L"~root",
                              L"\\\n",
                              L"'\n'",
                              L"\n'\n",
                              L"a=b",
                              L"A=$B",
                              L"$'\\n'",
                              L"\"\n\"",
                              L"{a,b}",
                              L"%1",
                              L"#!x",
                              L"\x4E16\x1F600\xE9",
                              L"...",
                              L"\t \t",
                              L"\r\n"})
    names.push_back(name);
  return names;
}

// Of up to 60 characters, half of them from those that shells look at.
inline std::vector<std::wstring> RandomNames(int count) {
  constexpr wchar_t kFavoured[] = L" !$~`[]{}()\\'\"<>&|;*?#=^%\n\t\r\x01\x7F-";
  std::mt19937 random(20240305);
  std::vector<std::wstring> names;
  while (static_cast<int>(names.size()) < count) {
    std::wstring name = L"-";  // never "." or ".."
    for (unsigned length = 2 + random() % 60; name.size() < length;) {
      const auto any = static_cast<wchar_t>(1 + random() % (random() % 8 ? 255 : 0x2FFF));
      const wchar_t c = random() % 2 ? kFavoured[random() % (std::size(kFavoured) - 1)] : any;
      if (c != L'/') name += c;
    }
    names.push_back(random() % 2 ? name : name.substr(1) + L"x");
  }
  return names;
}
