// The command for batches, run as the program runs it.

#include <array>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <numeric>
#include <sstream>
#include <streambuf>
#include <string>
#include <thread>
#include <vector>

#include "study/batch.h"
#include "testing/blocked_output.h"
#include "testing/companion_program.h"
#include "testing/split_text.h"
#include "tools/bounded_queue.h"
#include "tools/commands.h"

namespace quillon {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::ordered_json;

class BatchCommand : public testing::Test {
 protected:
  [[nodiscard]] const std::filesystem::path& Folder() const { return program_.Folder().Path; }

  [[nodiscard]] CompanionOutcome Run(const Arguments& arguments, const std::string& lines = {}) const {
    return program_.Run(arguments, {.Typed = lines});
  }

  // The exit status of a run with the test's own streams.
  [[nodiscard]] int Run(const Arguments& arguments, std::streambuf& lines, std::ostream& output) const {
    std::ostringstream errors;
    std::istream input(&lines);
    return RunCompanion(arguments,
                        {output, errors, [this] { return Folder(); }, {}, std::chrono::steady_clock::now, &input});
  }

 private:
  CompanionProgram program_;
};

std::string EquityLine(int id) {
  return R"({"id":)" + std::to_string(id) + R"(,"mode":"equity","hands":")" + (id % 3 == 0 ? "AA" : "any") + "\"}\n";
}

std::string EquityLines(int count) {
  std::string lines;
  for (int id = 0; id < count; ++id)
    lines += EquityLine(id);
  return lines;
}

TEST_F(BatchCommand, PrintsTheObjectOfASingleRun) {
  const CompanionOutcome batch =
      Run({"batch"}, R"({"mode":"raise","pot":150,"call":50,"shove":400,"hands":"top 40%","calling_range":"Tight"})");
  EXPECT_EQ(batch.Status, kDone) << batch.Errors;
  const CompanionOutcome single = Run({"raise", "--pot", "150", "--call", "50", "--shove", "400", "--hands", "top 40%",
                                       "--calling-range", "Tight", "--format", "json"});
  Json expected = {{"id", nullptr}};
  expected.update(Json::parse(single.Output));
  EXPECT_EQ(batch.Output, expected.dump() + "\n");
}

TEST_F(BatchCommand, KeepsTheOrderWhateverTheJobs) {
  const std::string lines = EquityLines(150) + "nonsense\n" + EquityLine(151);
  const CompanionOutcome one = Run({"batch", "--jobs", "1", "--fields", "worst"}, lines);
  EXPECT_EQ(one.Status, kFailed);
  const auto answers = Lines(one.Output);
  ASSERT_EQ(answers.size(), 152U);
  for (std::size_t i = 0; i < answers.size(); ++i) {
    EXPECT_THAT(answers[i],
                StartsWith(i == 150 ? R"({"id":null,"line":151,"error":)" : R"({"id":)" + std::to_string(i)));
  }
  for (const char* jobs : {"2", "7"})
    EXPECT_EQ(Run({"batch", "--jobs", jobs, "--fields", "worst"}, lines).Output, one.Output);
  EXPECT_EQ(Run({"batch", "--fields", "worst"}, lines).Output, one.Output) << "all cores";
}

TEST_F(BatchCommand, TakesAFileOrStandardInput) {
  const std::string path = (Folder() / "situations.jsonl").string();
  std::ofstream(path) << EquityLines(3);
  const CompanionOutcome expected = Run({"batch"}, EquityLines(3));
  EXPECT_EQ(Run({"batch", path}).Output, expected.Output);
  EXPECT_EQ(Run({"batch", "-"}, EquityLines(3)).Output, expected.Output);
  EXPECT_EQ(Lines(expected.Output).size(), 3U);
}

TEST_F(BatchCommand, TakesFieldsWithSpacesBetweenThem) {
  const CompanionOutcome expected = Run({"batch", "--fields", "best,equity"}, EquityLines(3));
  EXPECT_EQ(Run({"batch", "--fields", " best , equity,hand, id"}, EquityLines(3)).Output, expected.Output);
  EXPECT_EQ(Lines(expected.Output).size(), 3U);
}

TEST_F(BatchCommand, TakesAByteOrderMarkBeforeItsLines) {
  EXPECT_EQ(Run({"batch"}, "\xEF\xBB\xBF" + EquityLines(2)).Output, Run({"batch"}, EquityLines(2)).Output);
}

TEST_F(BatchCommand, NeedsNoLastLineEndAndNoLine) {
  EXPECT_EQ(Lines(Run({"batch"}, EquityLine(1) + R"({"id":2,"mode":"equity","hands":"KK"})").Output).size(), 2U);
  const CompanionOutcome nothing = Run({"batch"}, "");
  EXPECT_EQ(nothing.Status, kDone);
  EXPECT_EQ(nothing.Output, "");
}

