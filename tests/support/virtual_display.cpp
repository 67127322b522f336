// An X display of the test's own; see the header.
#include "support/virtual_display.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void RunServer(int answer) {
  // A crashed test leaves no server behind.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int null = open("/dev/null", O_RDWR);
  for (int fd = 0; fd < 3; ++fd) dup2(null, fd);
  const std::string number = std::to_string(answer);
  execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1600x1200x24", "-nolisten", "tcp",
         "-noreset", static_cast<char*>(nullptr));
  _exit(127);
}

// The line that the server writes once it takes clients.
std::string ReadLine(int fd) {
  std::string line;
  char ch;
  while (read(fd, &ch, 1) == 1 && ch != '\n') line += ch;
  return line;
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
  if (const char* given = getenv("ORVANE_TEST_DISPLAY")) {
    name = given;
    return;
  }
  int answer[2];
  if (pipe(answer) != 0) std::abort();
  server = fork();
  if (server == 0) {
    close(answer[0]);
    RunServer(answer[1]);
  }
  close(answer[1]);
  const std::string number = ReadLine(answer[0]);
  close(answer[0]);
  if (number.empty()) {
    std::fputs("Xvfb did not start; is it installed?\n", stderr);
    std::abort();
  }
  name = ":" + number;
}

VirtualDisplay::~VirtualDisplay() {
  if (server <= 0) return;
  kill(server, SIGTERM);
  waitpid(server, nullptr, 0);
}
