// A session: the whole program in this process; see the header.
//
// The program runs on a thread of its own. Whether it waits for a key is known
// from its idle hook, which it calls before it waits, and from its event queue.
// The queue dies with the program, so after a key that may end the program the
// hook is asked first: once it has been called with nothing queued, the program
// is alive and stays so until the next key.
#include "support/session.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <mutex>

#include "console/console.h"
#include "foundation/environment.h"
#include "panels/panel.h"
#include "shell/program.h"
#include "support/stream_capture.h"
#include "support/test_environment.h"
#include "support/virtual_display.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kPatience = std::chrono::seconds(60);  // after which a program hangs
constexpr auto kPollPause = std::chrono::milliseconds(2);
constexpr auto kHookPause = std::chrono::milliseconds(20);
constexpr uint32_t kDrainSlice = 50;  // milliseconds

// What the program's thread tells the test's.
struct Progress {
  std::mutex mutex;
  std::condition_variable changed;
  uint64_t rests = 0;  // times that the program was about to wait with nothing queued
  bool ended = true;
  int exitCode = -1;
  void (*idleHook)() = nullptr;  // the program's own
};
Progress progress;

void CountRest() {
  if (progress.idleHook) progress.idleHook();
  const std::lock_guard lock(progress.mutex);
  if (Console->EventPending()) return;
  ++progress.rests;
  progress.changed.notify_all();
}

// Puts CountRest in front of the program's hook, which the program may set at
// any time before its main loop.
void TakeIdleHook() {
  const auto hook = __atomic_load_n(&IdleHook, __ATOMIC_ACQUIRE);
  if (hook == CountRest) return;
  progress.idleHook = hook;
  __atomic_store_n(&IdleHook, &CountRest, __ATOMIC_RELEASE);
}

CConsole* ConsoleNow() { return __atomic_load_n(&Console, __ATOMIC_ACQUIRE); }

VirtualDisplay& Display() {
  static VirtualDisplay display;
  return display;
}

std::string Utf8(const wchar_t* text) { return ToUtf8(text).Text(); }

std::string ReadText(int x, int y, int width) {
  CellString line;
  Console->ReadRow(line, x, y, width, 1);
  Westring text;
  for (int i = 0; i < line.Length(); ++i) text += static_cast<wchar_t>(line[i].character);
  return Utf8(text.Text());
}

std::string DumpScreen() {
  int columns = 0, rows = 0;
  Console->GetSize(columns, rows);
  std::string dump;
  for (int y = 0; y < rows; ++y) dump += ReadText(0, y, columns) + "\n";
  return dump;
}

[[noreturn]] void GiveUp(const char* what) {
  std::fprintf(stderr, "%s. The screen:\n%s", what, ConsoleNow() ? DumpScreen().c_str() : "(no console)\n");
  std::abort();
}

// Waits until condition() holds; gives up the test program otherwise.
void Poll(const char* what, const std::function<bool()>& condition) {
  for (const auto deadline = Clock::now() + kPatience; !condition();) {
    if (Clock::now() > deadline) GiveUp(what);
    std::this_thread::sleep_for(kPollPause);
  }
}

void WaitUntilEnded() {
  std::unique_lock lock(progress.mutex);
  if (progress.changed.wait_for(lock, kPatience, [] { return progress.ended; })) return;
  lock.unlock();
  GiveUp("The program did not end");
}

std::thread StartProgram(std::vector<char*>& argv) {
  progress.ended = false;
  return std::thread([&argv] {
    const int result = RunOrvane(static_cast<int>(argv.size()) - 1, argv.data());
    const std::lock_guard lock(progress.mutex);
    progress.exitCode = result;
    progress.ended = true;
    progress.changed.notify_all();
  });
}

bool Ended() {
  const std::lock_guard lock(progress.mutex);
  return progress.ended;
}

std::vector<char*> MakeArgv(std::vector<std::string>& arguments) {
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  return argv;
}

TEvent KeyEvent(Key code, uint32_t modifiers, uint32_t keycode) {
  TEvent event;
  event.type = kEventKey;
  event.code = static_cast<int32_t>(code);
  event.modifiers = static_cast<int32_t>(modifiers);
  event.keycode = static_cast<int32_t>(keycode);
  return event;
}

