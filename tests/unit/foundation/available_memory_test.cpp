// What is left of the memory.
#include "foundation/available_memory.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

// The process's limit of its address space, while it lives.
class AddressLimit {
 public:
  explicit AddressLimit(rlim_t bytes) {
    getrlimit(RLIMIT_AS, &before);
    const rlimit limit{bytes, before.rlim_max};
    setrlimit(RLIMIT_AS, &limit);
  }
  ~AddressLimit() { setrlimit(RLIMIT_AS, &before); }
  AddressLimit(const AddressLimit&) = delete;
  AddressLimit& operator=(const AddressLimit&) = delete;

 private:
  rlimit before{};
};

}  // namespace

TEST(AvailableMemory, IsSomethingAndNoMoreThanAnyMachineHas) {
  EXPECT_GT(AvailableMemory(), 0);
  EXPECT_LT(AvailableMemory(), int64_t{1} << 50);
}

TEST(AvailableMemory, IsNoMoreThanTheProcessesLimitLeaves) {
  const int64_t without = AvailableMemory();
  const AddressLimit none(1);
  EXPECT_EQ(AvailableMemory(), 0);
  EXPECT_GT(without, 0);
}
