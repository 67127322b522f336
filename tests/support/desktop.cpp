// The desktop; see the header.
#include "support/desktop.h"

// Before Xlib, whose macros take away names such as None and Bool.
#include <gtest/gtest.h>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "support/key_script.h"
#include "support/test_environment.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kPatience = std::chrono::seconds(20);
constexpr int kPollPauseMs = 10;
constexpr int kStartColumns = 80, kStartRows = 25;
constexpr char kTitleAtRest[] = "Orvane: ";  // followed by the path, set when the panels stand
constexpr float kFaintest = 50;  // distance of colours; less is the edge of a neighbour's glyph
constexpr float kSameGlyph = 0.04f;          // mean difference of ink that still is the same character

// Errors of requests on a window that has just gone are no errors here.
int IgnoreError(Display*, XErrorEvent*) { return 0; }

std::array<uint8_t, 3> PaletteColour(int index) {
  if (index == 7) return {0xC0, 0xC0, 0xC0};
  if (index == 8) return {0x80, 0x80, 0x80};
  const uint8_t on = index < 8 ? 0x7F : 0xFF;
  const auto channel = [&](int bit) { return static_cast<uint8_t>(index & bit ? on : 0); };
  return {channel(4), channel(2), channel(1)};
}

// The most frequent colour of a cell: its background.
std::array<uint8_t, 3> GroundOf(const Picture& picture, int left, int top, int width, int height) {
  std::map<std::array<uint8_t, 3>, int> counts;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) ++counts[picture.At(left + x, top + y)];
  }
  return std::max_element(counts.begin(), counts.end(), [](auto& a, auto& b) { return a.second < b.second; })->first;
}

float Distance(const std::array<uint8_t, 3>& a, const std::array<uint8_t, 3>& b) {
  float sum = 0;
  for (int i = 0; i < 3; ++i) sum += static_cast<float>((a[i] - b[i]) * (a[i] - b[i]));
  return std::sqrt(sum);
}

bool HasInk(const std::vector<float>& glyph) {
  return std::any_of(glyph.begin(), glyph.end(), [](float ink) { return ink > 0; });
}

std::string RunCommand(const std::string& command) {
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return "";
  std::string output;
  char part[256];
  while (const size_t n = fread(part, 1, sizeof part, pipe)) output.append(part, n);
  pclose(pipe);
  return output;
}

}  // namespace

Desktop::Desktop(const FileList& list, const std::string& settings, std::optional<std::vector<std::string>> arguments) {
  files.Make({{"left/", ""}, {"right/", ""}, {"home/", ""}, {"temp/", ""}});
  files.Make(list);
  if (!settings.empty()) files.Write("home/.orvane/orvane.ini", settings);
  XSetErrorHandler(IgnoreError);
  display = XOpenDisplay(server.Name().c_str());
  if (!display) std::abort();
  Start(arguments.value_or(std::vector<std::string>{"-l", files.Path("left"), "-r", files.Path("right")}));
  if (!Eventually([this] {
        FindWindow();
        return HasWindow() && Title().starts_with(kTitleAtRest);
      })) {
    ADD_FAILURE() << "The program's window did not come";
    return;
  }
  const Picture start = TakePicture();
  cellWidth = start.width / kStartColumns;
  cellHeight = start.height / kStartRows;
  // There is no window manager to give the window the keyboard.
  XSetInputFocus(display, window, RevertToParent, CurrentTime);
  XSync(display, False);
  LearnGlyphs();
}

Desktop::~Desktop() {
  if (testing::Test::HasFailure() && HasWindow() && cellWidth > 0) {
    std::printf("Title: %s\nThe screen:\n%s", Title().c_str(), Screen().c_str());
  }
  if (!exitCode && program > 0) {
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
  }
  XCloseDisplay(display);
}

void Desktop::Start(const std::vector<std::string>& arguments) {
  const char* path = getenv("ORVANE_TEST_PROGRAM");
  const std::string binary = path ? path : ORVANE_TEST_PROGRAM;
  program = fork();
  if (program != 0) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  EnterTestEnvironment(files, server.Name());
  std::vector<std::string> all = {binary};
  all.insert(all.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  for (std::string& argument : all) argv.push_back(argument.data());
  argv.push_back(nullptr);
  execv(argv[0], argv.data());
  _exit(127);
}

// The program's window is the one mapped child of the root that has a name.
void Desktop::FindWindow() {
  Window root, parent, *children = nullptr;
  unsigned count = 0;
  window = 0;
  if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count)) return;
  for (unsigned i = 0; i < count; ++i) {
    XWindowAttributes attributes;
    if (XGetWindowAttributes(display, children[i], &attributes) && attributes.map_state == IsViewable) {
      window = children[i];
    }
  }
  if (children) XFree(children);
}

bool Desktop::HasWindow() const {
  XWindowAttributes attributes;
  return window && XGetWindowAttributes(display, window, &attributes) && attributes.map_state == IsViewable;
}

