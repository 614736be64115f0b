#include "shell/program_folder.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "support/files.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "testing/file_calls.h"
#include "testing/temporary_folder.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;

// A machine with the program unpacked or installed, and a user's home.
class Machine {
 public:
  Machine() {
    fs::create_directories(Executables());
    fs::create_directories(Shared() / "Ranges");
    fs::create_directory(Home());
    std::ofstream(Shared() / "Ranges" / "Tight Open.txt", std::ios::binary) << "AA (1), \r\n";
    std::ofstream(Shared() / "Ranges" / "Everything.txt", std::ios::binary) << "AA (1), KK (1), \r\n";
  }

  void Install(std::string_view shared = "../../share/quillon") const {
    std::ofstream(Executables() / "installed", std::ios::binary) << shared << '\n';
  }

  [[nodiscard]] fs::path Root() const { return root_.Path(); }
  [[nodiscard]] fs::path Executables() const { return Root() / "usr" / "lib" / "quillon"; }
  [[nodiscard]] fs::path Shared() const { return Root() / "usr" / "share" / "quillon"; }
  [[nodiscard]] fs::path Home() const { return Root() / "home"; }
  [[nodiscard]] fs::path DataHome() const { return Home() / ".local" / "share"; }

  [[nodiscard]] EnvironmentVariable Environment(const std::string& dataHome = {}) const {
    return [home = Home().string(), dataHome](const std::string& name) {
      return name == "HOME" ? home : name == "XDG_DATA_HOME" ? dataHome : "";
    };
  }

  [[nodiscard]] fs::path Start(FileCalls& calls = SystemFileCalls()) const {
    return ProgramFolderPath(Executables(), Environment(), calls);
  }

 private:
  TemporaryFolder root_{"quillon machine ½"};
};

std::optional<RunTimeError> FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error;
  }
  return std::nullopt;
}

TEST(ProgramFolder, IsThatOfTheExecutableWhoeverMayWriteThere) {
  const Machine machine;
  EXPECT_EQ(machine.Start(), machine.Executables());
  EXPECT_EQ(SharedFolderPath(machine.Executables()), machine.Executables());
  EXPECT_TRUE(fs::is_empty(machine.Home()));
}

TEST(ProgramFolder, OfAPackageIsTheUsersWithTheExamplesInIt) {
  const Machine machine;
  machine.Install();
  EXPECT_EQ(SharedFolderPath(machine.Executables()), machine.Shared());
  EXPECT_EQ(machine.Start(), machine.DataHome() / "Quillon");
  for (const char* const file : {"Ranges/Tight Open.txt", "Ranges/Everything.txt"}) {
    EXPECT_EQ(ReadAllBytes(machine.DataHome() / "Quillon" / file), ReadAllBytes(machine.Shared() / file)) << file;
  }
}

TEST(ProgramFolder, IsWhereTheEnvironmentSays) {
  const Machine machine;
  machine.Install();
  struct Case {
    const char* Rule;
    std::string DataHome;
    fs::path Folder;
  };
  const std::vector<Case> cases = {
      {"a folder for data", (machine.Home() / "data").string(), machine.Home() / "data" / "Quillon"},
      {"one on a way that is missing", (machine.Home() / "a/b/c/").string(),
       machine.Home() / "a" / "b" / "c" / "Quillon"},
      {"a relative one counts for nothing", "data", machine.DataHome() / "Quillon"},
      {"none", "", machine.DataHome() / "Quillon"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ProgramFolderPath(machine.Executables(), machine.Environment(c.DataHome)), c.Folder) << c.Rule;
    EXPECT_TRUE(fs::exists(c.Folder / "Ranges" / "Tight Open.txt")) << c.Rule;
  }
}

TEST(ProgramFolder, IsNotGuessedWhereNothingNamesAHome) {
  const Machine machine;
  machine.Install();
  for (const char* const home : {"", "somewhere"}) {
    const auto fault = FaultOf([&] {
      static_cast<void>(ProgramFolderPath(machine.Executables(),
                                          [home](const std::string& name) { return name == "HOME" ? home : ""; }));
    });
    ASSERT_TRUE(fault.has_value()) << home;
    EXPECT_THAT(fault->what(), HasSubstr("HOME and XDG_DATA_HOME are not set")) << home;
  }
}

TEST(ProgramFolder, ThatIsThereIsLeftAsItIs) {
  const Machine machine;
  machine.Install();
  fs::create_directories(machine.DataHome() / "Quillon" / "Ranges");
  std::ofstream(machine.DataHome() / "Quillon" / "Ranges" / "Mine.txt") << "72o (1), ";
  WatchedCalls calls;
  EXPECT_EQ(machine.Start(calls), machine.DataHome() / "Quillon");
  EXPECT_EQ(calls.Count(Call::kMakeFolder), 0);
  EXPECT_FALSE(fs::exists(machine.DataHome() / "Quillon" / "Ranges" / "Tight Open.txt"));
}

TEST(ProgramFolder, OfTwoUsersAreTwo) {
  const Machine machine;
  machine.Install();
  const fs::path ann = machine.Home() / "ann";
  const fs::path bob = machine.Home() / "bob";
  for (const fs::path& user : {ann, bob}) {
    EXPECT_EQ(ProgramFolderPath(machine.Executables(), machine.Environment(user.string())), user / "Quillon");
  }
  fs::remove(ann / "Quillon" / "Ranges" / "Tight Open.txt");
  EXPECT_TRUE(fs::exists(bob / "Quillon" / "Ranges" / "Tight Open.txt"));
}

