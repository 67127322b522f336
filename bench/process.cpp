// A program under measurement.
#include "process.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

[[noreturn]] void Run(const std::vector<std::string>& command, const std::string& directory,
                      const std::string& home) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);  // a benchmark that fails leaves nothing running
  setenv("HOME", home.c_str(), 1);
  setenv("LC_ALL", "C.UTF-8", 1);
  if (chdir(directory.c_str()) != 0) _exit(127);
  std::vector<char*> argv;
  for (const std::string& argument : command) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  execv(argv[0], argv.data());
  _exit(127);
}

}  // namespace

Process::Process(const std::vector<std::string>& command, const std::string& directory,
                 const std::string& home)
    : pid(fork()) {
  if (pid == 0) Run(command, directory, home);
  if (pid > 0) return;
  perror("fork");
  exit(2);
}

Process::~Process() {
  kill(pid, SIGKILL);
  waitpid(pid, nullptr, 0);
}

long Process::Sleeps() const {
  constexpr char kKey[] = "voluntary_ctxt_switches:";
  long sleeps = 0;
  std::error_code ignored;
  for (const auto& thread :
       std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task", ignored)) {
    std::ifstream status(thread.path() / "status");
    for (std::string line; std::getline(status, line);) {
      if (line.starts_with(kKey)) sleeps += atol(line.c_str() + strlen(kKey));
    }
  }
  return sleeps;
}

double Process::ResidentBytes() const {
  std::ifstream sizes("/proc/" + std::to_string(pid) + "/statm");
  double whole = 0, resident = 0;
  sizes >> whole >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

double NumberPrintedBy(const std::string& command) {
  double number = 0;
  FILE* const output = popen(command.c_str(), "r");
  const bool printed = output && fscanf(output, "%lf", &number) == 1;
  if (output && pclose(output) == 0 && printed) return number;
  fprintf(stderr, "%s did not print its number\n", command.c_str());
  exit(2);
}
