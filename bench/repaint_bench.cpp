// Counts what a full repaint draws when nothing has changed.
#include "bench_console.h"
#include "console/key_codes.h"
#include "panels/draw_panel.h"
#include "panels/read_panel.h"
#include "scratch.h"
#include "shell/command_line.h"
#include "shell/key_bar.h"
#include "shell/screen.h"
#include "table.h"

namespace {

constexpr int kColumns = 132, kRows = 50;
constexpr int kFiles = 100;

// Everything but the clock, which may show another minute. The cursor bar is no
// part of it: drawing a panel takes it away, and that does change cells.
void PaintAll(Shell& shell) {
  for (TPanel* panel : {&Panels[0], &Panels[1]}) {
    DrawPanel(*panel);
    DrawStatusLine(*panel);
  }
  PaintCommandLine(shell);
  PaintKeyBar(BarLabels(0));
}

void OpenPanels(const Scratch& directory) {
  for (int side = 0; side < 2; ++side) {
    TPanel& panel = Panels[side];
    CopyText(panel.path, Westring(directory.Path().c_str()).Text());
    ReadPanel(panel);
    MakePanelWindow(panel, side);
  }
}

double Draws(Shell& shell) {
  const uint64_t before = Console->DrawCount();
  PaintAll(shell);
  return static_cast<double>(Console->DrawCount() - before);
}

}  // namespace

int main() {
  const Scratch directory;
  for (int i = 0; i < kFiles; ++i) directory.MakeEmptyFile(std::to_string(i) + ".txt");
  const BenchConsole console;
  TPanel records[2];
  Panels = records;
  SetupLocale();
  ApplyScreenSize(kRows, kColumns);
  OpenPanels(directory);

  Shell shell;
  if (Draws(shell) == 0) {
    fputs("The first painting drew nothing.\n", stderr);
    return 2;
  }
  const double draws = Draws(shell);
  // They put back what they cover, while there is still a console.
  for (TPanel& panel : records) panel.window.reset();
  return PrintRows({{"full repaint of 132x50, no cell changed", "draws", draws, {}, 0}});
}
