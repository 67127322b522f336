// A file on the viewer's screen, without its loop: the test does what keys do.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "support/console_fixture.h"
#include "viewer/search_settings.h"
#include "viewer/viewer.h"

class OpenViewer : public CViewer {
 public:
  OpenViewer(const std::string& file, int encoding) {
    Encoding = encoding;
    KeepNul = false;
    EXPECT_EQ(Open(Westring(file.c_str())), 0) << file;
    RereadTail = true;
    FullName = Westring(file.c_str());
    SetTop(DataStart);
    Repaint();
  }

  using CViewer::BlankRows;
  using CViewer::BottomLine;
  using CViewer::BottomWrapCol;
  using CViewer::LongLinePos;
  using CViewer::LongLineStart;
  using CViewer::NextAfterBottom;
  using CViewer::NextAfterTop;
  using CViewer::PositionText;
  using CViewer::ScreenHeight;
  using CViewer::ScreenWidth;
  using CViewer::StateStore;
  using CViewer::SyntaxSeek;
  using CViewer::TopWrapCol;

  // What is known of the screen beside its cells.
  std::string Bookkeeping() const {
    return "top " + std::to_string(TopOffset) + "+" + std::to_string(TopWrapCol) + " bottom " +
           std::to_string(BottomOffset) + (BottomOffset < 0 ? "" : BottomText()) + " blank " +
           std::to_string(BlankRows) + " left " + std::to_string(LeftCol);
  }

 private:
  std::string BottomText() const {
    if (HexMode) return "-" + std::to_string(NextAfterBottom);
    return "+" + std::to_string(BottomWrapCol) + " of " + std::to_string(BottomLine.Length()) + "-" +
           std::to_string(NextAfterBottom);
  }
};

class ViewerTest : public ConsoleFixture {
 protected:
  static constexpr int kWidth = 80, kHeight = 23;  // of the text on the usual screen

  ViewerTest() {
    Options::ViewerWrap = false;
    Options::TabWidth = 8;
    std::copy_n(kDefaultColours, kColourCount, Options::Colours);
  }

  OpenViewer& Show(const std::string& content, int encoding = kUnknownEncoding) {
    texts.Write("text", content);
    return ShowFile(texts.Path("text"), encoding);
  }

  OpenViewer& ShowFile(const std::string& file, int encoding = kUnknownEncoding) {
    viewer.reset();
    return viewer.emplace(file, encoding);
  }

  OpenViewer& ShowWrapped(const std::string& content, int encoding = kUnknownEncoding) {
    Options::ViewerWrap = true;
    return Show(content, encoding);
  }

  void AppendToFile(const std::string& more) {
    std::FILE* const file = std::fopen(texts.Path("text").c_str(), "ab");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(std::fwrite(more.data(), 1, more.size(), file), more.size());
    std::fclose(file);
  }

  // Before a viewer is made.
  void ResizeScreen(int columns, int rows) {
    Console->Resize(columns, rows, "", 0);
    Console->GetSize(ScreenColumns, ScreenRows);
  }

  // ---- the rows of the text, from 0 on

  // Without the blanks at its end.
  ScreenText Line(int row) const {
    const std::string text = Text(0, row + 1, ScreenColumns).String();
    return ScreenText(text.substr(0, text.find_last_not_of(' ') + 1));
  }

  uint8_t LineAttribute(int x, int row) const { return Attribute(x, row + 1); }

  std::vector<Cell> Cells() const {
    const int count = viewer->ScreenWidth * viewer->ScreenHeight;
    const auto cells = Console->SaveBlock(0, 1, viewer->ScreenWidth, viewer->ScreenHeight);
    return {cells.get(), cells.get() + count};
  }

  // Makes the whole screen anew and looks whether it is what it was.
  testing::AssertionResult IsAsRepainted() {
    const std::vector<Cell> before = Cells();
    const std::string known = viewer->Bookkeeping();
    Console->FillBlank(0, 1, viewer->ScreenWidth, viewer->ScreenHeight, 0x4E);
    viewer->ForgetTop();
    viewer->Repaint();
    if (viewer->Bookkeeping() != known)
      return testing::AssertionFailure() << "known: " << known << "; right: " << viewer->Bookkeeping();
    const std::vector<Cell> after = Cells();
    for (size_t i = 0; i < after.size(); ++i) {
      if (before[i] == after[i]) continue;
      return testing::AssertionFailure()
             << "row " << i / viewer->ScreenWidth << ", column " << i % viewer->ScreenWidth << " held "
             << before[i].character << " in " << int{before[i].attribute} << ", right is "
             << after[i].character << " in " << int{after[i].attribute} << "; " << known;
    }
    return testing::AssertionSuccess();
  }

  Sandbox texts;
  std::optional<OpenViewer> viewer;
};

// "1\n2\n" and so on.
inline std::string NumberedLines(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += std::to_string(i) + "\n";
  return text;
}

// The text in another encoding, of ASCII.
inline std::string InUnits(const std::string& ascii, int encoding) {
  const int width = encoding <= kUtf32Big ? 4 : 2;
  const bool highFirst = encoding == kUtf32Big || encoding == kUtf16Big;
  std::string text;
  for (const char c : ascii) {
    std::string unit(width, '\0');
    unit[highFirst ? width - 1 : 0] = c;
    text += unit;
  }
  return text;
}
