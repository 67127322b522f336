// The lines of a settings file that was edited by anything: ends of "\n",
// "\r\n" or "\r", or a zero byte, and a bounded length.
#pragma once

#include "config/settings_sections.h"
#include "foundation/std_file.h"

class SettingsLines {
 public:
  explicit SettingsLines(StdFile& source) : file(source) {}

  // The next line into Text(), without its end and what is too long. False at
  // the end of the file or on an error, which file.Error() tells apart.
  bool Next();
  const char* Text() const { return line; }

 private:
  StdFile& file;
  bool afterReturn = false;  // a "\n" now would belong to the line before
  char line[kLongestSettingsLine + 1] = {};
};
