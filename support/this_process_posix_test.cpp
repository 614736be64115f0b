#include <cstdlib>
#include <gtest/gtest.h>
#include <sched.h>
#include <thread>

#include "support/this_process.h"

namespace quillon {
namespace {

TEST(UsableCores, AreThoseThatTheThreadMayUse) {
  cpu_set_t mine{};
  ASSERT_EQ(sched_getaffinity(0, sizeof mine, &mine), 0);
  EXPECT_EQ(UsableCores(), static_cast<unsigned>(CPU_COUNT(&mine)));

  cpu_set_t one{};
  for (std::size_t core = 0; CPU_COUNT(&one) == 0; ++core) {
    if (CPU_ISSET(core, &mine)) CPU_SET(core, &one);
  }
  unsigned seen = 0;
  std::thread([&] {
    ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
    seen = UsableCores();
  }).join();
  EXPECT_EQ(seen, 1U);
}

TEST(ProcessVariable, IsEmptyWhereThereIsNone) {
  ASSERT_EQ(setenv("QUILLON_TEST", "Grüße", 1), 0);
  EXPECT_EQ(ProcessVariable("QUILLON_TEST"), "Grüße");
  ASSERT_EQ(unsetenv("QUILLON_TEST"), 0);
  EXPECT_EQ(ProcessVariable("QUILLON_TEST"), "");
}

}  // namespace
}  // namespace quillon
