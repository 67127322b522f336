// The help pages and the window that shows one.
#include "dialogs/help.h"

#include <vector>

#include "console/console.h"
#include "dialogs/help_file.h"
#include "dialogs/help_window.h"
#include "dialogs/prompt.h"

namespace {

std::vector<HelpRecord> LoadedPages;

// Hides the cursor for its lifetime and then puts it back.
class HiddenCursor {
 public:
  HiddenCursor() : size(Console->CursorSize()) {
    Console->GetCursor(x, y);
    Console->SetCursorSize(0);
  }
  ~HiddenCursor() {
    Console->SetCursor(x, y);
    Console->SetCursorSize(size);
  }
  HiddenCursor(const HiddenCursor&) = delete;
  HiddenCursor& operator=(const HiddenCursor&) = delete;

 private:
  int size, x = 0, y = 0;
};

}  // namespace

bool LoadHelp(const Westring& file) {
  LoadedPages = ReadHelpFile(file);
  return !LoadedPages.empty();
}

void ShowHelp(int number) {
  const HelpRecord* page = FindHelpPage(LoadedPages, number);
  if (page == nullptr) {
    Prompt(L"Help not loaded", L"", kPromptOk);
    return;
  }
  const HiddenCursor noCursor;
  HelpWindow window(HelpLines(*page));
  while (window.Run() != kEscape) {  // F1
    if (number != kHelpOnHelp) ShowHelp(kHelpOnHelp);
  }
}

int RunWithHelp(Dialog& dialog, int page) {
  for (;;) {
    const int result = dialog.Run();
    if (result != static_cast<int>(FKey(1))) return result;
    ShowHelp(page);
  }
}
