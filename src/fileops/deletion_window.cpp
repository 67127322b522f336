// The window of a deletion; see deletion_window.h.
#include "fileops/deletion_window.h"

#include "config/values/colours.h"
#include "fileops/shown_path.h"

namespace {

constexpr std::chrono::milliseconds kBetweenNames{50};
constexpr int kHeight = 4;
constexpr int kBesideName = 4;  // the frame, and a blank at both ends
constexpr int kTitleRow = 0, kNameRow = 1;

}  // namespace

void DeletionWindow::Show(const Westring& path) {
  const Westring name = ShownPath(path);
  const int length = Length(name);
  if (!window || length > width) {
    if (length > width) width = length;
    const uint8_t colour = Options::Colours[kColourMessages];
    window.reset();  // what it covers comes back before the next one saves it
    window = std::make_unique<Win>(-1, -3, width + kBesideName, kHeight, colour, colour);
    window->PrintCentred(kTitleRow, L"Deleting the file");
  }
  const int inner = window->InnerWidth();
  const Westring indent = Westring::Replicate(L' ', (inner - length) / 2);
  window->Print(0, kNameRow, LJust(indent + name, inner));
  nextDue = Clock::now() + kBetweenNames;
}
