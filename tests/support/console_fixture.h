// A console of the test's own, without the program: for what draws and reads
// keys below the shell. The test's thread is the application thread. What a
// person does is told beforehand and happens whenever the code under test waits
// for input:
//
//   TEST_F(DialogTest, ArrowsMoveWithinTheGroup) {
//     Dialog dialog(-1, -3, 30, 5, 0x70);
//     ...
//     Keys("Down");
//     Then([&] { EXPECT_EQ(dialog.Focus(), 1); });
//     Keys("Esc");
//     EXPECT_EQ(dialog.Run(), kEscape);
//   }
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "console/console.h"
#include "console/input.h"
#include "console/toolkit.h"
#include "foundation/strings.h"
#include "support/key_script.h"
#include "support/sandbox.h"
#include "support/screen_text.h"
#include "support/test_environment.h"
#include "support/virtual_display.h"

class ConsoleFixture : public testing::Test {
 protected:
  static constexpr int kColumns = 80, kRows = 25;

  ConsoleFixture() {
    files.Make({{"home/", ""}, {"temp/", ""}});
    EnterTestEnvironment(files, Display().Name());
    toolkit.emplace(argc, argv);
    console = std::make_unique<CConsole>();
    Console = console.get();
    console->GetSize(ScreenColumns, ScreenRows);
    running = this;
    IdleHook = [] { running->GoOn(); };
  }

  ~ConsoleFixture() override {
    EXPECT_TRUE(steps.empty()) << "the code under test did not wait for all of its input";
    if (HasFailure()) std::printf("The screen:\n%s", Screen().c_str());
    IdleHook = nullptr;
    running = nullptr;
    console.reset();
    Console = nullptr;
  }

  // ---- what happens at the following waits, one step at each

  void Keys(const std::string& script) {  // key_script.h
    for (const KeyStroke& stroke : ParseKeys(script)) {
      TEvent event;
      event.type = kEventKey;
      event.code = static_cast<int32_t>(CodeOf(stroke));
      event.modifiers = static_cast<int32_t>(stroke.modifiers);
      event.keycode = static_cast<int32_t>(stroke.keycode);
      Put(event);
    }
  }

  void Mouse(EventType type, int button, int x, int y) {  // buttons as in TEvent
    TEvent event;
    event.type = type;
    event.code = button;
    event.x = x;
    event.y = y;
    Put(event);
  }

  void Click(int x, int y) {
    Mouse(kEventPress, 1, x, y);
    Mouse(kEventRelease, 1, x, y);
  }

  void Put(const TEvent& event) {
    steps.push_back([this, event] {
      console->Events().Put(new TEvent(event));
      return true;
    });
  }

  // Looks at what the input so far has led to.
  void Then(std::function<void()> look) {
    steps.push_back([look = std::move(look)] {
      look();
      return false;
    });
  }

  // A wait that nothing ends but its time.
  void Silence() {
    steps.push_back([] { return true; });
  }

  // ---- the screen

  ScreenText Row(int y) const { return Text(0, y, kColumns); }

  ScreenText Text(int x, int y, int width) const {
    CellString line;
    console->ReadRow(line, x, y, width, 1);
    Westring text;
    for (int i = 0; i < line.Length(); ++i) text += static_cast<wchar_t>(line[i].character);
    return ScreenText(ToUtf8(text).Text());
  }

  uint8_t Attribute(int x, int y) const { return console->SaveBlock(x, y, 1, 1)[0].attribute; }

  std::string Screen() const {
    std::string screen;
    for (int y = 0; y < kRows; ++y) screen += Row(y).String() + "\n";
    return screen;
  }

  // All cells, to compare with later.
  std::unique_ptr<Cell[]> Snapshot() const { return console->SaveBlock(0, 0, kColumns, kRows); }

  // The cells that differ from a snapshot, "x,y" each; empty if none does.
  std::string ChangesSince(const std::unique_ptr<Cell[]>& snapshot) const {
    const auto now = Snapshot();
    std::string changes;
    for (int i = 0; i < kColumns * kRows; ++i) {
      if (now[i] == snapshot[i]) continue;
      changes += std::to_string(i % kColumns) + "," + std::to_string(i / kColumns) + " ";
    }
    return changes;
  }

 private:
  // One for all tests of a process: the toolkit connects once.
  static VirtualDisplay& Display() {
    static VirtualDisplay display;
    return display;
  }

  static Key CodeOf(const KeyStroke& stroke) {
    if (stroke.kind == KeyStroke::kText) return stroke.text;
    if (stroke.kind != KeyStroke::kKey) return kModifierKey;
    const Key code = FindKeyRow(stroke.keyval, stroke.modifiers);
    return code != 0 ? code : stroke.keyval;  // a character of the input method
  }

  // Each step returns whether it was one of input.
  void GoOn() {
    if (console->EventPending()) return;
    while (!steps.empty()) {
      const auto step = std::move(steps.front());
      steps.pop_front();
      if (step()) return;
    }
    ADD_FAILURE() << "the code under test waits for more input than it was told";
    TEvent escape;
    escape.code = kEscape;
    console->Events().Put(new TEvent(escape));
  }

  inline static ConsoleFixture* running = nullptr;

  Sandbox files;
  char name[8] = "session";
  char* arguments[2] = {name, nullptr};
  int argc = 1;
  char** argv = arguments;
  std::optional<Toolkit> toolkit;
  std::unique_ptr<CConsole> console;
  std::deque<std::function<bool()>> steps;
};
