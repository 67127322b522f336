// What keys send to a child.
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include "terminal_fixture.h"

namespace {

struct Sent {
  Key key;
  const char* bytes;
};

// Of cursor keys the last byte.
constexpr Sent kCursorKeys[] = {
    {0x10048, "A"}, {0x10050, "B"}, {0x1004D, "C"}, {0x1004B, "D"}, {0x10047, "H"}, {0x1004F, "F"},
};

constexpr Sent kOthers[] = {
    {0x10049, "\033[5~"},  {0x10051, "\033[6~"},  {0x10084, "\033[5;5~"}, {0x10076, "\033[6;5~"},
    {0x10052, "\033[2~"},  {0x10053, "\033[3~"},  {0x1003B, "\033OP"},    {0x1003C, "\033OQ"},
    {0x1003D, "\033OR"},   {0x1003E, "\033OS"},   {0x1003F, "\033[15~"},  {0x10040, "\033[17~"},
    {0x10041, "\033[18~"}, {0x10042, "\033[19~"}, {0x10043, "\033[20~"},  {0x10044, "\033[21~"},
    {0x10085, "\033[23~"}, {0x10086, "\033[24~"}, {0x10101, "\b"},
};

// A child that does not read, on a line that is not edited: an edited one swallows
// all that is too much.
class StuckChild {
 public:
  StuckChild() {
    EXPECT_EQ(openpty(&master, &slave, nullptr, nullptr, nullptr), 0);
    termios modes;
    tcgetattr(slave, &modes);
    cfmakeraw(&modes);
    tcsetattr(slave, TCSANOW, &modes);
  }
  ~StuckChild() {
    close(master);
    close(slave);
  }

  // Ends only if a write that the child has no room for comes back.
  void Fill(CTerminal& terminal) {
    pollfd state{master, POLLOUT, 0};
    int sent = 0;
    while (sent < 200000 && poll(&state, 1, 0) == 1 && (state.revents & POLLOUT) != 0) {
      terminal.SendKey(kCtrlPageUp);
      ++sent;
    }
    EXPECT_LT(sent, 200000);
    for (int i = 0; i < 1000; ++i) terminal.SendKey(kCtrlPageUp);
  }

  // Some of what there is to read, when there is something.
  std::string Read() const {
    char bytes[4096];
    return std::string(bytes, static_cast<size_t>(read(slave, bytes, sizeof bytes)));
  }

  int master = -1, slave = -1;
};

}  // namespace

class TerminalKeys : public TerminalTest {
 protected:
  TerminalKeys() {
    EXPECT_EQ(pipe(ends), 0);
    terminal = std::make_unique<CTerminal>(screen, ends[1]);
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
  }
  ~TerminalKeys() override {
    close(ends[0]);
    close(ends[1]);
  }

  std::string Send(Key code) {
    terminal->SendKey(code);
    char bytes[32];
    const ssize_t n = read(ends[0], bytes, sizeof bytes);
    return std::string(bytes, static_cast<size_t>(std::max<ssize_t>(n, 0)));
  }

  int ends[2] = {-1, -1};
  PlainScreen screen{20, 6};
  std::unique_ptr<CTerminal> terminal;
};

TEST_F(TerminalKeys, CodesUpTo255AreOneByte) {
  for (Key code = 0; code < 256; ++code) EXPECT_EQ(Send(code), std::string(1, static_cast<char>(code)));
}

TEST_F(TerminalKeys, TextAbove255IsNotSent) {
  for (const Key code : {0x100u, 0x20ACu, 0xFFFFu, 0x1F600u}) EXPECT_EQ(Send(code), "") << code;
}

TEST_F(TerminalKeys, CursorKeysFollowTheApplicationMode) {
  for (const Sent& row : kCursorKeys) EXPECT_EQ(Send(row.key), std::string("\033[") + row.bytes);
  terminal->Write("\033[?1h", 5);
  for (const Sent& row : kCursorKeys) EXPECT_EQ(Send(row.key), std::string("\033O") + row.bytes);
  terminal->Write("\033[?1l", 5);
  for (const Sent& row : kCursorKeys) EXPECT_EQ(Send(row.key), std::string("\033[") + row.bytes);
}

TEST_F(TerminalKeys, OtherKeysSendTheSameInBothModes) {
  for (const char* mode : {"\033[?1l\033>", "\033[?1h\033="}) {
    terminal->Write(mode, static_cast<int>(strlen(mode)));
    for (const Sent& row : kOthers) EXPECT_EQ(Send(row.key), row.bytes) << std::hex << row.key;
  }
}

TEST_F(TerminalKeys, AllOtherCodesSendNothing) {
  const auto isSent = [](Key code) {
    const auto hasCode = [&](const Sent& row) { return row.key == code; };
    return std::any_of(std::begin(kCursorKeys), std::end(kCursorKeys), hasCode) ||
           std::any_of(std::begin(kOthers), std::end(kOthers), hasCode);
  };
  for (const Key base : {0x10000u, 0x20000u, 0x30000u, 0x40000u, 0x60000u, 0x400000u}) {
    for (Key code = base; code < base + 0x200; ++code) {
      const std::string sent = Send(code);
      EXPECT_TRUE(sent.empty() || isSent(code)) << std::hex << code;
    }
  }
}

TEST_F(TerminalKeys, AChildThatReadsNothingHoldsUpNobody) {
  StuckChild child;
  CTerminal terminal(screen, child.master);
  child.Fill(terminal);
}

TEST_F(TerminalKeys, AChildThatReadsAgainGetsWholeKeysOnly) {
  const std::string key = "\033[5;5~";
  for (size_t shift = 0; shift < key.size(); ++shift) {
    StuckChild child;
    CTerminal terminal(screen, child.master);
    for (size_t i = 0; i < shift; ++i) terminal.SendKey('.');
    child.Fill(terminal);
    std::string got;
    do {
      got += child.Read();
      terminal.SendKey('x');
    } while (got.back() != 'x');
    size_t at = shift;
    while (got.compare(at, key.size(), key) == 0) at += key.size();
    EXPECT_EQ(got.find_first_not_of('x', at), std::string::npos) << shift;
  }
}

TEST_F(TerminalKeys, TellsWhichCodesSendSomething) {
  for (Key code = 0; code < 256; ++code) EXPECT_TRUE(SendsBytes(code)) << code;
  for (const Sent& row : kCursorKeys) EXPECT_TRUE(SendsBytes(row.key)) << row.key;
  for (const Sent& row : kOthers) EXPECT_TRUE(SendsBytes(row.key)) << row.key;
  for (const Key code : {Key{0x100}, Key{0x20AC}, kModifierKey, Key{0x30054}}) EXPECT_FALSE(SendsBytes(code));
}

TEST_F(TerminalKeys, AFailedWriteIsIgnored) {
  CTerminal nowhere(screen, -1);
  nowhere.SendKey('a');
  CTerminal readOnly(screen, ends[0]);
  readOnly.SendKey('a');
}
