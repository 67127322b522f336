// A person at the two panels; see user.h.
#include "user.h"

#include <chrono>
#include <thread>

#include "console/input.h"
#include "fileops/copy_command.h"
#include "fileops/delete_command.h"
#include "panels/directory_sizes.h"
#include "panels/draw_panel.h"
#include "panels/read_panel.h"
#include "shell/screen.h"
#include "table.h"

// The X server's names would get in the way of the program's.
#include "watcher.h"

#include <X11/keysym.h>

namespace {

constexpr int kColumns = 132, kRows = 50;
constexpr int kMostWaits = 20;  // for one key; a second each

// What is still to be typed.
struct Typing {
  Watcher* screen = nullptr;
  const char* keys = "";
  int waits = 0;  // since the last key
};
Typing typing;

void Copy() { CopyOrMove(Panels[0], Panels[1], 0, nullptr); }
void Move() { CopyOrMove(Panels[0], Panels[1], kCommandMove, nullptr); }
void Delete() { DeleteCommand(Panels[0]); }
void CountSizes() { CalculateDirSizes(Panels[0], true); }

void ForgetInput() {
  TEvent event;
  while (Console->EventPending()) Console->GetEvent(event, 0);
}

}  // namespace

const UserCommand kCopyCommand = {Copy, "\n"}, kMoveCommand = {Move, "\n"},
                  kDeleteCommand = {Delete, "\nyes\n"}, kCountCommand = {CountSizes, ""};

User::User() : screen(std::make_unique<Watcher>()) {
  Panels = records;
  SetupLocale();
  ApplyScreenSize(kRows, kColumns);
  for (int side = 0; side < 2; ++side) MakePanelWindow(Panels[side], side);
  screen->Await("a window", screen->Whole(), [&] { return screen->FindWindow().window != 0; });
  screen->AwaitRest(screen->Whole(), 300);
  screen->GiveKeyboardTo(screen->FindWindow().window);
  typing.screen = screen.get();
  IdleHook = TypeNext;
}

// The windows put back what they cover, while there is still a console.
User::~User() {
  IdleHook = nullptr;
  typing = {};
  for (TPanel& panel : records) panel.window.reset();
}

// The command waits for a key.
void User::TypeNext() {
  if (Console->EventPending()) return;
  if (!*typing.keys) {
    if (++typing.waits < kMostWaits) return;
    fputs("The command asks for more than it was told.\n", stderr);
    exit(2);
  }
  const char key = *typing.keys++;
  typing.screen->Press(key == '\n' ? XK_Return : static_cast<KeySym>(key));
  typing.waits = 0;
}

void User::GoTo(const std::string& left, const std::string& name, const std::string& right) {
  CopyText(records[0].path, Westring(left.c_str()).Text());
  CopyText(records[1].path, Westring(right.c_str()).Text());
  ReadBothPanels();
  PositionOn(records[0], Westring(name.c_str()).Text());
  for (TPanel& panel : records) DrawPanel(panel);
}

double User::Time(const UserCommand& command) {
  ForgetInput();
  typing.keys = command.keys;
  typing.waits = 0;
  return Seconds(command.run);
}

std::optional<double> User::StopTime(const UserCommand& command, double delay) {
  using Clock = std::chrono::steady_clock;
  Clock::time_point pressed;
  std::thread finger([&] {
    std::this_thread::sleep_for(std::chrono::duration<double>(delay));
    pressed = Clock::now();
    screen->Press(XK_Escape);
  });
  Time(command);
  const Clock::time_point over = Clock::now();
  finger.join();
  if (over < pressed) return std::nullopt;
  return std::chrono::duration<double>(over - pressed).count();
}
