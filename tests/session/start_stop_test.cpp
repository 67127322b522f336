// Toolkit and console come up and go, again and again, and leave nothing behind.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "console/console.h"
#include "console/toolkit.h"
#include "support/stream_capture.h"
#include "support/test_environment.h"
#include "support/virtual_display.h"

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int kRounds = 100;
#else
constexpr int kRounds = 1000;
#endif
constexpr int kWarmUp = 10;  // in which the toolkit opens what it keeps

long Entries(const char* directory) {
  const std::filesystem::directory_iterator first(directory);
  return std::distance(begin(first), end(first));
}

struct Belongings {
  long threads = Entries("/proc/self/task");
  long descriptors = Entries("/proc/self/fd");
};

void StartAndStop() {
  int argc = 1;
  char name[] = "orvane";
  char* arguments[] = {name, nullptr};
  char** argv = arguments;
  Toolkit toolkit(argc, argv);
  ASSERT_TRUE(toolkit.IsReady());
  CConsole console;
  console.PutString(0, 0, L"up", 0x1B);
}

}  // namespace

TEST(StartStop, AThousandRoundsLeaveNoThreadNoDescriptorAndNoWarning) {
  Sandbox files;
  files.Make({{"home/", ""}, {"temp/", ""}});
  VirtualDisplay display;
  EnterTestEnvironment(files, display.Name());

  StreamCapture errors(STDERR_FILENO);
  for (int i = 0; i < kWarmUp; ++i) StartAndStop();
  const Belongings before;
  for (int i = 0; i < kRounds && !HasFatalFailure(); ++i) StartAndStop();
  const Belongings after;

  EXPECT_EQ(after.threads, before.threads);
  EXPECT_EQ(after.descriptors, before.descriptors);
  EXPECT_EQ(errors.Stop(), "");
}
