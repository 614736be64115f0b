#include <bit>
#include <gtest/gtest.h>
#include <windows.h>

#include "support/this_process.h"

namespace quillon {
namespace {

TEST(UsableCores, AreThoseThatTheProcessMayUse) {
  DWORD_PTR mine = 0;
  DWORD_PTR all = 0;
  ASSERT_NE(GetProcessAffinityMask(GetCurrentProcess(), &mine, &all), 0);
  EXPECT_EQ(UsableCores(), static_cast<unsigned>(std::popcount(mine)));
  ASSERT_NE(SetProcessAffinityMask(GetCurrentProcess(), mine & (~mine + 1)), 0);
  EXPECT_EQ(UsableCores(), 1U);
  ASSERT_NE(SetProcessAffinityMask(GetCurrentProcess(), mine), 0);
}

TEST(ProcessVariable, IsUtf8) {
  ASSERT_NE(_wputenv(L"QUILLON_TEST=Gr\u00FC\u00DFe \u6F22"), -1);
  EXPECT_EQ(ProcessVariable("QUILLON_TEST"), "Grüße 漢");
  EXPECT_EQ(ProcessVariable("QUILLON_NO_SUCH"), "");
}

}  // namespace
}  // namespace quillon