// Only the start of it is kept, and the next line is read.
TEST_F(BatchCommand, RefusesALineOfTenMegabytes) {
  const CompanionOutcome outcome =
      Run({"batch", "--fields", "best"}, std::string(10 << 20, '[') + "\n" + EquityLine(3));
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_EQ(outcome.Output,
            "{\"id\":null,\"line\":1,\"error\":\"a line has at most 1048576 bytes\"}\n{\"id\":3,\"best\":\"22\"}\n");
}

TEST_F(BatchCommand, WarnsOnStandardError) {
  const CompanionOutcome outcome = Run({"batch"}, R"({"mode":"call","pot":"1,500","call":0.5,"hands":"AA"})");
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Errors, "Warning: pot 1,500 counts as 1; a comma ends a number.\n");
}

TEST_F(BatchCommand, RefusesWhatItCannotOpenOrDo) {
  struct Case {
    Arguments arguments;
    int status;
    const char* errors;
  };
  for (const Case& c : std::vector<Case>{
           {{"batch", "/nowhere/situations"}, kRefused, "/nowhere/situations: No such file or directory"},
           {{"batch", "--fields", "best,eV"}, kWrongUsage, "there is no field \"eV\"; there are id, mode, pot, "},
           {{"batch", "--fields", "best,,ev"}, kWrongUsage, "there is no field \"\""},
           {{"batch", "--fields", ""}, kWrongUsage, "there is no field \"\""},
           {{"batch", "--jobs", "0"}, kWrongUsage, "--jobs"},
           {{"batch", "--jobs", "257"}, kWrongUsage, "--jobs"},
           {{"batch", "--jobs", "-1"}, kWrongUsage, "--jobs"},
           {{"batch", "one", "two"}, kWrongUsage, "two"},
       }) {
    const CompanionOutcome outcome = Run(c.arguments, EquityLine(1));
    EXPECT_EQ(outcome.Status, c.status) << testing::PrintToString(c.arguments);
    EXPECT_THAT(outcome.Errors, HasSubstr(c.errors)) << testing::PrintToString(c.arguments);
    EXPECT_EQ(outcome.Output, "") << testing::PrintToString(c.arguments);
  }
}

TEST_F(BatchCommand, FailsOverWhatCannotBeRead) {
  const CompanionOutcome outcome = Run({"batch", "/"});
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_THAT(outcome.Errors, StartsWith("Run-time error '"));
}

// However fast the input, the program reads only as far ahead as the written answers make room for.
TEST_F(BatchCommand, ReadsNoFartherAheadThanItsWindow) {
  class CountedLines final : public std::streambuf {
   public:
    std::atomic<int> begun = 0;

   protected:
    int_type underflow() override {
      constexpr int kAll = 400;
      if (begun == kAll) return traits_type::eof();
      line_ = EquityLine(begun++);
      setg(line_.data(), line_.data(), line_.data() + line_.size());
      return traits_type::to_int_type(line_.front());
    }

   private:
    std::string line_;
  };
  CountedLines lines;
  std::promise<void> release;
  BlockedOutput blocked(release.get_future().share());
  std::ostream output(&blocked);
  auto run = std::async(std::launch::async, [&] { return Run({"batch", "--jobs", "2"}, lines, output); });
  EXPECT_EQ(run.wait_for(std::chrono::milliseconds(500)), std::future_status::timeout);
  EXPECT_LT(lines.begun, 100);
  release.set_value();
  EXPECT_EQ(run.get(), kDone);
  EXPECT_EQ(lines.begun, 400);
}

TEST_F(BatchCommand, EndsWhereItsOutputFails) {
  class FullDisk final : public std::streambuf {};
  FullDisk full;
  std::ostream output(&full);
  std::stringbuf lines(EquityLines(3000));
  EXPECT_EQ(Run({"batch"}, lines, output), kDone);
  EXPECT_FALSE(output) << "for the program to report";
}

// ---- what it is made of

TEST(BoundedQueue, HandsEverythingOverInOrder) {
  constexpr int kCount = 10000;
  BoundedQueue<int> queue(3);
  std::jthread writer([&] {
    for (int i = 0; i < kCount; ++i)
      queue.Push(i);
    queue.Close();
  });
  std::vector<int> taken;
  while (const auto item = queue.Pop())
    taken.push_back(*item);
  std::vector<int> expected(kCount);
  std::iota(expected.begin(), expected.end(), 0);
  EXPECT_EQ(taken, expected);
  EXPECT_TRUE(queue.IsEmpty());
}

}  // namespace
}  // namespace quillon