// What the GUI thread makes of a press of the key: the row of the key table,
// the symbol itself for Control with the digit row, otherwise what the input
// method commits, which knows no modifiers.
std::optional<TEvent> KeyPress(const KeyStroke& stroke, uint32_t modifiers) {
  if (modifiers & kModCtrl && stroke.keycode >= 10 && stroke.keycode <= 19) {
    return KeyEvent(stroke.keyval, modifiers, stroke.keycode);
  }
  if (const Key code = FindKeyRow(stroke.keyval, modifiers)) return KeyEvent(code, modifiers, stroke.keycode);
  if (modifiers & (kModCtrl | kModAlt) || stroke.keyval < ' ' || stroke.keyval > '~') return std::nullopt;
  const bool upper = modifiers & kModShift && stroke.keyval >= 'a' && stroke.keyval <= 'z';
  return KeyEvent(upper ? stroke.keyval - 32 : stroke.keyval, 0, 0);
}

struct MouseRow {
  EventType type;
  int button;
};
constexpr MouseRow kMouseRows[] = {
    // by MouseKind
    {kEventPress, 1},       {kEventPress, 2},   {kEventMotion, 1},  {kEventMotion, 2},
    {kEventDoubleClick, 1}, {kEventRelease, 1}, {kEventRelease, 2}, {kEventWheel, 0},
};

}  // namespace

Session::Session(const FileList& list, SessionSetup setup) {
  files.Make({{"left/", ""}, {"right/", ""}, {"home/", ""}, {"temp/", ""}});
  files.Make(list);
  if (!setup.settings.empty()) files.Write("home/.orvane/orvane.ini", setup.settings);
  if (setup.prepare) setup.prepare(files);

  EnterTestEnvironment(files, Display().Name());
  for (const auto& [name, value] : setup.environment) setenv(name.c_str(), value.c_str(), 1);
  Variables.Load();

  arguments = {"orvane"};
  const std::vector<std::string> usual = {"-l", files.Path("left"), "-r", files.Path("right")};
  for (const std::string& argument : setup.arguments.value_or(usual)) arguments.push_back(argument);
  argv = MakeArgv(arguments);

  program = StartProgram(argv);
  Poll("The program did not come to wait for a key", [] {
    if (Ended()) GiveUp("The program ended at its start");
    return ConsoleNow() && Console->Events().WaitUntilDrained(kDrainSlice);
  });
  TakeIdleHook();
}

Session::~Session() {
  if (!HasEnded() && testing::Test::HasFailure()) std::printf("The screen:\n%s", DumpScreen().c_str());
  if (!HasEnded()) End();
  if (program.joinable()) program.join();
}

// Wherever the program stands, this leads out of it.
void Session::End() {
  for (int attempt = 0; attempt < 10; ++attempt) {
    for (const char* key : {"-Ctrl", "-Alt", "-Shift", "Esc", "Esc", "Esc", "F10", "y"}) {
      Keys(key);
      if (HasEnded()) return;
    }
  }
  GiveUp("The program could not be ended");
}

void Session::Send(const std::vector<TEvent>& events) {
  std::unique_lock lock(progress.mutex);
  if (progress.ended || events.empty()) return;
  // Under the hook's lock: a rest counted from here on comes after these events.
  const uint64_t before = progress.rests;
  Console->Events().Put(events);
  const auto deadline = Clock::now() + kPatience;
  const auto rested = [&] { return progress.ended || progress.rests != before; };
  while (!progress.changed.wait_for(lock, kHookPause, rested)) {
    if (Clock::now() > deadline) {
      lock.unlock();
      GiveUp("The program did not come back to wait for a key");
    }
    TakeIdleHook();
  }
  if (progress.ended) return;
  lock.unlock();
  Poll("The program did not take its input", [] { return Console->Events().WaitUntilDrained(kDrainSlice); });
}

// A chord is the events of its modifiers around that of its key.
std::vector<TEvent> Session::Events(const KeyStroke& stroke) {
  std::vector<TEvent> events;
  switch (stroke.kind) {
    case KeyStroke::kText:
      return {KeyEvent(stroke.text, 0, 0)};
    case KeyStroke::kHold:
      held |= stroke.modifiers;
      return {KeyEvent(kModifierKey, held, 0)};
    case KeyStroke::kRelease:
      held &= ~stroke.modifiers;
      return {KeyEvent(kModifierKey, held, 0)};
    case KeyStroke::kKey:
      break;
  }
  uint32_t modifiers = held;
  for (const ModifierKey& key : kModifierKeys) {
    if (!(stroke.modifiers & ~held & key.modifier)) continue;
    modifiers |= key.modifier;
    events.push_back(KeyEvent(kModifierKey, modifiers, key.keycode));
  }
  if (const auto press = KeyPress(stroke, modifiers)) events.push_back(*press);
  for (const ModifierKey& key : kModifierKeys) {
    if (!(stroke.modifiers & ~held & key.modifier)) continue;
    modifiers &= ~key.modifier;
    events.push_back(KeyEvent(kModifierKey, modifiers, key.keycode));
  }
  return events;
}

