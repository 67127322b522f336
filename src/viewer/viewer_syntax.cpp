// The highlighter's state at any place of the file, by way of the checkpoints.
#include <algorithm>
#include <optional>

#include "viewer/viewer.h"

namespace {

constexpr int64_t kCheckpointDistance = 4096;  // bytes that are coloured again without much ado
constexpr int64_t kLongSeek = 16 << 20;        // bytes after which the user may break off

}  // namespace

void CViewer::SyntaxSeek(int64_t offset) {
  if (!Highlighter.Active) return;
  const TPositionSyntaxState* const entry = StateStore.Find(offset);
  if (entry == nullptr) return;
  Highlighter.CopyStack(entry->State);
  seekBrokenOff = false;
  const int64_t from = std::max(entry->Position, DataStart);

  CellString scratch;
  std::optional<BreakScope> breaking;
  for (Position = from; Position < offset;) {
    int length;
    const wchar_t* const text = ReadLine(length, kLongestLine);
    if (text == nullptr) break;
    MakeLine(text, scratch);
    if (Position - from >= kCheckpointDistance) RememberState();
    if (Position - from > kLongSeek) {
      if (!breaking) breaking.emplace();
      if (breaking->Stopped()) {
        seekBrokenOff = true;
        break;
      }
    }
  }
}

// What has no end yet may go on when the file grows: no place to start from. Nor is
// what follows a seek that was broken off, or its wrong colours would stay.
void CViewer::RememberState() {
  if (Highlighter.Active && EndedInTerminator && !seekBrokenOff) StateStore.Remember(Position, Highlighter);
}
