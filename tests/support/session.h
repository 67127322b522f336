// A session: the whole program in this process, on a console of its own, with
// a home and files of its own, driven by keys. A session test reads:
//
//   TEST(CopyDialog, EscLeavesEverythingAsItWas) {
//     Session s({{"left/a.txt", "one"}, {"right/", ""}});
//     s.Keys("Down F5 Esc");
//     EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
//     EXPECT_FALSE(s.Exists("right/a.txt"));
//     EXPECT_EQ(s.Under(kLeftSide), "a.txt");
//   }
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "console/event_queue.h"
#include "console/input.h"
#include "support/key_script.h"
#include "support/sandbox.h"
#include "support/screen_text.h"

enum SessionSide { kLeftSide = 0, kRightSide = 1 };

// What differs from the ordinary start.
struct SessionSetup {
  std::string settings = {};  // text of home/.orvane/orvane.ini; none if empty
  // Instead of "-l <sandbox>/left -r <sandbox>/right". The process stands in the sandbox.
  std::optional<std::vector<std::string>> arguments = {};
  std::vector<std::pair<std::string, std::string>> environment = {};  // beside HOME, TZ, LANG, ...
  std::function<void(const Sandbox&)> prepare = {};  // after the files, before the start: links, times, modes
};

class Session {
 public:
  // Makes the files below the sandbox (left/ and right/ always), starts the
  // program and waits until it waits for a key.
  explicit Session(const FileList& files = {}, SessionSetup setup = {});
  // Ends the program if the test did not; shows the screen if the test failed.
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // ---- input: each call returns when the program waits for more, or has ended

  void Keys(const std::string& script);            // key_script.h; one by one, as a person types
  void KeysTypedAhead(const std::string& script);  // all of them at once
  void Command(Key code);                          // of a menu, for which there may be no key
  void Mouse(MouseKind kind, int x, int y, uint32_t modifiers = 0, int wheelDelta = 1);
  void Click(int x, int y, uint32_t modifiers = 0);       // press and release of the left button
  void RightClick(int x, int y, uint32_t modifiers = 0);
  // F10 and Enter. The result of main.
  int Quit();
  bool HasEnded() const;
  int ExitCode();  // waits for the end, which the test has brought about

  // ---- the screen, while the program waits

  int Rows() const;
  int Columns() const;
  ScreenText Row(int y) const;
  ScreenText Text(int x, int y, int width) const;
  uint8_t Attribute(int x, int y) const;
  char32_t Character(int x, int y) const;
  std::string Screen() const;                         // all rows, each with its line end
  std::optional<int> FindRow(const std::string& text) const;  // the first row that contains it
  std::pair<int, int> Cursor() const;                 // x, y

  // Waits until the condition holds: for what comes without a key, such as a
  // clock or the output of a child. Ends the test program if it never does.
  void WaitFor(const std::function<bool()>& condition) const;

  // ---- the panels, while the program waits

  std::string Under(SessionSide side) const;  // name under the cursor; empty in an empty panel
  std::vector<std::string> Names(SessionSide side) const;
  std::string PanelPath(SessionSide side) const;
  SessionSide Active() const;

  // ---- the files

  std::string Path(const std::string& name = "") const { return files.Path(name); }
  bool Exists(const std::string& name) const { return files.Exists(name); }
  std::string Content(const std::string& name) const { return files.Content(name); }
  void Write(const std::string& name, const std::string& content) { files.Write(name, content); }

 private:
  void Send(const std::vector<TEvent>& events);  // waits until they are acted on
  std::vector<TEvent> Events(const KeyStroke& stroke);
  void End();

  Sandbox files;
  std::vector<std::string> arguments;
  std::vector<char*> argv;
  std::thread program;
  uint32_t held = 0;  // modifiers
};

// A start that ends by itself, such as one with wrong arguments.
struct EndedRun {
  int exitCode;
  std::string output;  // standard output
};
EndedRun RunToEnd(const std::vector<std::string>& arguments, const FileList& files = {});
