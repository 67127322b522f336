// The box that makes launchers, and what becomes of its answers.
#include "panels/make_objects.h"

#include <sys/stat.h>

#include <cerrno>
#include <cwchar>

#include "config/values/colours.h"
#include "console/key_codes.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/prompt.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/desktop_file.h"
#include "panels/navigation.h"
#include "panels/panel_path.h"
#include "panels/tags.h"
#include "panels/tree_row.h"

namespace {

enum class FileKind { Executable, Directory, Other };

// 0 or errno.
int KindOf(const Westring& path, FileKind& kind) {
  struct stat status;
  if (stat(ToUtf8(path).Text(), &status) != 0) return errno;
  if (S_ISDIR(status.st_mode))
    kind = FileKind::Directory;
  else
    kind = status.st_mode & 0111 ? FileKind::Executable : FileKind::Other;
  return 0;
}

Westring DesktopDirectory() { return JoinPath(Westring(HomeDirectory().Text()), L"Desktop"); }

Westring LauncherPath(const Westring& title) { return JoinPath(DesktopDirectory(), LauncherName(title)); }

// A row of a tree comes with its whole path.
Westring FullPath(const TPanel& panel, const Westring& name) {
  return name[0] == L'/' ? name : JoinPath(panel.path, name);
}

Westring NameOf(const TPanel& panel, int index) {
  return panel.IsTree() ? TreeRowPath(panel, index) : Westring(panel.entries[index]->name);
}

Westring TitleOf(const Westring& name) {
  const wchar_t* last = LastComponent(name.Text());
  return DefaultTitle(*last ? last : name.Text());
}

// What the box is about, and what is entered in it.
struct ObjectBox {
  Westring caption;
  bool asksTitle = false, asksTerminal = false;
  Westring title;
  bool terminal = false;
};

constexpr int kBoxWidth = 50;
constexpr int kFrame = 2;
constexpr int kMargin = 3;
constexpr int kTitleX = 11, kTitleWidth = 33, kMostTitle = 250;

// False after Esc.
bool Ask(ObjectBox& box) {
  const int rows = (box.asksTitle ? 2 : 0) + (box.asksTerminal ? 2 : 0) + 2;
  Dialog dialog(-1, -3, kBoxWidth, rows + kFrame, Options::Colours[kColourMessages]);
  dialog.PrintCentred(-1, L" " + box.caption + L" ");
  int y = 1;
  if (box.asksTitle) {
    dialog.Print(kMargin, y, L"Title:");
    dialog.AddStringField(kTitleX, y, true, &box.title, kTitleWidth, kMostTitle, kNoHistory);
    y += 2;
  }
  if (box.asksTerminal) {
    dialog.AddCheckBox(kMargin, y, true, &box.terminal, "Terminal session", true);
    y += 2;
  }
  dialog.AddOkCancel(-1, y, true);
  return dialog.Run() != kEscape;
}

// What is to become of launchers that are there already.
struct Existing {
  bool asksForEach;  // several launchers are made
  bool replaceAll = false, keepAll = false;
};

enum class Outcome { Made, Kept, Stopped };

// Made where nothing keeps it from being made.
Outcome AskToReplace(const Westring& path, Existing& existing) {
  if (!FileExists(path) || existing.replaceAll) return Outcome::Made;
  if (existing.keepAll) return Outcome::Kept;
  const int answer = Prompt(L"The launcher exists already. Replace it?", path,
                            existing.asksForEach ? kPromptOkCancelSkipAllNone : kPromptOkCancel);
  if (answer == 'a') existing.replaceAll = true;
  if (answer == 'e') existing.keepAll = true;
  if (answer == 'y' || answer == 'a') return Outcome::Made;
  return answer == 's' || answer == 'e' ? Outcome::Kept : Outcome::Stopped;
}

// The path that an error of MakeDesktopFile is about.
Westring FaultyPath(const Westring& target, const Westring& launcher) {
  if (!FileExists(target)) return target;
  const Westring desktop = DesktopDirectory();
  return DirectoryExists(desktop) ? launcher : desktop;
}

// Panels that show the desktop show its new launcher.
void RefreshDesktop() {
  const Westring desktop = DesktopDirectory();
  for (int side = 0; side < 2; ++side)
    if (wcscmp(Panels[side].path, desktop.Text()) == 0) Panels[side].readPending = true;
}

Outcome MakeOne(TPanel& panel, const Westring& name, const ObjectBox& box, Existing& existing) {
  const Westring title = Trim(box.title).IsEmpty() ? TitleOf(name) : box.title;
  const Westring launcher = LauncherPath(title);
  const Outcome leave = AskToReplace(launcher, existing);
  if (leave != Outcome::Made) return leave;
  if (const int code = MakeDesktopFile(panel, name, title, box.terminal)) {
    ShowPathError(code, FaultyPath(FullPath(panel, name), launcher));
    return Outcome::Stopped;
  }
  RefreshDesktop();
  return Outcome::Made;
}

// False if it was stopped: what is not made keeps its tag.
bool MakeTagged(TPanel& panel, const ObjectBox& box) {
  Existing existing{true};
  for (int i = 0; i < panel.count; ++i) {
    if (!panel.entries[i]->tagged) continue;
    const Outcome outcome = MakeOne(panel, NameOf(panel, i), box, existing);
    if (outcome == Outcome::Stopped) return false;
    if (outcome == Outcome::Made) Tag(panel, i, -1);
  }
  return true;
}

void MakeForTags(TPanel& panel) {
  ObjectBox box;
  box.asksTerminal = true;
  do {
    box.caption = Westring(Estring::Format("Make %d objects", panel.taggedCount));
  } while (Ask(box) && !MakeTagged(panel, box));
}

void MakeForName(TPanel& panel, const Westring& name) {
  const Westring path = FullPath(panel, name);
  FileKind kind = FileKind::Other;
  if (const int code = KindOf(path, kind)) return ShowPathError(code, path);

  const Westring caption = L"Make an object for ";
  const int mostName = kBoxWidth - kFrame - 2 - Length(caption);
  ObjectBox box;
  box.caption = caption + ShortenPath(name, mostName);
  box.asksTitle = kind != FileKind::Directory;
  box.asksTerminal = kind == FileKind::Executable;
  box.title = Left(TitleOf(name), kMostTitle);
  Existing existing{false};
  while (Ask(box) && MakeOne(panel, name, box, existing) == Outcome::Stopped) {
  }
}

}  // namespace

void MakeObjects(TPanel& panel) {
  const entry* const current = panel.Current();
  if (!panel.IsFiles() || !current) return;
  const Westring name = NameOf(panel, panel.CurrentIndex());
  if (panel.archive) {
    Prompt(L"No launcher can be made for a file in an archive", name, kPromptOk);
  } else if (panel.taggedCount > 0) {
    MakeForTags(panel);
  } else if (IsDotDot(*current)) {
    Prompt(L"No launcher can be made for this entry", name, kPromptOk);
  } else {
    MakeForName(panel, name);
  }
}

int MakeDesktopFile(TPanel& panel, const Westring& name, const Westring& title, bool terminal) {
  DesktopFile launcher;
  launcher.title = title;
  launcher.target = FullPath(panel, name);
  launcher.terminal = terminal;
  FileKind kind = FileKind::Other;
  if (const int code = KindOf(launcher.target, kind)) return code;
  launcher.isExecutable = kind == FileKind::Executable;
  return WriteLauncher(LauncherPath(title), LauncherText(launcher));
}
