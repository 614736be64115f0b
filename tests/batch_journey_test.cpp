// Batches of the real companion: that they take no more memory the longer they are, and that Ctrl+C ends them between
// two lines. QUILLON_BATCH_LINES in the environment makes the first longer than by default.

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
  // A batch of the lines in a file, narrowed so that what is kept of its output is short.
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

// A batch whose lines come one by one, from a pipe with a name.
class OpenBatch {
 public:
  OpenBatch(const std::filesystem::path& pipe, const ProgramRun& run) {
    EXPECT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    input_ = SystemFileCalls().Open(pipe, O_RDWR | O_CLOEXEC, 0);  // both ways, so that it opens before anyone reads
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

  // The most that it has had in memory so far, in KiB.
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
  GTEST_SKIP() << "AddressSanitizer keeps what is freed";
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
