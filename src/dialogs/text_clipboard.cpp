// The lines of the clipboard on their way to the desktop and to fields.
#include "dialogs/text_clipboard.h"

#include <cwchar>
#include <string>

#include "config/values/options.h"
#include "console/console.h"

WestringStore TextClipboard;

namespace {

// Through the library's string, for a whole file may have been copied and ours
// looks for its end at each addition.
Westring JoinLines(int first, int end, wchar_t separator) {
  std::wstring joined;
  for (int i = first; i < end; ++i) {
    if (i > first) joined += separator;
    joined += TextClipboard.Peek(i)->Text();
  }
  return Westring(joined.c_str(), static_cast<int>(joined.size()));
}

// Other programs may end their lines with a carriage return as well.
void SetLines(const wchar_t* text) {
  TextClipboard.Clear();
  while (true) {
    const wchar_t* end = wcschr(text, L'\n');
    int length = static_cast<int>(end != nullptr ? end - text : wcslen(text));
    if (end != nullptr && length > 0 && text[length - 1] == L'\r') --length;
    TextClipboard.Add(Westring(text, length));
    if (end == nullptr) return;
    text = end + 1;
  }
}

bool IsEmptyLine(int i) { return TextClipboard.Peek(i)->IsEmpty(); }

}  // namespace

void PublishClipboard() {
  if (Options::PMClip) Console->SetClipboardText(JoinLines(0, TextClipboard.Count(), L'\n'));
}

void RefreshClipboard() {
  if (!Options::PMClip) return;
  Westring text;
  if (Console->GetClipboardText(text) && !text.IsEmpty()) SetLines(text.Text());
}

void CopyToClipboard(const Westring& text) {
  SetLines(text.Text());
  PublishClipboard();
}

Westring PasteFromClipboard() {
  RefreshClipboard();
  int first = 0, end = TextClipboard.Count();
  while (first < end && IsEmptyLine(first)) ++first;
  while (end > first && IsEmptyLine(end - 1)) --end;
  return JoinLines(first, end, L' ');
}
