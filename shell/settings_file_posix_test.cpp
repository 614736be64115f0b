#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "shell/settings_file.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

TEST(SettingsFile, ALinkToItStaysALink) {
  const TemporaryProgram program;
  const std::filesystem::path real = program.Folder().Path / "real.ini";
  std::ofstream(real) << "[Main]\nLeft=5\n";
  std::filesystem::create_symlink("real.ini", SettingsFilePath(program.Folder()));
  WriteIniValue("Main", "Left", "7", program.Folder());
  EXPECT_TRUE(std::filesystem::is_symlink(SettingsFilePath(program.Folder())));
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "7");
}

}  // namespace
}  // namespace quillon
