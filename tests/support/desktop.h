// The desktop: the built program in a process of its own on an X display of
// its own, with real keys, buttons and pixels. What is seen is decoded back
// into characters and palette colours.
#pragma once

#include <sys/types.h>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/sandbox.h"
#include "support/virtual_display.h"

struct _XDisplay;

// Red, green and blue of each pixel of the window.
struct Picture {
  int width = 0, height = 0;
  std::vector<std::array<uint8_t, 3>> pixels;  // row by row

  const std::array<uint8_t, 3>& At(int x, int y) const { return pixels[static_cast<size_t>(y) * width + x]; }
};

class Desktop {
 public:
  // Starts the program with "-l <sandbox>/left -r <sandbox>/right", or with the
  // arguments given, and waits until its title shows that it reads keys. The
  // settings must leave the screen at 80 by 25; the program may change it later.
  explicit Desktop(const FileList& files = {}, const std::string& settings = "",
                   std::optional<std::vector<std::string>> arguments = std::nullopt);
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // ---- input, as from keyboard and mouse; nothing is waited for

  void Keys(const std::string& script);      // key_script.h
  void MovePointer(int column, int row);     // to the middle of a cell
  void Press(unsigned button);               // X numbers: 1 left, 2 middle, 3 right, 4 and 5 the wheel
  void Release(unsigned button);
  void Click(unsigned button, int column, int row);
  void CloseWindow();      // what a window manager's close button sends
  void CoverForAMoment();  // with a white window, which leaves black where it was
  // From now on the window keeps its size whatever the program asks for, as some
  // window managers have it. They answer while something is waited for.
  void KeepWindowSize();

  // ---- what is seen

  bool HasWindow() const;
  std::string Title() const;
  Picture TakePicture() const;
  int Columns() const;
  int Rows() const;
  // A row's characters; blank is a blank, what is no ASCII character is '?'.
  std::string Row(int y) const;
  std::string Screen() const;
  int Background(int column, int row) const;  // palette index, -1 for another colour

  // Looks again and again until the condition holds; false after a deadline.
  bool Eventually(const std::function<bool()>& condition) const;
  bool EventuallyShows(const std::string& text) const;  // in some row

  std::string Clipboard() const;
  void SetClipboard(const std::string& text);  // as another program; returns when the text is there

  // Waits for the end of the program; -1 if it does not end.
  int ExitCode();

  // ---- the files

  std::string Path(const std::string& name = "") const { return files.Path(name); }
  bool Exists(const std::string& name) const { return files.Exists(name); }
  std::string Content(const std::string& name) const { return files.Content(name); }

 private:
  using Glyph = std::vector<float>;  // ink of each pixel of a cell, 0 to 1

  void Start(const std::vector<std::string>& arguments);
  void FindWindow();
  void RefuseSizes() const;
  void PressKey(uint32_t keysym, bool down);
  void LearnGlyphs();
  Glyph ReadGlyph(const Picture& picture, int column, int row) const;
  char Recognise(const Glyph& glyph) const;

  Sandbox files;
  VirtualDisplay server;
  _XDisplay* display = nullptr;
  unsigned long window = 0;
  pid_t program = 0;
  std::optional<int> exitCode;
  int cellWidth = 0, cellHeight = 0;
  std::map<char, Glyph> glyphs;
};
