// The whole life of the program: start-up in its order, the main loop, and the
// orderly exit.
#include "shell/program.h"

#include <cstdio>
#include <memory>

#include "config/data_paths.h"
#include "config/settings_file.h"
#include "config/values/options.h"
#include "console/console.h"
#include "console/toolkit.h"
#include "dialogs/dialog_history.h"
#include "dialogs/help.h"
#include "fileops/copy_command.h"
#include "foundation/code_pages.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "panels/read_panel.h"
#include "shell/arguments.h"
#include "shell/clock.h"
#include "shell/copy_commands.h"
#include "shell/exit_script.h"
#include "shell/history_file.h"
#include "shell/main_loop.h"
#include "shell/screen.h"
#include "shell/spawn.h"
#include "shell/temp_names.h"
#include "shell/view_commands.h"

namespace {

void ResetInput() {
  BreakState = 0;
  CurrentModifiers = ReportedModifiers = 0;
}

void FindProgramPath(const char* name) {
  if (!NormalisePath(Westring(name), CurrentDirectory(), ProgramPath)) ProgramPath = Westring(name);
}

void CollectPanelState() {
  Options::LeftShowing = Panels[0].visible;
  Options::LeftStyle = Panels[0].style;
  Options::LeftType = Panels[0].panelType;
  Options::LeftFilter = Panels[0].filter;
  Options::RightShowing = Panels[1].visible;
  Options::RightStyle = Panels[1].style;
  Options::RightType = Panels[1].panelType;
  Options::RightFilter = Panels[1].filter;
}

void ForceLeastSize() {
  if (ScreenColumns >= 80 && ScreenRows >= 25) return;
  ScreenColumns = 80;
  ApplyScreenSize(ScreenRows, 80);
}

void ChooseStartDirectory(int side, const Westring& argument) {
  TPanel& panel = Panels[side];
  const Westring current = CurrentDirectory();
  CopyText(panel.path, current.Text());
  const Westring& option = side == 0 ? Options::Left : Options::Right;
  const Westring& start = !argument.IsEmpty() ? argument : !option.IsEmpty() ? option : current;
  if (start.IsEmpty() || ChangeDirectory(panel, start)) return;
  // The panel stays where it is; the console text behind the panels tells why.
  Console->WriteText(ToUtf8(Westring(L"Invalid directory: ") + start + L"\n").Text());
}

void ApplyPanelSettings(TPanel& panel, int side) {
  const bool left = side == 0;
  CopyText(panel.lastPath, panel.path);
  panel.sortKey = left ? Options::LeftSort : Options::RightSort;
  const int style = left ? Options::LeftStyle : Options::RightStyle;
  const int type = left ? Options::LeftType : Options::RightType;
  panel.filter = left ? Options::LeftFilter : Options::RightFilter;
  panel.visible = left ? Options::LeftShowing : Options::RightShowing;
  panel.nameScrollEntry = -1;
  panel.visibleEntries = PanelRows * (style == kStyleBrief ? 3 : 1);
  // The listing is there even where the panel shows information.
  panel.style = kStyleFull;
  panel.panelType = kPanelFiles;
  ReadPanel(panel);
  panel.style = style;
  panel.panelType = type;
  if (panel.visible) MakePanelWindow(panel, side);
}

void OpenPanels(const Arguments& arguments) {
  for (int side = 0; side < 2; ++side) ChooseStartDirectory(side, arguments.startDirectory[side]);
  Console->WriteText("\n\n");
  for (int side = 0; side < 2; ++side) ApplyPanelSettings(Panels[side], side);
  UpdateSelectableRegion();
  ActiveSide = Options::StartupSide == 'R' ? 1 : 0;
  SetAppTitle(nullptr);
  ActivateSide(static_cast<int>(ActiveSide));
}

void ClosePanels(const Arguments& arguments) {
  if (Options::AutoSave) SaveSettings();
  const Westring scriptPath = ExitScriptPath(ActivePanel());
  RemoveClock();
  for (int side = 0; side < 2; ++side) {
    Panels[side].archive.reset();
    if (Panels[side].visible) Panels[side].window.reset();
  }
  RemoveTempFiles();
  LeaveScreen();
  if (!arguments.exitScript.IsEmpty()) WriteExitScript(arguments.exitScript, scriptPath);
}

// Where both are asked for, the viewer comes first.
int RunInternalTools(const Arguments& arguments) {
  const bool edits = !arguments.editFile.IsEmpty();
  if (!arguments.viewFile.IsEmpty()) ViewPath(arguments.viewFile);
  if (edits) fputs("orvane: the internal editor is not part of this version\n", stderr);
  Console->SetCursor(0, ScreenRows - 1);
  Console->SetCursorSize(kLineCursorSize);
  return edits ? 1 : 0;
}

int RunWithConsole(int argc, char** argv) {
  UpdateGeometry();
  const Arguments arguments = ReadArguments(argc, argv);
  if (arguments.usageError) {
    puts(arguments.usageError);
    return 1;
  }
  if (!arguments.viewFile.IsEmpty()) Console->SetCursorSize(0);
  SetupLocale();
  LoadSettings(false);
  BuildCaseTables();
  UpdateGeometry();
  ForceLeastSize();
  LoadHelp(DataFilePath(kHelpFile));  // without it, help says that it is not loaded
  SetupLocale();
  if (!arguments.viewFile.IsEmpty() || !arguments.editFile.IsEmpty()) return RunInternalTools(arguments);

  LoadHistory();
  KeepDialogEntry = AppendDialogEntryToFile;
  TheCopyHooks.chooseFromHistory = ChooseFromDirectoryHistory;
  TheBuiltIns.view = ViewPath;
  OpenPanels(arguments);
  Shell shell;
  IdleHook = UpdateClock;
  RunMainLoop(shell);
  ClosePanels(arguments);  // may still ask, with the clock running
  IdleHook = nullptr;
  KeepDialogEntry = nullptr;
  TheCopyHooks = {};
  TheBuiltIns = {};
  return 0;
}

}  // namespace

int RunOrvane(int argc, char** argv) {
  FindProgramPath(argc > 0 ? argv[0] : "orvane");
  Variables.Load();
  Toolkit toolkit(argc, argv);
  if (!toolkit.IsReady()) {
    fputs("orvane: there is no display to open a window on\n", stderr);
    return 1;
  }
  Console = new CConsole;
  WestringStore icons;
  icons.Add(IconPath(L"16x16/apps/orvane.png"));
  icons.Add(IconPath(L"scalable/apps/orvane.svg"));
  Console->SetIconList(icons);
  const auto panels = std::make_unique<TPanel[]>(2);
  Panels = panels.get();
  ActiveSide = 0;
  ForgetActiveSide();
  ResetInput();
  TheSettingsHooks.applyScreenSize = ApplyScreenSize;
  TheSettingsHooks.collectPanelState = CollectPanelState;

  const int result = RunWithConsole(argc, argv);

  delete Console;
  Console = nullptr;
  Panels = nullptr;
  return result;
}