void Session::Keys(const std::string& script) {
  for (const KeyStroke& stroke : ParseKeys(script)) {
    for (const TEvent& event : Events(stroke)) Send({event});
  }
}

void Session::KeysTypedAhead(const std::string& script) {
  std::vector<TEvent> all;
  for (const KeyStroke& stroke : ParseKeys(script)) {
    for (const TEvent& event : Events(stroke)) all.push_back(event);
  }
  Send(all);
}

void Session::Command(Key code) { Send({KeyEvent(code, held, 0)}); }

void Session::Mouse(MouseKind kind, int x, int y, uint32_t modifiers, int wheelDelta) {
  TEvent event;
  event.type = kMouseRows[kind].type;
  event.code = kind == kMouseWheel ? wheelDelta : kMouseRows[kind].button;
  event.modifiers = static_cast<int32_t>(modifiers);
  event.x = x;
  event.y = y;
  Send({event});
}

void Session::Click(int x, int y, uint32_t modifiers) {
  Mouse(kMouseLeftPress, x, y, modifiers);
  Mouse(kMouseLeftRelease, x, y, modifiers);
}

void Session::RightClick(int x, int y, uint32_t modifiers) {
  Mouse(kMouseRightPress, x, y, modifiers);
  Mouse(kMouseRightRelease, x, y, modifiers);
}

int Session::Quit() {
  Keys("F10");
  if (!HasEnded()) Keys("Enter");
  if (!HasEnded()) ADD_FAILURE() << "F10 and Enter did not end the program";
  return HasEnded() ? ExitCode() : -1;
}

bool Session::HasEnded() const { return Ended(); }

int Session::ExitCode() {
  WaitUntilEnded();
  if (program.joinable()) program.join();
  return progress.exitCode;
}

int Session::Rows() const {
  int columns = 0, rows = 0;
  Console->GetSize(columns, rows);
  return rows;
}

int Session::Columns() const {
  int columns = 0, rows = 0;
  Console->GetSize(columns, rows);
  return columns;
}

ScreenText Session::Row(int y) const { return Text(0, y, Columns()); }

ScreenText Session::Text(int x, int y, int width) const { return ScreenText(ReadText(x, y, width)); }

uint8_t Session::Attribute(int x, int y) const { return Console->SaveBlock(x, y, 1, 1)[0].attribute; }

char32_t Session::Character(int x, int y) const {
  return static_cast<char32_t>(Console->SaveBlock(x, y, 1, 1)[0].character);
}

std::string Session::Screen() const { return DumpScreen(); }

std::optional<int> Session::FindRow(const std::string& text) const {
  for (int y = 0; y < Rows(); ++y) {
    if (Row(y).Contains(text)) return y;
  }
  return std::nullopt;
}

std::pair<int, int> Session::Cursor() const {
  std::pair<int, int> at;
  Console->GetCursor(at.first, at.second);
  return at;
}

void Session::WaitFor(const std::function<bool()>& condition) const {
  Poll("What the test waits for did not come", condition);
}

std::string Session::Under(SessionSide side) const {
  const entry* current = Panels[side].Current();
  return current ? Utf8(current->name) : "";
}

std::vector<std::string> Session::Names(SessionSide side) const {
  std::vector<std::string> names;
  for (int i = 0; i < Panels[side].count; ++i) names.push_back(Utf8(Panels[side].entries[i]->name));
  return names;
}

std::string Session::PanelPath(SessionSide side) const { return Utf8(Panels[side].path); }

SessionSide Session::Active() const { return ActiveSide == 0 ? kLeftSide : kRightSide; }

EndedRun RunToEnd(const std::vector<std::string>& given, const FileList& list) {
  Sandbox files;
  files.Make({{"home/", ""}, {"temp/", ""}});
  files.Make(list);
  EnterTestEnvironment(files, Display().Name());
  Variables.Load();
  std::vector<std::string> arguments = {"orvane"};
  arguments.insert(arguments.end(), given.begin(), given.end());
  std::vector<char*> argv = MakeArgv(arguments);

  StreamCapture output(STDOUT_FILENO);
  std::thread program = StartProgram(argv);
  WaitUntilEnded();
  program.join();
  return {progress.exitCode, output.Stop()};
}