TEST(ProgramFolder, IsMadeOnceByStartsAtTheSameTime) {
  const Machine machine;
  machine.Install();
  std::vector<std::jthread> starts(8);
  for (std::jthread& start : starts) {
    start = std::jthread([&] { EXPECT_EQ(machine.Start(), machine.DataHome() / "Quillon"); });
  }
  starts.clear();
  EXPECT_TRUE(fs::exists(machine.DataHome() / "Quillon" / "Ranges" / "Tight Open.txt"));
}

TEST(ProgramFolder, IsMadeAfterAStartThatWasKilledHalfway) {
  const Machine machine;
  machine.Install();
  fs::create_directories(machine.DataHome() / ".Quillon.new" / "Ranges");
  std::ofstream(machine.DataHome() / ".Quillon.new" / "Ranges" / "Tight Open.txt") << "AA";
  EXPECT_EQ(ReadAllBytes(machine.Start() / "Ranges" / "Tight Open.txt"), "AA (1), \r\n");
  EXPECT_FALSE(fs::exists(machine.DataHome() / ".Quillon.new"));
}

struct Disk {
  const char* Name;
  int Error;
  FailingCalls::Lasting Lasting;
};

class ProgramFolderFaults : public testing::TestWithParam<Disk> {};

TEST_P(ProgramFolderFaults, LeaveItWholeOrNotThereAndAreTold) {
  bool reached = true;
  int refused = 0;
  for (int call = 0; reached; ++call) {
    ASSERT_LT(call, 300);
    SCOPED_TRACE("call " + std::to_string(call));
    const Machine machine;
    machine.Install();
    FailingCalls calls(call, GetParam().Error, GetParam().Lasting);
    const auto fault = FaultOf([&] { static_cast<void>(machine.Start(calls)); });
    reached = calls.HasFailed();
    const fs::path folder = machine.DataHome() / "Quillon";
    EXPECT_EQ(fs::exists(folder), !fault);
    if (!fault) {
      EXPECT_EQ(ReadAllBytes(folder / "Ranges" / "Tight Open.txt"), "AA (1), \r\n");
      EXPECT_EQ(ReadAllBytes(folder / "Ranges" / "Everything.txt"), "AA (1), KK (1), \r\n");
    } else {
      ++refused;
      EXPECT_THAT(fault->what(), AllOf(HasSubstr("Run-time error '"), HasSubstr(machine.Root().string())));
    }
    EXPECT_FALSE(fs::exists(machine.DataHome() / ".Quillon.new"));
  }
  EXPECT_EQ(refused > 0, GetParam().Error != EINTR);
}

INSTANTIATE_TEST_SUITE_P(ByDisk, ProgramFolderFaults,
                         testing::Values(Disk{"Full", ENOSPC, FailingCalls::Lasting::kOnce},
                                         Disk{"FullFromThenOn", ENOSPC, FailingCalls::Lasting::kForGood},
                                         Disk{"Forbidden", EACCES, FailingCalls::Lasting::kForGood},
                                         Disk{"Broken", EIO, FailingCalls::Lasting::kOnce},
                                         Disk{"Interrupted", EINTR, FailingCalls::Lasting::kOnce}),
                         [](const auto& disk) { return std::string(disk.param.Name); });

TEST(ProgramFolder, ThatCannotBeMadeIsToldOfWithItsPath) {
  struct Case {
    const char* Rule;
    std::function<void(const Machine&)> Prepare;
    const char* Path;
    const char* Reason;
  };
  const std::vector<Case> cases = {
      {"a file of its name",
       [](const Machine& machine) {
         fs::create_directories(machine.DataHome());
         std::ofstream(machine.DataHome() / "Quillon") << "x";
       },
       "/.local/share/Quillon", "Not a directory"},
      {"a file on the way", [](const Machine& machine) { std::ofstream(machine.Home() / ".local") << "x"; },
       "/.local/share", "directory"},  // "Not a directory", or to Windows "No such file or directory"
      {"a package without its examples", [](const Machine& machine) { fs::remove_all(machine.Shared()); },
       "/usr/share/quillon/Ranges", "it is part of the package, so install Quillon again"},
      {"a marker copied with the executables alone", [](const Machine& machine) { machine.Install("../nowhere"); },
       "/usr/lib/nowhere/Ranges", "it is part of the package, so install Quillon again"},
      {"an example that cannot be read",
       [](const Machine& machine) { fs::create_directory(machine.Shared() / "Ranges" / "Folder.txt"); },
       "/usr/share/quillon/Ranges/Folder.txt", "it is part of the package, so install Quillon again"},
  };
  for (const Case& c : cases) {
    const Machine machine;
    machine.Install();
    c.Prepare(machine);
    const auto fault = FaultOf([&] { static_cast<void>(machine.Start()); });
    ASSERT_TRUE(fault.has_value()) << c.Rule;
    EXPECT_THAT(fault->what(), AllOf(HasSubstr(PathOf(c.Path).string()), HasSubstr(c.Reason))) << c.Rule;
    EXPECT_FALSE(fs::is_directory(machine.DataHome() / "Quillon")) << c.Rule;
    EXPECT_FALSE(fs::exists(machine.DataHome() / ".Quillon.new")) << c.Rule;
  }
}

}  // namespace
}  // namespace quillon
