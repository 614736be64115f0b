// Batches of the real companion: memory use does not grow with their length, and Ctrl+C ends them between two lines.
// QUILLON_BATCH_LINES in the environment makes the first test longer.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include "support/files.h"
#include "testing/split_text.h"
#include "testing/temporary_folder.h"
#include "tests/address_sanitizer.h"
#include "tests/program_run.h"

namespace quillon {
namespace {

int LineCount() {
  const char* const wanted = std::getenv("QUILLON_BATCH_LINES");  // NOLINT(concurrency-mt-unsafe): there is one thread
  return wanted == nullptr ? 4000 : std::atoi(wanted);  // NOLINT(cert-err34-c): a number of the tester's
}

std::string SituationLine(int id) {
  return R"({"id":)" + std::to_string(id) + R"(,"mode":"raise","pot":)" + std::to_string(1 + id % 90) +
         R"(,"call":0.5,"shove":9,"hands":"any","calling_hands":"top )" + std::to_string(1 + id % 100) + "%\"}\n";
}

std::string AnswerLine(int id) {
  return R"({"id":)" + std::to_string(id) + R"(,"title":"ALL IN Grid"})";
}

bool Waited(const std::function<bool()>& done) {
  const auto limit = std::chrono::steady_clock::now() + std::chrono::minutes(2);
  while (!done()) {
    if (std::chrono::steady_clock::now() > limit) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

class BatchJourney : public testing::Test {
 protected:
  // A batch of the lines in a file, with few fields, so that the kept output is short.
  [[nodiscard]] ProgramRun Prepare(const std::filesystem::path& file) const {
    ProgramRun run;
    run.Program = QUILLON_CLI_PROGRAM;
    run.Arguments = {"batch", file.string(), "--jobs", "2", "--fields", "title"};
    run.CurrentFolder = folder_.Path();
    return run;
  }
  [[nodiscard]] std::filesystem::path File() const { return folder_.Path() / "situations.jsonl"; }

 private:
  TemporaryFolder folder_;
};

// A batch whose lines come one by one, through a named pipe.
class OpenBatch {
 public:
  OpenBatch(const std::filesystem::path& pipe, const ProgramRun& run) {
    EXPECT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the call is so
    input_ = open(pipe.c_str(), O_RDWR | O_CLOEXEC);  // both ways, so that it opens without a reader
    program_.emplace(run);
  }
  OpenBatch(const OpenBatch&) = delete;
  OpenBatch(OpenBatch&&) = delete;
  OpenBatch& operator=(const OpenBatch&) = delete;
  OpenBatch& operator=(OpenBatch&&) = delete;
  ~OpenBatch() { CloseInput(); }

  [[nodiscard]] RunningProgram& Program() { return *program_; }

  void Send(std::string_view text) const {
    ASSERT_EQ(write(input_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  void CloseInput() {
    if (input_ >= 0) close(input_);
    input_ = -1;
  }
  [[nodiscard]] bool HasAnswered(int lines) {
    return Waited([&] {
      const std::string output = program_->Output();
      return std::count(output.begin(), output.end(), '\n') >= lines;
    });
  }

  // Its peak memory so far, in KiB.
  [[nodiscard]] int PeakMemory() const {
    std::ifstream status("/proc/" + std::to_string(program_->Id()) + "/status");
    for (std::string line; std::getline(status, line);) {
      if (line.starts_with("VmHWM:")) return std::stoi(line.substr(line.find_first_of("0123456789")));
    }
    return 0;
  }

 private:
  int input_ = -1;
  std::optional<RunningProgram> program_;
};

TEST_F(BatchJourney, TakesNoMoreMemoryTheLongerItIs) {
#if defined(QUILLON_ADDRESS_SANITIZER)
  GTEST_SKIP() << "AddressSanitizer keeps freed memory";
#endif
  const int count = LineCount();
  OpenBatch batch(File(), Prepare(File()));
  int early = 0;
  for (int sent = 0; sent < count; ++sent) {
    batch.Send(SituationLine(sent));
    if (sent != count / 10) continue;
    ASSERT_TRUE(batch.HasAnswered(count / 20));
    early = batch.PeakMemory();
  }
  ASSERT_TRUE(batch.HasAnswered(count));
  const int late = batch.PeakMemory();
  batch.CloseInput();
  ASSERT_TRUE(Waited([&] { return batch.Program().Status().has_value(); }));
  EXPECT_EQ(batch.Program().Status(), 0);
  EXPECT_GT(early, 0);
  EXPECT_LE(late, early + early / 10 + 1024) << "KiB";
  std::cout << count << " lines: " << early << " KiB after a tenth, " << late << " KiB after all\n";
}

TEST_F(BatchJourney, AnswersALineBeforeTheNextOneComes) {
  OpenBatch batch(File(), Prepare(File()));
  for (int id = 0; id < 3; ++id) {
    batch.Send(SituationLine(id));
    ASSERT_TRUE(batch.HasAnswered(id + 1));
    EXPECT_EQ(Lines(batch.Program().Output()).back(), AnswerLine(id));
  }
}

TEST_F(BatchJourney, EndsOnCtrlCWhileItWaitsInTheMiddleOfALine) {
  OpenBatch batch(File(), Prepare(File()));
  batch.Send(SituationLine(0) + SituationLine(1) + R"({"id":2,"mode":"ra)");
  ASSERT_TRUE(batch.HasAnswered(2));
  ASSERT_EQ(kill(batch.Program().Id(), SIGINT), 0);
  ASSERT_TRUE(Waited([&] { return batch.Program().Status().has_value(); }));
  EXPECT_EQ(batch.Program().Status(), 130);
  EXPECT_EQ(batch.Program().Output(), AnswerLine(0) + "\n" + AnswerLine(1) + "\n");
}

// ---- in parts

// The lines of the guide's code that begin with one of these words, without indentation.
std::vector<std::string> LinesOfTheGuide(const std::vector<std::string>& starts) {
  std::vector<std::string> found;
  for (const std::string& line : Lines(ReadAllBytes(QUILLON_GUIDE))) {
    for (const std::string& start : starts) {
      if (line.starts_with("    " + start + " ")) found.push_back(line.substr(4));
    }
  }
  return found;
}

// A shell for running the guide's commands as written: the program is in the PATH, and other programs' own files go
// into the same folder.
class GuideShell {
 public:
  explicit GuideShell(std::filesystem::path folder) : folder_(std::move(folder)) {}

  [[nodiscard]] ProgramOutcome Run(const std::string& script) const {
    const std::string programs = std::filesystem::path(QUILLON_CLI_PROGRAM).parent_path().string();
    ProgramRun run;
    run.Program = "/bin/sh";
    run.Arguments = {"-c", "PATH=" + programs + ":$PATH\n" + script};
    run.CurrentFolder = folder_;
    run.Environment = {{"HOME", folder_.string()}, {"PARALLEL", "--joblog jobs"}};
    return RunProgram(run);
  }
  [[nodiscard]] std::string Read(const char* file) const { return ReadAllBytes(folder_ / file); }

 private:
  std::filesystem::path folder_;
};

// The answers of a batch without the line numbers of refused lines, which depend on the part.
std::string WithoutLineNumbers(std::string answers) {
  constexpr std::string_view kNumber = "\"line\":";
  for (std::size_t at = 0; (at = answers.find(kNumber, at)) != std::string::npos;) {
    at += kNumber.size();
    answers.erase(at, answers.find(',', at) - at);
  }
  return answers;
}

TEST_F(BatchJourney, InPartsSaysWhatOneBatchSays) {
  const GuideShell shell(File().parent_path());
  if (shell.Run("command -v parallel").Status != 0) GTEST_SKIP() << "this system has no GNU parallel";
  const std::vector<std::string> commands = LinesOfTheGuide({"parallel", "split"});
  ASSERT_EQ(commands.size(), 2U);
  const std::string& workers = commands[0];
  const std::string array = "rm -f part-*; for SLURM_ARRAY_TASK_ID in 1 2 3 4 5 6 7 8; do " + commands[1] + "; done; " +
                            "cat part-[1-8].jsonl > results.jsonl";
  constexpr int kCount = 120;
  const std::string spaces(800, ' ');  // so that a few lines exceed the guide's block size
  for (const bool refused : {false, true}) {
    std::ofstream lines(File(), std::ios::trunc);
    for (int id = 0; id < kCount; ++id)
      lines << spaces << (refused && id % 20 == 19 ? "{\"id\":" + std::to_string(id) + "}\n" : SituationLine(id));
    lines.close();
    ASSERT_EQ(shell.Run("quillon-cli batch situations.jsonl > one.jsonl").Status, refused ? 1 : 0);
    const std::string one = shell.Read("one.jsonl");
    ASSERT_EQ(Lines(one).size(), std::size_t{kCount});

    const ProgramOutcome spread = shell.Run(workers);
    EXPECT_EQ(spread.Status, refused ? 2 : 0) << "how many parts had a refused line; " << spread.Errors;
    EXPECT_EQ(Lines(shell.Read("jobs")).size(), 1U + 2) << "a heading, and two workers";
    const std::string byWorkers = shell.Read("results.jsonl");
    const ProgramOutcome taken = shell.Run(array);
    EXPECT_EQ(taken.Errors, "");
    const std::string byArray = shell.Read("results.jsonl");
    for (const std::string& results : {byWorkers, byArray}) {
      EXPECT_EQ(results == one, !refused);
      EXPECT_TRUE(WithoutLineNumbers(results) == WithoutLineNumbers(one));
    }
  }
}

// ---- Ctrl+C

TEST_F(BatchJourney, EndsOnCtrlCBetweenTwoLinesOfMany) {
  constexpr int kMany = 200000;
  {
    std::ofstream lines(File());
    for (int id = 0; id < kMany; ++id)
      lines << SituationLine(id);
  }
  RunningProgram program(Prepare(File()));
  ASSERT_TRUE(Waited([&] { return !program.Output().empty(); }));
  ASSERT_EQ(kill(program.Id(), SIGINT), 0);
  ASSERT_TRUE(Waited([&] { return program.Status().has_value(); }));
  EXPECT_EQ(program.Status(), 130);
  EXPECT_TRUE(program.Output().ends_with('\n'));
  const std::vector<std::string> answers = Lines(program.Output());
  EXPECT_LT(answers.size(), std::size_t{kMany});
  for (std::size_t id = 0; id < answers.size(); ++id)
    ASSERT_EQ(answers[id], AnswerLine(static_cast<int>(id)));
}

}  // namespace
}  // namespace quillon
