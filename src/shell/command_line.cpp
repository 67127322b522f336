// The command line: editing and painting.
#include "shell/command_line.h"

#include <algorithm>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "foundation/paths.h"
#include "foundation/words.h"
#include "shell/shell_quote.h"

namespace {

int WordEndAtCursor(const Shell& shell) {
  return shell.commandCursor +
         WordEnd(shell.commandLine.Text() + shell.commandCursor, Options::BriefWordRight);
}

void Erase(Shell& shell, int from, int to) {
  shell.commandLine = Left(shell.commandLine, from) + (shell.commandLine.Text() + to);
  shell.commandCursor = from;
}

// Line ends and tabs of pasted text would show as glyphs and mean nothing here.
Westring OneLine(const Westring& text) {
  Westring result;
  for (const wchar_t* p = text.Text(); *p; ++p) {
    if (*p == L'\r' && p[1] == L'\n') continue;
    const bool isBreak = *p == L'\n' || *p == L'\r' || *p == L'\t';
    result += isBreak ? L' ' : *p;
  }
  return result;
}

}  // namespace

void SetCommandLine(Shell& shell, const Westring& text) {
  shell.commandLine = text;
  shell.commandCursor = Length(text);
}

void EmptyCommandLine(Shell& shell) { SetCommandLine(shell, L""); }

bool InsertText(Shell& shell, const Westring& text, int most) {
  const int added = Length(text);
  if (Length(shell.commandLine) + added > most) return false;
  const Westring& line = shell.commandLine;
  shell.commandLine = Left(line, shell.commandCursor) + text + (line.Text() + shell.commandCursor);
  shell.commandCursor += added;
  return true;
}

Westring WithoutMacros(const Westring& text) {
  Westring result;
  for (const wchar_t* p = text.Text(); *p; ++p) {
    result += *p;
    if (*p == static_cast<unsigned char>(Options::CmdChar)) result += *p;
  }
  return result;
}

bool InsertAtCursor(Shell& shell, const Westring& text) {
  Westring inserted = WithoutMacros(ShellQuote(text));
  const int length = Length(inserted);
  if (length > 0 && inserted[length - 1] != L'/') inserted += L' ';
  return InsertText(shell, inserted);
}

LineView FitLine(LineView view, int length, int promptWidth, int columns) {
  constexpr int kKeptInView = 40;
  view.cursor = std::min(view.cursor, length);
  if (view.scroll >= length - kKeptInView) view.scroll = std::max(0, length - kKeptInView);
  view.scroll = std::min(view.scroll, view.cursor);
  view.scroll = std::max(view.scroll, view.cursor - columns + promptWidth + 1);
  return view;
}

int CommandSide(int side) {
  const TPanel& panel = Panels[side];
  return panel.IsFiles() && !panel.IsTree() ? side : side ^ 1;
}

Westring PromptOf(const TPanel& panel) {
  const Westring path = ShortenPath(panel.path, ScreenColumns / 2 - 1);
  return (Options::PathPrompt ? path : Left(path, 2)) + L">";
}

Westring PromptText() { return PromptOf(Panels[CommandSide(static_cast<int>(ActiveSide))]); }

void PaintCommandLine(Shell& shell) {
  const Westring prompt = PromptText();
  shell.promptWidth = Length(prompt);
  const LineView view = FitLine({shell.commandCursor, shell.commandScroll}, Length(shell.commandLine),
                                shell.promptWidth, ScreenColumns);
  shell.commandCursor = view.cursor;
  shell.commandScroll = view.scroll;
  const Westring row = LJust(prompt + (shell.commandLine.Text() + shell.commandScroll), ScreenColumns);
  Console->PutString(0, ScreenRows - 2, row.Text(), Options::Colours[kColourCommandLine]);
}

void PlaceCommandCursor(const Shell& shell) {
  Console->SetCursor(shell.promptWidth + shell.commandCursor - shell.commandScroll, ScreenRows - 2);
}

int TypeCharacter(Shell& shell) {
  const Westring typed = Westring::Replicate(static_cast<wchar_t>(shell.key), 1);
  return InsertText(shell, typed, kMaxTypedLine) ? kRedrawLine : kRedrawNothing;
}

int DeleteAtCursor(Shell& shell) {
  if (shell.commandCursor >= Length(shell.commandLine)) return kRedrawNothing;
  Erase(shell, shell.commandCursor, shell.commandCursor + 1);
  return kRedrawLine;
}

int DeleteLeft(Shell& shell) {
  if (shell.commandCursor == 0) return kRedrawNothing;
  Erase(shell, shell.commandCursor - 1, shell.commandCursor);
  return kRedrawLine;
}

int DeleteWordLeft(Shell& shell) {
  Erase(shell, WordStart(shell.commandLine, shell.commandCursor), shell.commandCursor);
  return kRedrawLine;
}

int DeleteWordRight(Shell& shell) {
  Erase(shell, shell.commandCursor, WordEndAtCursor(shell));
  return kRedrawLine;
}

int MoveWordLeft(Shell& shell) {
  shell.commandCursor = WordStart(shell.commandLine, shell.commandCursor);
  return kRedrawLine;
}

int MoveWordRight(Shell& shell) {
  shell.commandCursor = WordEndAtCursor(shell);
  return kRedrawLine;
}

int MoveLineStart(Shell& shell) {
  shell.commandCursor = 0;
  return kRedrawLine;
}

int MoveLineEnd(Shell& shell) {
  shell.commandCursor = Length(shell.commandLine);
  return kRedrawLine;
}

namespace {

// On an empty line the sideways keys move the long name under the panel cursor.
int ScrollName(Shell& shell, int step) {
  TPanel& panel = ActivePanel();
  if (panel.nameScroll + step < 0) return kRedrawNothing;
  panel.nameScroll += step;
  panel.nameScrollEntry = shell.currentIndex;
  shell.cursorDirty = true;
  return kRedrawNothing;
}

}  // namespace

int CursorLeft(Shell& shell) {
  if (shell.commandCursor > 0) {
    --shell.commandCursor;
    return kRedrawLine;
  }
  return shell.commandLine.IsEmpty() ? ScrollName(shell, -1) : kRedrawNothing;
}

int CursorRight(Shell& shell) {
  if (shell.commandCursor < Length(shell.commandLine)) {
    ++shell.commandCursor;
    return kRedrawLine;
  }
  return shell.commandLine.IsEmpty() ? ScrollName(shell, 1) : kRedrawNothing;
}

int CopyLine(Shell& shell) {
  Console->SetClipboardText(shell.commandLine);
  return kRedrawNothing;
}

int PasteLine(Shell& shell) {
  Westring text;
  if (!Console->GetClipboardText(text) || text.IsEmpty()) return kRedrawNothing;
  return InsertText(shell, OneLine(text)) ? kRedrawLine : kRedrawNothing;
}
