// The manual in a web browser of the desktop.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "foundation/environment.h"
#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

// Tells its name and its arguments, in one step.
const char kBrowser[] =
    "#!/bin/sh\n"
    "printf '<%s>' \"${0##*/}\" \"$@\" > \"$HOME/told.new\"\n"
    "/bin/mv \"$HOME/told.new\" \"$HOME/told\"\n";

// The browsers of a test are the only programs that are found.
class Manual : public testing::Test {
 protected:
  Manual() : oldPath(getenv("PATH") ? getenv("PATH") : "") {}
  ~Manual() override {
    session.reset();
    setenv("PATH", oldPath.c_str(), 1);
  }

  Session& Start(const Strings& browsers) {
    FileList files;
    for (const std::string& name : browsers) files.emplace_back("bin/" + name, kBrowser);
    session.emplace(files, SessionSetup{.prepare = [browsers](const Sandbox& sandbox) {
                      for (const std::string& name : browsers)
                        chmod(sandbox.Path("bin/" + name).c_str(), 0755);
                    }});
    setenv("PATH", session->Path("bin").c_str(), 1);
    Variables.Set("PATH", session->Path("bin").c_str());
    return *session;
  }

  std::string Told() {
    session->WaitFor([this] { return session->Exists("home/told"); });
    return session->Content("home/told");
  }

  std::optional<Session> session;

 private:
  std::string oldPath;
};

}  // namespace

TEST_F(Manual, ShiftF1OpensItsFirstPage) {
  Session& s = Start({"firefox"});
  s.Write("left/new", "");
  s.Keys("Shift-F1");
  const std::string told = Told(), head = "<firefox><file://", tail = "/doc/orvane/manual/index.html>";
  ASSERT_TRUE(told.starts_with(head)) << told;
  EXPECT_TRUE(told.ends_with(tail)) << told;
  const std::string page = told.substr(head.size(), told.size() - head.size() - 1);
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

TEST_F(Manual, WithoutABrowserNothingHappens) {
  Session& s = Start({"other"});
  s.Write("left/new", "");
  const std::string before = s.Screen();
  s.Keys("Shift-F1");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}
