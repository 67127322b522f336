// A directory in the desktop's own file browser.
#include "shell/gui_window.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "panels/navigation.h"
#include "shell/child_process.h"
#include "shell/shell_quote.h"

namespace {

struct FileBrowser {
  const wchar_t* program;
  const wchar_t* arguments;  // "!" is the directory
};

// In the order in which they are looked for.
constexpr FileBrowser kBrowsers[] = {
    {L"nautilus", L"--browser !"},
    {L"dolphin", L"!"},
};

const FileBrowser* FindBrowser() {
  Westring ignored;
  for (const FileBrowser& browser : kBrowsers)
    if (FindProgram(browser.program, ignored)) return &browser;
  return nullptr;
}

}  // namespace

void OpenGuiWindow(const Westring& path) {
  const FileBrowser* browser = FindBrowser();
  if (!browser) return;
  const Westring directory = ActivePanel().path;
  if (chdir(ToUtf8(directory).Text()) != 0) return ShowPathError(errno, directory);

  Westring arguments = browser->arguments;
  ReplaceAll(arguments, L"!", ShellQuote(path).Text());
  if (!StartDetached(browser->program + (L" " + arguments)))
    Prompt(L"Error forking child process", SystemError(errno).Text(), kPromptOk);
  Panels[0].readPending = Panels[1].readPending = true;
}
