// What a child's output leaves on the window: after any paints on the way the
// pixels are those of a screen that is painted anew. And how often it rings.
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "support/display_fixture.h"

namespace {

constexpr unsigned long kMagenta = 0x7F007F, kGreen = 0x007F00, kWhite = 0xFFFFFF;

struct ImageRelease {
  void operator()(XImage* image) const { XDestroyImage(image); }
};
using Image = std::unique_ptr<XImage, ImageRelease>;

class TerminalPicture : public DisplayFixture {
 protected:
  TerminalPicture() { Console->AttachTerminal(-1); }

  void Write(const std::string& bytes) {
    Console->WriteTerminal(bytes.data(), static_cast<int>(bytes.size()));
  }
  void WriteAndPaint(const std::string& bytes) {
    Write(bytes);
    Console->PaintTerminal();
  }

  // Waits until the blinking has drawn the cursor in a cell of a dark ground.
  void AwaitCursor(int column, int row) {
    const int x = column * CellWidth() + CellWidth() / 2, y = (row + 1) * CellHeight() - 1;
    EXPECT_TRUE(PictureWith(kWhite, x, y) != nullptr) << "no cursor";
  }

  void StartCountingBells() {
    auto* const x = display.get();
    ASSERT_TRUE(XkbQueryExtension(x, nullptr, &xkbEvent, nullptr, nullptr, nullptr));
    XkbSelectEvents(x, XkbUseCoreKbd, XkbBellNotifyMask, XkbBellNotifyMask);
    XSelectInput(x, window, PropertyChangeMask);
    XSync(x, False);
  }

  // Those before a new title, which follows them on the same way to the display.
  int CountBells() {
    Console->SetTitle("rung");
    int bells = 0;
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (std::chrono::steady_clock::now() < deadline) {
      if (XPending(display.get()) == 0) continue;
      XEvent event;
      XNextEvent(display.get(), &event);
      const auto& xkb = reinterpret_cast<const XkbAnyEvent&>(event);
      if (event.type == xkbEvent && xkb.xkb_type == XkbBellNotify) ++bells;
      if (event.type == PropertyNotify && event.xproperty.atom == XA_WM_NAME) return bells;
    }
    return -1;
  }

  // Detaches the terminal, which paints the screen anew. The last cell tells
  // when either picture is there.
  void ExpectTruePicture() {
    WriteAndPaint("\033[?25l\033[25;80H\033[45m \033[0m");
    const Image shown = PictureWith(kMagenta);
    Console->BeginUpdate();
    Console->DetachTerminal();
    Console->PutString(kColumns - 1, kRows - 1, L" ", 0x27);
    Console->EndUpdate();
    const Image anew = PictureWith(kGreen);
    ASSERT_TRUE(shown && anew);
    EXPECT_EQ(Differences(*shown, *anew), "");
  }

 private:
  // Of the last cell's middle.
  Image PictureWith(unsigned long colour) {
    return PictureWith(colour, width - CellWidth() / 2, height - CellHeight() / 2);
  }

  // Null if the pixel does not get that colour.
  Image PictureWith(unsigned long colour, int x, int y) {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (std::chrono::steady_clock::now() < deadline) {
      Image image(XGetImage(display.get(), window, 0, 0, static_cast<unsigned>(width),
                            static_cast<unsigned>(height), AllPlanes, ZPixmap));
      if (image && (XGetPixel(image.get(), x, y) & 0xFFFFFF) == colour) return image;
    }
    return nullptr;
  }

  // The cells that are not alike, "x,y" each, but for the last one.
  std::string Differences(XImage& a, XImage& b) const {
    std::string cells;
    for (int i = 0; i < kColumns * kRows - 1; ++i) {
      if (!IsCellAlike(a, b, i % kColumns, i / kColumns))
        cells += std::to_string(i % kColumns) + "," + std::to_string(i / kColumns) + " ";
    }
    return cells;
  }

  bool IsCellAlike(XImage& a, XImage& b, int column, int row) const {
    for (int y = row * CellHeight(); y < (row + 1) * CellHeight(); ++y) {
      for (int x = column * CellWidth(); x < (column + 1) * CellWidth(); ++x)
        if (XGetPixel(&a, x, y) != XGetPixel(&b, x, y)) return false;
    }
    return true;
  }

  int CellWidth() const { return width / kColumns; }
  int CellHeight() const { return height / kRows; }

