// Whatever keys and clicks come, into whatever menus and dialogs they lead: the
// program goes on, and a few Esc later the panels stand there as a fresh
// painting would show them.
#include <gtest/gtest.h>

#include <random>

#include "config/values/options.h"
#include "panels/mount_dialog.h"
#include "panels/panel.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"
#include "support/faults.h"

namespace {

const char* const kScripts[] = {
    "Up",
    "Down",
    "Left",
    "Right",
    "PgUp",
    "PgDn",
    "Home",
    "End",
    "Ins",
    "Del",
    "Enter",
    "Enter",
    "Tab",
    "Tab",
    "Shift-Tab",
    "Esc",
    "Space",
    "Backspace",
    "x",
    "7",
    "Q",
    "'a long text'",
    "Grey+",
    "Grey*",
    "F1",
    "F2",
    "F3",
    "F4",
    "F5",
    "F6",
    "F7",
    "F8",
    "F9",
    "F9",
    "F9",
    "F10",
    "Shift-F9",
    "Shift-F10",
    "Alt-F1",
    "Alt-F2",
    "Alt-F5",
    "Alt-F6",
    "Alt-F7",
    "Alt-F8",
    "Alt-F9",
    "Alt-F10",
    "Alt-Shift-F9",
    "Alt-Shift-F1",
    "Ctrl-F1",
    "Ctrl-F2",
    "Ctrl-F4",
    "Ctrl-F8",
    "Ctrl-A",
    "Ctrl-C",
    "Ctrl-V",
    "Ctrl-X",
    "Ctrl-Q",
    "Ctrl-M",
    "Ctrl-L",
    "Ctrl-O",
    "Ctrl-U",
    "Ctrl-W",
    "Ctrl-R",
    "Ctrl-N",
    "Ctrl-Del",
    "Shift-End",
    "Shift-Home",
    "Ctrl-Left",
    "Shift-Ins",
    "Ctrl-Ins",
    "Alt-Down",
    "Ctrl-Shift-2",
    "Ctrl-2",
    "Alt-o",
    "Alt-c",
    "Alt-e",
    "Alt-f",
    "f",
    "B",
    "+Ctrl -Ctrl",
};

// Each opens something.
constexpr Key kCommands[] = {
    kMenuConfiguration, kMenuColours,     kMenuConfirmations, kMenuLeftFilter,
    kMenuRightFilter,   kMenuFullScreen,  kMenuLeftInfo,      kMenuRightUnix,
    kMenuHidden,        kMenuRightReRead, kMenuThousandSep,
};

EjectResult RefuseToEject(const Westring&, uint32_t, Westring& error) {
  error = L"No media here";
  return EjectResult::Failed;
}

class AnyDialogKeys : public testing::TestWithParam<unsigned> {
 protected:
  AnyDialogKeys() : random(GetParam()) { TheMountHooks.eject = RefuseToEject; }
  ~AnyDialogKeys() override { TheMountHooks = MountHooks(); }

  unsigned Below(size_t limit) { return static_cast<unsigned>(random() % limit); }

  void Act(Session& s) {
    const unsigned what = Below(20);
    if (what < 15) {
      s.Keys(kScripts[Below(std::size(kScripts))]);
    } else if (what < 17) {
      s.Command(kCommands[Below(std::size(kCommands))]);
    } else {
      s.Mouse(static_cast<MouseKind>(Below(kMouseWheel + 1)), static_cast<int>(Below(s.Columns())),
              static_cast<int>(Below(s.Rows())), 0, Below(2) ? 1 : -1);
    }
  }

  std::mt19937 random;
};

}  // namespace

TEST_P(AnyDialogKeys, LeadBackToThePanelsByEscape) {
  FileList files = NumberedFiles("left", 40);
  files.insert(files.end(),
               {{"left/dir/inner/x", ""}, {"right/.hidden", ""}, {"home/Desktop/", ""}, {"bin/", ""}});
  SessionSetup setup;
  setup.settings = "ScrollDelay=0\n";
  setup.environment = {{"PATH", "/nonexistent"}, {"SHELL", "/bin/true"}};
  Session s(files, setup);
  const ReadOnlyOutside contained(s.Path());
  for (int step = 0; step < 1200 && !s.HasEnded(); ++step) {
    Act(s);
    // The question itself is looked at elsewhere; here it would only end the walk.
    if (!s.HasEnded() && s.FindRow("exit Orvane")) s.Keys("Esc");
  }
  if (s.HasEnded()) {
    EXPECT_EQ(s.ExitCode(), 0);  // the question was switched off on the way
    return;
  }
  s.Keys("Esc Esc Esc Esc Esc Esc Esc Esc Esc Esc");
  if (Options::Clock) s.Command(kMenuClock);  // or the time would tell the two screens apart
  const std::string panels = s.Screen();
  s.Command(kMenuColours);  // accepted as they are, the panels get new windows
  s.Keys("Enter");
  EXPECT_EQ(s.Screen(), panels);
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyDialogKeys, testing::Range(1u, 6u));
