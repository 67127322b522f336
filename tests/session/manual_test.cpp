// The manual in a web browser of the desktop.
#include <unistd.h>

#include "console/console.h"
#include "session/browser_fixture.h"

namespace {

using Manual = BrowserFixture;

}  // namespace

TEST_F(Manual, ShiftF1OpensItsFirstPage) {
  Session& s = Start({"firefox"});
  s.Write("left/new", "");
  s.Keys("Shift-F1");
  const std::string told = Told(), head = "<firefox><file://";
  ASSERT_TRUE(told.starts_with(head)) << told;
  EXPECT_TRUE(told.ends_with("/doc/orvane/manual/index.html>@" + s.Path("left"))) << told;
  const std::string page = told.substr(head.size(), told.find('>', head.size()) - head.size());
  EXPECT_EQ(access(page.c_str(), R_OK), 0) << page;
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "new"}));  // as after any command
  EXPECT_TRUE(IsShown(s, kLeftSide));
}

TEST_F(Manual, TheFirstBrowserOfTheListIsTaken) {
  const Strings inOrder = {"x-www-browser", "firefox", "mozilla-firefox", "epiphany"};
  for (size_t i = 0; i < inOrder.size(); ++i) {
    Strings installed(inOrder.begin() + static_cast<std::ptrdiff_t>(i), inOrder.end());
    Session& s = Start(installed);
    s.Keys("Shift-F1");
    EXPECT_TRUE(Told().starts_with("<" + inOrder[i] + ">"));
    session.reset();
  }
}

TEST_F(Manual, AllLinesArePaintedAnew) {
  Session& s = Start({"firefox"});
  Console->PutString(70, 23, L"mark", 0x07);
  Console->PutString(79, 24, L"X", 0x07);
  s.Command(ShiftFKey(1));
  EXPECT_EQ(s.Text(70, 23, 4), "    ");
  EXPECT_NE(s.Character(79, 24), U'X');
  Told();
}

TEST_F(Manual, WithoutABrowserNothingHappens) {
  Session& s = Start({"other"});
  s.Write("left/new", "");
  const std::string before = s.Screen();
  s.Keys("Shift-F1");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}
