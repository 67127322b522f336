// Programs of the desktop; see gui_window.h.
#include "shell/gui_window.h"

#include "config/data_paths.h"
#include "panels/panel.h"
#include "shell/child_process.h"
#include "shell/run_command.h"
#include "shell/shell_quote.h"

namespace {

struct DesktopProgram {
  const wchar_t* name;
  const wchar_t* arguments;  // "!" is what it is to show
};

// In the order in which they are looked for.
constexpr DesktopProgram kFileBrowsers[] = {
    {L"nautilus", L"--browser !"},
    {L"dolphin", L"!"},
};
constexpr DesktopProgram kWebBrowsers[] = {
    {L"x-www-browser", L"file://!"},
    {L"firefox", L"file://!"},
    {L"mozilla-firefox", L"file://!"},
    {L"epiphany", L"file://!"},
};

template <int count>
const DesktopProgram* FindFirst(const DesktopProgram (&programs)[count]) {
  Westring ignored;
  for (const DesktopProgram& program : programs)
    if (FindProgram(program.name, ignored)) return &program;
  return nullptr;
}

void Show(const DesktopProgram& program, const Westring& path) {
  Westring arguments = program.arguments;
  ReplaceAll(arguments, L"!", ShellQuote(path).Text());
  const Westring command = program.name + (L" " + arguments) + L" &";
  RunCommand(command, static_cast<int>(ActiveSide), L"", kRunTwoFeeds);
}

Westring ManualIndex() {
  const Westring manual = DataFilePath(kManualFile);
  return Left(manual, RFind(manual, L'/') + 1) + L"index.html";
}

}  // namespace

void OpenGuiWindow(const Westring& path) {
  if (const DesktopProgram* const browser = FindFirst(kFileBrowsers)) Show(*browser, path);
}

bool OpenManual() {
  const DesktopProgram* const browser = FindFirst(kWebBrowsers);
  if (browser) Show(*browser, ManualIndex());
  return browser != nullptr;
}