std::string Desktop::Title() const {
  Atom type;
  int format;
  unsigned long items, rest;
  unsigned char* data = nullptr;
  if (XGetWindowProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False), 0, 1024, False,
                         XInternAtom(display, "UTF8_STRING", False), &type, &format, &items, &rest,
                         &data) != Success ||
      !data) {
    return "";
  }
  std::string title(reinterpret_cast<char*>(data), items);
  XFree(data);
  return title;
}

// ---- input -----------------------------------------------------------------

void Desktop::PressKey(uint32_t keysym, bool down) {
  XTestFakeKeyEvent(display, XKeysymToKeycode(display, keysym), down, CurrentTime);
}

void Desktop::Keys(const std::string& script) {
  for (const KeyStroke& stroke : ParseKeys(script)) {
    uint32_t keysym = stroke.keyval;
    uint32_t modifiers = stroke.modifiers;
    if (stroke.kind == KeyStroke::kText) {
      keysym = stroke.text < 0x100 ? stroke.text : 0x1000000 | stroke.text;
      const KeyCode code = XKeysymToKeycode(display, keysym);
      modifiers = XkbKeycodeToKeysym(display, code, 0, 0) == keysym ? 0u : 1u;
    }
    const bool hold = stroke.kind != KeyStroke::kRelease, release = stroke.kind != KeyStroke::kHold;
    for (const ModifierKey& key : kModifierKeys) {
      if (hold && modifiers & key.modifier) PressKey(key.keyval, true);
    }
    if (keysym) {
      PressKey(keysym, true);
      PressKey(keysym, false);
    }
    for (const ModifierKey& key : kModifierKeys) {
      if (release && modifiers & key.modifier) PressKey(key.keyval, false);
    }
    XSync(display, False);
  }
}

void Desktop::MovePointer(int column, int row) {
  Window child;
  int x, y;
  XTranslateCoordinates(display, window, DefaultRootWindow(display), column * cellWidth + cellWidth / 2,
                        row * cellHeight + cellHeight / 2, &x, &y, &child);
  XTestFakeMotionEvent(display, -1, x, y, CurrentTime);
  XSync(display, False);
}

void Desktop::Press(unsigned button) {
  XTestFakeButtonEvent(display, button, True, CurrentTime);
  XSync(display, False);
}

void Desktop::Release(unsigned button) {
  XTestFakeButtonEvent(display, button, False, CurrentTime);
  XSync(display, False);
}

void Desktop::Click(unsigned button, int column, int row) {
  MovePointer(column, row);
  Press(button);
  Release(button);
}

void Desktop::CloseWindow() {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
  event.xclient.data.l[1] = CurrentTime;
  XSendEvent(display, window, False, NoEventMask, &event);
  XSync(display, False);
}

void Desktop::CoverForAMoment() {
  XSetWindowAttributes attributes{};
  attributes.override_redirect = True;
  attributes.background_pixel = 0xFFFFFF;
  const Picture covered = TakePicture();
  const Window cover =
      XCreateWindow(display, DefaultRootWindow(display), 0, 0, static_cast<unsigned>(covered.width),
                    static_cast<unsigned>(covered.height), 0, CopyFromParent, InputOutput, CopyFromParent,
                    CWOverrideRedirect | CWBackPixel, &attributes);
  XMapRaised(display, cover);
  XSync(display, False);
  XDestroyWindow(display, cover);
  XSync(display, False);
}

void Desktop::KeepWindowSize() {
  XSelectInput(display, DefaultRootWindow(display), SubstructureRedirectMask);
  XSync(display, False);
}

// The program waits for what has become of its wish.
void Desktop::RefuseSizes() const {
  XEvent request;
  while (XCheckTypedEvent(display, ConfigureRequest, &request)) {
    XWindowAttributes now;
    if (!XGetWindowAttributes(display, window, &now)) return;
    XEvent answer{};
    answer.xconfigure.type = ConfigureNotify;
    answer.xconfigure.event = answer.xconfigure.window = window;
    answer.xconfigure.x = now.x;
    answer.xconfigure.y = now.y;
    answer.xconfigure.width = now.width;
    answer.xconfigure.height = now.height;
    XSendEvent(display, window, False, StructureNotifyMask, &answer);
    XSync(display, False);
  }
}

// ---- what is seen ----------------------------------------------------------

int Desktop::Columns() const { return TakePicture().width / cellWidth; }

int Desktop::Rows() const { return TakePicture().height / cellHeight; }

Picture Desktop::TakePicture() const {
  Picture picture;
  XWindowAttributes attributes;
  if (!window || !XGetWindowAttributes(display, window, &attributes)) return picture;
  XImage* image = XGetImage(display, window, 0, 0, static_cast<unsigned>(attributes.width),
                            static_cast<unsigned>(attributes.height), AllPlanes, ZPixmap);
  if (!image) return picture;
  picture.width = attributes.width;
  picture.height = attributes.height;
  picture.pixels.reserve(static_cast<size_t>(picture.width) * picture.height);
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const unsigned long pixel = XGetPixel(image, x, y);
      picture.pixels.push_back({static_cast<uint8_t>(pixel >> 16), static_cast<uint8_t>(pixel >> 8),
                                static_cast<uint8_t>(pixel)});
    }
  }
  XDestroyImage(image);
  return picture;
}

