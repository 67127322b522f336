// The name of an entry, made to fit its column.
#include "panels/name_field.h"

#include <algorithm>
#include <cwchar>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "foundation/paths.h"

namespace {

constexpr wchar_t kNoFlag = 0, kLinkFlag = L'@', kHiddenFlag = 0x2591;
constexpr int kDanglingForeground = 12;

// A hidden link shows that it is a link: it matters more where Enter leads.
wchar_t FlagOf(const entry& e) {
  if (e.IsLink() && !e.IsDirectory()) return kLinkFlag;
  return e.attributes & kAttrHidden ? kHiddenFlag : kNoFlag;
}

uint8_t ArrowColour(const entry& e, uint8_t colour) {
  const int foreground =
      e.attributes & kAttrDangling ? kDanglingForeground : Foreground(Options::Colours[kColourTagged]);
  return MakeAttribute(foreground, Background(colour));
}

void DropFirst(CellString& text, int n) { text.Assign(text.Cells() + n, text.Length() - n); }

// Stops where the tail fills the field, so that scrolling ends with the name.
void ScrollSideways(CellString& text, int width, int32_t& scroll) {
  if (scroll <= 0) return;
  scroll = std::clamp(text.Length() - width, 0, scroll);
  DropFirst(text, scroll);
}

int LastDot(const CellString& text) {
  int i = text.Length() - 1;
  while (i >= 0 && text[i].character != L'.') --i;
  return i;
}

// Cut in front of the extension, if that leaves at least half for the name.
bool CutBeforeExtension(CellString& text, int width) {
  const int dot = LastDot(text);
  if (dot < 0) return false;
  const int extension = text.Length() - dot;
  if (extension > width / 2) return false;
  std::copy_n(text.Cells() + dot, extension, text.Cells() + width - extension);
  text.SetLength(width);
  text[width - extension - 1].character = kCutMark;
  return true;
}

void Truncate(CellString& text, int width) {
  if (text.Length() <= width) return;
  if (Options::KeepExtVisible && CutBeforeExtension(text, width)) return;
  text.SetLength(width);
  if (width > 0) text[width - 1].character = kCutMark;
}

}  // namespace

CellString NameWithTarget(TPanel& panel, const entry& e, uint8_t colour, uint8_t arrowColour) {
  const int nameLength = static_cast<int>(wcslen(e.name));
  const Westring* target = nullptr;
  if (e.IsLink()) target = &panel.linkTargets.Target(JoinPath(panel.path, e.name));
  CellString text(nameLength + (target ? Length(*target) + 3 : 0));
  text.attribute = colour;
  text.Append(e.name, colour, nameLength);
  if (target) {
    text.Append(L" ", colour);
    text.Append(Cell{kLinkArrow, arrowColour});
    text.Append(L" ", colour);
    text.Append(target->Text(), colour);
  }
  return text;
}

CellString BuildNameField(TPanel& panel, const entry& e, int width, uint8_t colour, int32_t* scroll) {
  const wchar_t flag = width > 0 ? FlagOf(e) : kNoFlag;
  const int room = std::max(flag == kNoFlag ? width : width - 1, 0);
  CellString text = NameWithTarget(panel, e, colour, ArrowColour(e, colour));
  if (scroll) ScrollSideways(text, room, *scroll);
  Truncate(text, room);
  FitCells(text, room);
  if (flag != kNoFlag) text.Append(flag);
  return text;
}

void FitCells(CellString& row, int width) { row.SetLength(std::max(width, 0)); }
