// Keys, the mouse and the close button while a child has the console: events as
// the window gets them from the display.
#include <X11/Xlib.h>
#include <X11/keysym.h>
#include <poll.h>
#include <unistd.h>

#include <string>

#include "support/cells.h"
#include "support/display_fixture.h"

namespace {

constexpr int kPatienceMs = 10000;
constexpr unsigned kLeftButton = 1, kMiddleButton = 2, kWheelUp = 4, kWheelDown = 5;

// The test has the child's side of the line.
class TerminalInput : public DisplayFixture {
 protected:
  TerminalInput() {
    // The toolkit takes buttons only where it knows the pointer.
    XWarpPointer(display.get(), None, window, 0, 0, 0, 0, 1, 1);
    EXPECT_EQ(pipe(line), 0);
  }
  ~TerminalInput() override {
    Console->DetachTerminal();
    for (const int fd : line) close(fd);
  }

  void Attach() { Console->AttachTerminal(line[1]); }

  void PressKey(KeySym symbol, unsigned state = 0) {
    XEvent event{};
    event.xkey.type = KeyPress;
    event.xkey.window = window;
    event.xkey.root = DefaultRootWindow(display.get());
    event.xkey.keycode = XKeysymToKeycode(display.get(), symbol);
    event.xkey.state = state;
    event.xkey.same_screen = True;
    Send(event);
  }

  // Of a cell's middle.
  void PointAt(int type, unsigned button, int column, int row, unsigned state = 0) {
    XEvent event{};
    event.xbutton.type = type;
    event.xbutton.window = window;
    event.xbutton.root = DefaultRootWindow(display.get());
    event.xbutton.button = button;
    event.xbutton.state = state;
    event.xbutton.x = column * width / kColumns + width / kColumns / 2;
    event.xbutton.y = row * height / kRows + height / kRows / 2;
    event.xbutton.same_screen = True;
    if (type == MotionNotify) event.xmotion.is_hint = NotifyNormal;
    Send(event);
  }

  void Drag(unsigned button, unsigned state) {
    PointAt(ButtonPress, button, 5, 5);
    PointAt(MotionNotify, 0, 9, 7, state);
    PointAt(ButtonRelease, button, 9, 7, state);
  }

  void CloseWindow() {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display.get(), "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display.get(), "WM_DELETE_WINDOW", False));
    Send(event);
  }

  // The next event for the program, as "type code modifiers x,y"; the mouse wheel
  // makes one in any state, and so ends a wait for none.
  static std::string NextEvent() {
    TEvent event;
    if (!Console->GetEvent(event, kPatienceMs)) return "none";
    std::string text;
    for (const int32_t field : {event.type, event.code, event.modifiers}) text += std::to_string(field) + " ";
    return text + std::to_string(event.x) + "," + std::to_string(event.y);
  }
  std::string EventsUpToTheWheel() {
    PointAt(ButtonPress, kWheelUp, 3, 4);
    std::string events;
    for (std::string next; next != "5 1 0 3,4 " && next != "none "; events += next) next = NextEvent() + " ";
    return events;
  }

  // What the child gets next; empty if nothing has come.
  std::string Received(int patienceMs = kPatienceMs) const {
    pollfd state{line[0], POLLIN, 0};
    char bytes[64];
    if (poll(&state, 1, patienceMs) <= 0) return "";
    return std::string(bytes, static_cast<size_t>(read(line[0], bytes, sizeof bytes)));
  }

 private:
  void Send(XEvent& event) {
    XSendEvent(display.get(), window, False, NoEventMask, &event);
    XSync(display.get(), False);
  }

  int line[2] = {-1, -1};
};

constexpr char kOnlyTheWheel[] = "5 1 0 3,4 ";

}  // namespace

