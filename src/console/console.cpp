// The application's side of the console.
#include "console/console.h"

#include <algorithm>
#include <cstring>

#include "console/clipboard.h"
#include "console/console_window.h"
#include "console/event_translation.h"
#include "console/teletype.h"
#include "console/toolkit_lock.h"

CConsole* Console = nullptr;
int ScreenRows = 0, ScreenColumns = 0;

// ---- life and geometry -------------------------------------------------------

CConsole::CConsole() {
  ToolkitCall call;
  window = std::make_unique<CConsoleWindow>();
  window->StartGui();
}

CConsole::~CConsole() {
  window->StopGui();
  ToolkitLock lock;
  window.reset();
  gdk_flush();  // the window goes now, not with the process
}

void CConsole::Resize(int columns, int rows, const Estring& fontFamily, int fontSize) {
  window->SetScreen(columns, rows, fontFamily, fontSize);
}

void CConsole::GetSize(int& columns, int& rows) const {
  columns = window->grid.Columns();
  rows = window->grid.Rows();
}

int CConsole::FontSize() const { return window->fontSize; }
const Estring& CConsole::FontFamily() const { return window->fontFamily; }

// ---- cursor ------------------------------------------------------------------

void CConsole::GetCursor(int& x, int& y) const {
  const CConsoleWindow::Place at = window->cursor;
  x = at.x;
  y = at.y;
}

void CConsole::SetCursor(int x, int y) { window->SetCursor(x, y); }
int CConsole::CursorSize() const { return window->cursorSize; }
void CConsole::SetCursorSize(int percent) { window->SetCursorSize(percent); }

// ---- cells -------------------------------------------------------------------

void CConsole::PutString(int x, int y, const wchar_t* text, uint8_t attribute) {
  window->Invalidate(window->grid.PutString(x, y, text, attribute));
}

void CConsole::PutCells(int x, int y, const Cell* zeroEnded) {
  window->Invalidate(window->grid.PutCells(x, y, zeroEnded));
}

void CConsole::PutRepeated(int x, int y, int count, Cell cell) {
  window->Invalidate(window->grid.PutRepeated(x, y, count, cell));
}

void CConsole::SetAttributes(int x, int y, int count, uint8_t attribute) {
  window->Invalidate(window->grid.SetAttributes(x, y, count, attribute));
}

void CConsole::FillBlank(int x, int y, int width, int height, uint8_t attribute) {
  window->Invalidate(window->grid.FillBlank(x, y, width, height, attribute));
}

std::unique_ptr<Cell[]> CConsole::SaveBlock(int x, int y, int width, int height) const {
  return window->grid.SaveBlock(x, y, width, height);
}

void CConsole::RestoreBlock(int x, int y, int width, int height, const Cell* cells) {
  window->Invalidate(window->grid.RestoreBlock(x, y, width, height, cells));
}

void CConsole::ReadRow(CellString& target, int x, int y, int width, int height) const {
  window->grid.ReadRow(target, x, y, width, height);
}

void CConsole::ScrollUp(int x, int y, int width, int height, int lines, uint8_t attribute) {
  const CellRect block = ClipBlock(x, y, width, height, window->grid.Bounds());
  if (block.IsEmpty() || lines <= 0) return;
  window->Scroll(block, std::min(lines, block.bottom - block.top + 1), attribute);
}

void CConsole::ScrollDown(int x, int y, int width, int height, int lines, uint8_t attribute) {
  const CellRect block = ClipBlock(x, y, width, height, window->grid.Bounds());
  if (block.IsEmpty() || lines <= 0) return;
  window->Scroll(block, -std::min(lines, block.bottom - block.top + 1), attribute);
}

void CConsole::BeginUpdate() { window->batch.Begin(); }
void CConsole::EndUpdate() { window->EndUpdate(); }
uint64_t CConsole::DrawCount() const { return window->drawCount; }

// ---- the teletype ------------------------------------------------------------

namespace {

class ConsoleTeletype : public TeletypeScreen {
 public:
  explicit ConsoleTeletype(CConsole& console) : console(console) { console.GetSize(columns, rows); }

