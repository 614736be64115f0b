#include <filesystem>
#include <gtest/gtest.h>

#include "ranges/range_files.h"
#include "support/run_time_error.h"
#include "testing/fault_of.h"
#include "testing/temporary_program.h"
#include "tools/saved_range.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

TEST(SaveBoth, LeavesALinkToNowhereAsItWas) {
  const TemporaryProgram program;
  fs::create_symlink("nowhere.txt", program.RangeFile("Link.txt"));
  fs::create_directory(program.RangeFile("Blocked.txt"));
  EXPECT_TRUE(FailureOf([&] { SaveBoth(program.Folder(), {"Link", "AA (1), "}, {"Blocked", "KK (1), "}); }));
  EXPECT_TRUE(fs::is_symlink(program.RangeFile("Link.txt")));
  EXPECT_FALSE(fs::exists(program.RangeFile("nowhere.txt")));

  SaveBoth(program.Folder(), {"Link", "AA (1), "}, {"New", "KK (1), "});
  EXPECT_TRUE(fs::is_symlink(program.RangeFile("Link.txt")));
  EXPECT_EQ(program.Read("nowhere.txt"), "AA (1), \r\n");
}

}  // namespace
}  // namespace quillon
