// Searching in the file shown, from where the last hit or the screen is.
#include "viewer/viewer_search.h"

#include "config/values/colours.h"
#include "dialogs/prompt.h"
#include "viewer/search_settings.h"
#include "viewer/viewer_goto.h"

namespace {

constexpr int kNoteWidth = 16, kNoteHeight = 7, kNoteRow = 2;

// There for as long as the search runs.
class SearchNote : public Win {
 public:
  SearchNote()
      : Win(-1, -3, kNoteWidth, kNoteHeight, Options::Colours[kColourMessages],
            Options::Colours[kColourMessages]) {
    PrintCentred(kNoteRow, L"Searching...");
  }
};

// Behind the last hit, or in front of it.
void StepOn(CViewer& viewer, const Westring& text) {
  if (Reverse) {
    viewer.PrevChar();
    return;
  }
  for (int i = Length(text); i > 0; --i) viewer.GetChar();
}

int64_t VisibleStart(const CViewer& viewer) {
  if (!Reverse) return viewer.TopOffset;
  return viewer.BottomOffset >= 0 ? viewer.BottomOffset : viewer.FileSize;
}

}  // namespace

int64_t CViewer::Search(const Westring& text, int mode) {
  if (mode != kSearchAgain && !SearchDialog()) return kSearchStopped;
  if (text.IsEmpty()) return kSearchStopped;
  Position = SearchPos;
  if (mode != kSearchFromHere) StepOn(*this, text);
  const SearchNote note;
  const int64_t hit = Encoding == kCodePageText
                          ? SearchBytes(text, Position, Reverse, CaseSensitive, WholeWord, CodePage)
                          : CTextFile::Search(text, Position, CaseSensitive, WholeWord, Reverse);
  if (hit < 0) return hit;
  SearchPos = LineStart(hit);
  return hit - SearchPos;
}

void SearchAndShow(CViewer& viewer, bool asks) {
  if (viewer.SearchPos < 0) viewer.SearchPos = VisibleStart(viewer);
  const int mode = !asks ? kSearchAgain : viewer.SearchPos == viewer.TopOffset ? kSearchFromHere : kSearchOn;
  const int64_t delta = viewer.Search(SearchString, mode);
  if (delta >= 0)
    viewer.ShowAt(viewer.SearchPos, delta, kWholeSearchString);
  else if (delta == kSearchNone)
    Prompt(L"String not found", L"", kPromptOk);
}