  int xkbEvent = -1;
};

}  // namespace

TEST_F(TerminalPicture, TheCursorDoesNotScrollAlong) {
  WriteAndPaint("\033[25;1Habc");
  for (int i = 0; i < 3; ++i) WriteAndPaint("\n");
  ExpectTruePicture();
}

TEST_F(TerminalPicture, ACursorThatWentOnLeavesNothingWhereItScrolledTo) {
  WriteAndPaint("\033[25;1Habc");
  for (int i = 0; i < 3; ++i) WriteAndPaint("\r\n$ ");
  ExpectTruePicture();
}

TEST_F(TerminalPicture, ACursorDrawnBeforeThePaintDoesNotScrollAlong) {
  WriteAndPaint("\033[25;1Habc");
  Write("\n\033[25;11H");
  AwaitCursor(10, 24);
  Console->PaintTerminal();
  ExpectTruePicture();
}

TEST_F(TerminalPicture, AFloodEndsWithTheRightPixels) {
  for (int i = 0; i < 20000; ++i) {
    Write("line \033[3" + std::to_string(i % 8) + "m" + std::to_string(i) + "\033[0m\r\n");
    if (i % 97 == 0) Console->PaintTerminal();
  }
  ExpectTruePicture();
}

// The other thread draws the cursor's cell as the blinking does, only more often.
TEST_F(TerminalPicture, AFloodMayTurnTheRowsWhileTheCursorBlinks) {
  std::atomic<bool> isOver{false};
  std::thread blinking([&] {
    for (int size = 15; !isOver; size = 115 - size) Console->SetCursorSize(size);
  });
  Write("\033[?1049h\033[25;1H");  // nothing is kept, so that rows turn all the time
  const std::string flood(1000, '\n');
  const uint64_t drawn = Console->DrawCount();
  while (Console->DrawCount() < drawn + 300000) Write(flood);
  isOver = true;
  blinking.join();
  ExpectTruePicture();
}

TEST_F(TerminalPicture, IsTrueAfterAnyOutputAndPaints) {
  const std::vector<std::string> kOutput = {
      "text",
      "\r\n",
      "\n",
      "\033[5;5H",
      "\033[25;40H",
      "\033[3;9r\033[9;1H",
      "\033[1;25r\033[25;1H",
      "\033[41m",
      "\033[0m",
      "\033[L",
      "\033[2M",
      "\033[K",
      "\033[J",
      "\033M",
      "\b",
      "\t",
      "\033[3S",
      "\033[2T",
      "\033[?25l",
      "\033[?25h",
      "a longer line of text\n",
      "\u2500\u2502\u253C",
      "\u2550\u2551\u256C\u2588\u2592",
      "\u4E2D\u6587\u05D0\U0001F600e\u0301",
      "\033[4P",
      "\033[3@",
      "\033[A",
      "\033[9C",
  };
  std::mt19937 random(11);
  for (int step = 0; step < 4000; ++step) {
    Write(kOutput[random() % kOutput.size()]);
    if (random() % 3 == 0) Console->PaintTerminal();
  }
  Write("\033[1;25r");
  ExpectTruePicture();
}

// As those of "W" or "%", which a cell drawn by itself cuts off beside it.
TEST_F(TerminalPicture, GlyphsMayReachIntoTheCellsBesideThem) {
  std::mt19937 random(13);
  for (int step = 0; step < 4000; ++step) {
    const char character = static_cast<char>('!' + random() % 94);
    if (random() % 3 == 0)
      Write("\033[" + std::to_string(1 + random() % kRows) + ";" + std::to_string(1 + random() % kColumns) +
            "H");
    Write(std::string(1 + random() % 3, character));
    if (random() % 3 == 0) Console->PaintTerminal();
  }
  ExpectTruePicture();
}

// ---- the bell ------------------------------------------------------------------

TEST_F(TerminalPicture, BellsBetweenTwoPaintsRingOnce) {
  StartCountingBells();
  Write("a\a\ab\a");
  EXPECT_EQ(CountBells(), 0);
  Console->PaintTerminal();
  EXPECT_EQ(CountBells(), 1);
  Console->PaintTerminal();
  EXPECT_EQ(CountBells(), 0);
}

TEST_F(TerminalPicture, ABellRingsWhereNothingElseChanges) {
  StartCountingBells();
  Console->WriteText("\a");
  EXPECT_EQ(CountBells(), 1);
}
