#include "dialogs/progress.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

namespace {

// Time that passes at once: each wait is answered with "run out" until the
// work has lasted as long as it should.
class CountedProgress : public ProgressIndicatorThread {
 public:
  explicit CountedProgress(uint32_t workMs) : workMs(workMs) { Start(); }
  ~CountedProgress() override { Stop(); }

  // All that happened, once the work is done.
  const std::vector<uint32_t>& Finish() {
    Stop();
    return waits;
  }
  int Ticks() const { return ticks; }

 protected:
  void Tick() override { ++ticks; }
  int WaitForStop(uint32_t ms) override {
    waits.push_back(ms);
    passed += ms;
    return passed <= workMs ? ETIMEDOUT : 0;
  }

 private:
  uint32_t workMs, passed = 0;
  int ticks = 0;
  std::vector<uint32_t> waits;
};

using Waits = std::vector<uint32_t>;

TEST(Progress, WorkOfNineHundredMillisecondsShowsNothing) {
  CountedProgress progress(900);
  EXPECT_EQ(progress.Finish(), Waits{1000});
  EXPECT_EQ(progress.Ticks(), 0);
}

TEST(Progress, AfterASecondItTicksFourTimesASecond) {
  CountedProgress progress(2000);
  EXPECT_EQ(progress.Finish(), (Waits{1000, 250, 250, 250, 250, 250}));
  EXPECT_EQ(progress.Ticks(), 5);
}

// Waits without limit, so that only the end of the work can wake it.
class PatientProgress : public ProgressIndicatorThread {
 public:
  PatientProgress(Event& waits, int& result) : waits(waits), result(result) { Start(); }
  ~PatientProgress() override { Stop(); }

 protected:
  void Tick() override {}
  int WaitForStop(uint32_t) override {
    waits.Set();
    return result = ProgressIndicatorThread::WaitForStop(kForever);
  }

 private:
  Event& waits;
  int& result;
};

TEST(Progress, TheDestructorWakesTheThreadAndJoinsIt) {
  Event waits;
  int result = -1;
  {
    PatientProgress progress(waits, result);
    ASSERT_EQ(waits.Wait(kForever), 0);
  }
  EXPECT_EQ(result, 0);
}

}  // namespace
