// The note of the follow mode.
#include "viewer/follow_mode.h"

#include "config/values/colours.h"
#include "console/console.h"

namespace {
constexpr int kWidth = 32;
constexpr wchar_t kText[] = L"Follow Mode ON - ESC to cancel";
}  // namespace

void FollowMode::Start() {
  if (IsOn()) return;
  const int left = (ScreenColumns - kWidth) / 2, row = ScreenRows - 1;
  note = std::make_unique<Win>(left, row, left + kWidth - 1, row, Options::Colours[kColourErrors]);
  note->PrintCentred(0, kText);
}

void FollowMode::Stop() { note.reset(); }

void FollowMode::SetHidden(bool hide) {
  if (IsOn()) note->SetHidden(hide);
}