int Desktop::Background(int column, int row) const {
  const Picture picture = TakePicture();
  if (picture.pixels.empty()) return -1;
  const auto ground = GroundOf(picture, column * cellWidth, row * cellHeight, cellWidth, cellHeight);
  for (int index = 0; index < 16; ++index) {
    if (PaletteColour(index) == ground) return index;
  }
  return -1;
}

// How far each pixel is from the background, as a fraction of the farthest:
// the same for a character in any pair of colours.
Desktop::Glyph Desktop::ReadGlyph(const Picture& picture, int column, int row) const {
  Glyph glyph(static_cast<size_t>(cellWidth) * cellHeight, 0);
  if (picture.pixels.empty()) return glyph;
  const int left = column * cellWidth, top = row * cellHeight;
  const auto ground = GroundOf(picture, left, top, cellWidth, cellHeight);
  float most = 0;
  for (size_t i = 0; i < glyph.size(); ++i) {
    const int x = static_cast<int>(i) % cellWidth, y = static_cast<int>(i) / cellWidth;
    glyph[i] = Distance(picture.At(left + x, top + y), ground);
    most = std::max(most, glyph[i]);
  }
  for (float& ink : glyph) ink = most > kFaintest ? ink / most : 0;
  return glyph;
}

// Has the program itself show every printable character on its command line.
void Desktop::LearnGlyphs() {
  const int row = Rows() - 2;
  const int start = static_cast<int>(Title().size() - sizeof kTitleAtRest + 1) + 1;  // path and ">"
  for (char first = '!'; first <= '~'; first = static_cast<char>(first + 32)) {
    std::string typed;
    for (int ch = first; ch < first + 32 && ch <= '~'; ++ch) typed += static_cast<char>(ch);
    const int length = static_cast<int>(typed.size());
    std::string script = "'";
    for (const char ch : typed) script += ch == '\'' ? std::string("''") : std::string(1, ch);
    Keys(script + "'");
    // The last cell with ink is then the cursor behind the text.
    Picture picture;
    const bool shown = Eventually([&] {
      picture = TakePicture();
      for (int i = 0; i <= length; ++i) {
        if (!HasInk(ReadGlyph(picture, start + i, row))) return false;
      }
      return true;
    });
    if (!shown) {
      ADD_FAILURE() << "Typed characters did not appear on the command line";
      return;
    }
    for (int i = 0; i < length; ++i) glyphs[typed[static_cast<size_t>(i)]] = ReadGlyph(picture, start + i, row);
    Keys("Esc");
    Eventually([&] { return !HasInk(ReadGlyph(TakePicture(), start + 1, row)); });
    if (first + 32 > '~') break;
  }
}

char Desktop::Recognise(const Glyph& glyph) const {
  if (!HasInk(glyph)) return ' ';
  char best = '?';
  float least = kSameGlyph * static_cast<float>(glyph.size());
  for (const auto& [ch, known] : glyphs) {
    float difference = 0;
    for (size_t i = 0; i < glyph.size(); ++i) difference += std::abs(glyph[i] - known[i]);
    if (difference < least) {
      least = difference;
      best = ch;
    }
  }
  return best;
}

std::string Desktop::Row(int y) const {
  const Picture picture = TakePicture();
  std::string text;
  for (int x = 0; x < picture.width / cellWidth; ++x) text += Recognise(ReadGlyph(picture, x, y));
  return text;
}

std::string Desktop::Screen() const {
  std::string screen;
  for (int y = 0, rows = Rows(); y < rows; ++y) screen += Row(y) + "\n";
  return screen;
}

bool Desktop::Eventually(const std::function<bool()>& condition) const {
  for (const auto deadline = Clock::now() + kPatience; !condition();) {
    if (Clock::now() > deadline) return false;
    RefuseSizes();
    poll(nullptr, 0, kPollPauseMs);
  }
  return true;
}

bool Desktop::EventuallyShows(const std::string& text) const {
  return Eventually([&] { return Screen().find(text) != std::string::npos; });
}

std::string Desktop::Clipboard() const {
  return RunCommand("DISPLAY=" + server.Name() + " timeout 10 xclip -selection clipboard -o");
}

// xclip ends before its request to own the clipboard need have reached the server.
void Desktop::SetClipboard(const std::string& text) {
  FILE* pipe = popen(("DISPLAY=" + server.Name() + " xclip -selection clipboard -i >/dev/null 2>&1").c_str(), "w");
  if (!pipe) {
    ADD_FAILURE() << "xclip does not start";
    return;
  }
  fwrite(text.data(), 1, text.size(), pipe);
  pclose(pipe);
  if (!Eventually([&] { return Clipboard() == text; })) ADD_FAILURE() << "The clipboard does not hold " << text;
}

int Desktop::ExitCode() {
  if (!exitCode) {
    Eventually([this] {
      int status;
      if (waitpid(program, &status, WNOHANG) != program) return false;
      exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
      return true;
    });
  }
  return exitCode.value_or(-1);
}
