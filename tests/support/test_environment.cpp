// The environment of a program under test; see the header.
#include "support/test_environment.h"

#include <unistd.h>

#include <cstdlib>
#include <utility>
#include <vector>

void EnterTestEnvironment(const Sandbox& files, const std::string& display) {
  std::vector<std::pair<std::string, std::string>> kept;
  for (const char* name : {"PATH", "XAUTHORITY", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
    if (const char* value = getenv(name)) kept.emplace_back(name, value);
  }
  clearenv();
  for (const auto& [name, value] : kept) setenv(name.c_str(), value.c_str(), 1);
  const std::pair<const char*, std::string> own[] = {
      {"HOME", files.Path("home")},    {"TEMP", files.Path("temp")},
      {"DISPLAY", display},            {"TZ", "UTC"},
      {"LANG", "C.UTF-8"},             {"TERM", "xterm"},
      {"SHELL", "/bin/sh"},            {"GTK2_RC_FILES", "/dev/null"},
      {"NO_AT_BRIDGE", "1"},           {"GTK_IM_MODULE", "gtk-im-context-simple"},
  };
  for (const auto& [name, value] : own) setenv(name, value.c_str(), 1);
  if (chdir(files.Path().c_str()) != 0) std::abort();
}
