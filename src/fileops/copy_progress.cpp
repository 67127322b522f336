// The window of a copy or move: its place and its texts.
#include "fileops/copy_progress.h"

#include <algorithm>

#include "config/values/colours.h"
#include "console/console.h"
#include "fileops/progress_painter.h"
#include "foundation/paths.h"

namespace {

constexpr int kHeight = 9;
constexpr int kLeastCopyWidth = 39, kLeastMoveWidth = 35;
constexpr int kBesideTexts = 4;    // the frame, and a blank at both ends
constexpr int kBesideWindow = 10;  // columns of the screen that no name takes

int WidthFor(int longest) { return longest + longest % 2 + kBesideTexts; }

}  // namespace

CopyProgress::CopyProgress(bool isMove) : painter(std::make_unique<ProgressPainter>(state)), isMove(isMove) {}

// The thread ends before the window goes.
CopyProgress::~CopyProgress() { painter.reset(); }

void CopyProgress::ShowItem(const Westring& source, const Westring& target, int index, int count) {
  const int room = std::max(ScreenColumns - kBesideWindow, 1);
  const auto fit = [&](const Westring& name) { return isMove ? Right(name, room) : ShortenPath(name, room); };
  Westring sourceText = fit(source), targetText = fit(target);
  Estring countText = count > 1 ? Estring::Format("(%d of %d)", index, count) : Estring();

  const int longest = std::max({isMove ? kLeastMoveWidth : kLeastCopyWidth, Length(sourceText),
                                Length(targetText), Length(countText)});
  const int width = WidthFor(longest);
  if (!window || window->Right() - window->Left() + 1 < width) OpenWindow(width);
  painter->SetTexts(std::move(sourceText), std::move(targetText), std::move(countText));
}

void CopyProgress::OpenWindow(int width) {
  Stop();
  window.reset();
  const uint8_t colour = Options::Colours[kColourMessages];
  window = std::make_unique<Win>(-1, -4, width, kHeight, colour, colour);
  window->PrintCentred(kProgressTitleRow, isMove ? L"Moving" : L"Copying");
  window->PrintCentred(kProgressToRow, L"to");
  painter->ForgetScreen(*window);
}

void CopyProgress::Start() { painter->Start(); }
void CopyProgress::Stop() { painter->Stop(); }