  int Columns() const override { return columns; }
  int Rows() const override { return rows; }
  void LoadRow(int y, CellString& row) const override { console.ReadRow(row, 0, y, columns, 1); }
  void StoreRow(int y, const CellString& row) override {
    console.RestoreBlock(0, y, columns, 1, row.Cells());
  }
  void ScrollUpOneRow(uint8_t attribute) override { console.ScrollUp(0, 0, columns, rows, 1, attribute); }

 private:
  CConsole& console;
  int columns = 0, rows = 0;
};

}  // namespace

void CConsole::WriteText(const char* bytes) {
  if (window->Terminal() != nullptr) {
    WriteTerminal(bytes, static_cast<int>(strlen(bytes)));
    PaintTerminal();
    return;
  }
  Westring text;
  text.FromUtf8(bytes);
  const int size = CursorSize();
  SetCursorSize(0);
  ConsoleTeletype screen(*this);
  int x = 0, y = 0;
  GetCursor(x, y);
  PrintText(screen, text, window->defaultAttribute, x, y);
  SetCursor(x, y);
  SetCursorSize(size);
}

void CConsole::WriteTerminal(const char* bytes, int n) {
  if (AttachedTerminal* const terminal = window->Terminal()) terminal->Write(bytes, n);
}

void CConsole::PaintTerminal() {
  if (AttachedTerminal* const terminal = window->Terminal()) terminal->Paint();
}

bool CConsole::TerminalOwesEcho() const {
  const AttachedTerminal* const terminal = window->Terminal();
  return terminal != nullptr && terminal->OwesEcho();
}

void CConsole::AttachTerminal(int masterFd) { window->AttachTerminal(masterFd); }
void CConsole::DetachTerminal() { window->DetachTerminal(); }

void CConsole::SetDefaultAttribute(uint8_t attribute) { window->defaultAttribute = attribute; }

// ---- the window --------------------------------------------------------------

void CConsole::SetTitle(const Westring& text) {
  const Estring utf8 = ValidUtf8(text);
  ToolkitCall call;
  window->set_title(utf8.Text());
}

void CConsole::SetTitle(const char* bytes) { SetTitle(Westring(bytes, window->codePage)); }

void CConsole::SetIconList(WestringStore& paths) {
  GList* icons = nullptr;
  for (const Westring* path = paths.First(); path != nullptr; path = paths.Next()) {
    GdkPixbuf* icon = gdk_pixbuf_new_from_file(ToUtf8(*path).Text(), nullptr);
    if (icon != nullptr) icons = g_list_append(icons, icon);
  }
  {
    ToolkitCall call;
    if (icons != nullptr) gtk_window_set_icon_list(window->gobj(), icons);
  }
  g_list_free_full(icons, g_object_unref);
}

void CConsole::SetIconFromFile(const Westring& path) {
  WestringStore paths;
  paths.Add(path);
  SetIconList(paths);
}

void CConsole::Beep() { window->Ring(); }

// ---- clipboard and selection -------------------------------------------------

bool CConsole::GetClipboardText(Westring& text) {
  text = ReadClipboard();
  return true;
}

void CConsole::SetClipboardText(const Westring& text) {
  ToolkitCall call;
  WriteClipboard(text);
}

void CConsole::SetClipboardText(const char* bytes) { SetClipboardText(Westring(bytes, window->codePage)); }

void CConsole::SetSelectableRegion(int left, int top, int width, int height) {
  SetSelectableRegion(CellRect{left, top, left + width - 1, top + height - 1});
}

void CConsole::SetSelectableRegion(const CellRect& region) { window->SetSelectableRegion(region); }
void CConsole::GetSelectableRegion(CellRect& region) const { region = window->selection.Region(); }

// ---- events and code page ----------------------------------------------------

bool CConsole::GetEvent(TEvent& event, uint32_t timeoutMs) {
  return TakeEvent(window->events, event, timeoutMs);
}

bool CConsole::EventPending() { return window->events.IsPending(); }
CEventQueue& CConsole::Events() { return window->events; }

void CConsole::SetCodePage(int page) {
  if (page != 0) window->codePage = page;
}

int CConsole::CodePage() const { return window->codePage; }