TEST_F(TerminalInput, KeysGoToTheChildAlone) {
  Attach();
  PressKey(XK_F5);
  EXPECT_EQ(Received(), "\033[15~");
  PressKey(XK_Escape);
  EXPECT_EQ(Received(), "\033");
  PressKey(XK_c, ControlMask);
  EXPECT_EQ(Received(), "\003");
  EXPECT_EQ(EventsUpToTheWheel(), kOnlyTheWheel);
  Console->DetachTerminal();
  PressKey(XK_F5);
  EXPECT_EQ(NextEvent(), "0 65599 0 0,0");  // 0x1003F
  EXPECT_EQ(Received(0), "");
}

TEST_F(TerminalInput, ModifiersAndOtherKeysWithoutBytesAreSeenByNobody) {
  Attach();
  PressKey(XK_Shift_L);
  PressKey(XK_F5, Mod1Mask);
  EXPECT_EQ(EventsUpToTheWheel(), kOnlyTheWheel);
  EXPECT_EQ(Received(0), "");
  EXPECT_FALSE(Console->TerminalOwesEcho());
}

TEST_F(TerminalInput, AKeyOwesItsEchoUntilSomethingIsPainted) {
  Attach();
  PressKey(XK_F5);
  EXPECT_EQ(Received(), "\033[15~");
  EXPECT_TRUE(Console->TerminalOwesEcho());
  Console->PaintTerminal();
  EXPECT_TRUE(Console->TerminalOwesEcho());
  Console->WriteText("^[[15~");
  EXPECT_FALSE(Console->TerminalOwesEcho());
}

TEST_F(TerminalInput, ButtonsAndMotionAreDroppedWhileAChildRuns) {
  Attach();
  Drag(kLeftButton, Button1Mask);
  Drag(kLeftButton, Button1Mask);  // a double click
  Drag(kMiddleButton, Button2Mask);
  EXPECT_EQ(EventsUpToTheWheel(), kOnlyTheWheel);
  EXPECT_EQ(Received(0), "");
  Console->DetachTerminal();
  Drag(kLeftButton, Button1Mask);
  EXPECT_EQ(NextEvent(), "1 1 0 5,5");
  EXPECT_EQ(NextEvent(), "3 1 0 9,7");
  EXPECT_EQ(NextEvent(), "2 1 0 9,7");
}

TEST_F(TerminalInput, TheWheelIsQueuedWhileAChildRuns) {
  Attach();
  PointAt(ButtonPress, kWheelDown, 70, 20, ShiftMask);
  EXPECT_EQ(NextEvent(), "5 -1 1 70,20");
  EXPECT_EQ(EventsUpToTheWheel(), kOnlyTheWheel);
  EXPECT_EQ(Received(0), "");
}

TEST_F(TerminalInput, TheCloseButtonIsForTheProgramAndNotForTheChild) {
  Attach();
  CloseWindow();
  EXPECT_EQ(NextEvent(), "0 65604 0 0,0");  // F10
  EXPECT_EQ(Received(0), "");
  Console->DetachTerminal();
  CloseWindow();
  EXPECT_EQ(NextEvent(), "0 65604 0 0,0");
}

TEST_F(TerminalInput, WithoutATerminalItsOutputGoesNowhere) {
  const auto before = Snapshot();
  Console->WriteTerminal("text", 4);
  Console->PaintTerminal();
  EXPECT_FALSE(Console->TerminalOwesEcho());
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(TerminalInput, AScreenThatGrowsUnderAChildTakesAllOfItsOutput) {
  Attach();
  Console->WriteText("\033[25;1Hbefore");
  Console->Resize(100, 60, "", 0);
  std::string output = "\033[60;1H";
  for (int i = 0; i < 100; ++i) output += "line " + std::to_string(i) + "\r\n";
  Console->WriteText(output.c_str());
  const auto cells = Console->SaveBlock(5, 58, 2, 1);
  EXPECT_EQ(CharacterOf(cells[0]), '9');
  EXPECT_EQ(CharacterOf(cells[1]), '9');
  Console->Resize(20, 5, "", 0);
  Console->PaintTerminal();
  Console->WriteText("\033[5;1Hsmall\n");
  EXPECT_EQ(Text(0, 3, 20).Trimmed(), "small");
}
