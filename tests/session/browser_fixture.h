// Programs of the desktop that tell how they were started.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "foundation/environment.h"
#include "session/main_screen.h"

// The browsers of a test are the only programs that are found.
class BrowserFixture : public testing::Test {
 protected:
  using Strings = std::vector<std::string>;

  BrowserFixture() : oldPath(getenv("PATH") ? getenv("PATH") : "") {}
  ~BrowserFixture() override {
    session.reset();
    setenv("PATH", oldPath.c_str(), 1);
  }

  Session& Start(const Strings& browsers, FileList files = {}) {
    for (const std::string& name : browsers) files.emplace_back("bin/" + name, kTeller);
    session.emplace(files, SessionSetup{.prepare = [browsers](const Sandbox& sandbox) {
                      for (const std::string& name : browsers)
                        chmod(sandbox.Path("bin/" + name).c_str(), 0755);
                    }});
    setenv("PATH", session->Path("bin").c_str(), 1);
    Variables.Set("PATH", session->Path("bin").c_str());
    return *session;
  }

  // What the browser that was started tells: its name, its arguments, and where it
  // stands.
  std::string Told() {
    session->WaitFor([this] { return session->Exists("home/told"); });
    return session->Content("home/told");
  }

  std::optional<Session> session;

 private:
  // All in one step.
  static constexpr char kTeller[] =
      "#!/bin/sh\n"
      "{ printf '<%s>' \"${0##*/}\" \"$@\"; printf '@%s' \"$(pwd)\"; } > \"$HOME/told.new\"\n"
      "/bin/mv \"$HOME/told.new\" \"$HOME/told\"\n";

  std::string oldPath;
};
