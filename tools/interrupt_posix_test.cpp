// Ctrl+C in a batch, with the real signal.

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <streambuf>
#include <string>
#include <thread>
#include <unistd.h>

#include "testing/blocked_output.h"
#include "testing/companion_program.h"
#include "testing/split_text.h"
#include "tools/commands.h"
#include "tools/interrupt.h"

namespace quillon {
namespace {

using testing::EndsWith;

class InterruptedBatch : public testing::Test {
 protected:
  // The exit status of a run with the test's own streams.
  [[nodiscard]] int Run(const Arguments& arguments, std::streambuf& lines, std::ostream& output) const {
    std::ostringstream errors;
    std::istream input(&lines);
    return RunCompanion(
        arguments,
        {output, errors, [this] { return program_.Folder().Path; }, {}, std::chrono::steady_clock::now, &input});
  }

 private:
  CompanionProgram program_;
};

std::string EquityLine(int id) {
  return R"({"id":)" + std::to_string(id) + R"(,"mode":"equity","hands":")" + (id % 3 == 0 ? "AA" : "any") + "\"}\n";
}

// The state of SIGINT at a program's start: SIG_DFL in the foreground, SIG_IGN in the background.
class StartedWith {
 public:
  explicit StartedWith(void (*interrupt)(int)) : before_(std::signal(SIGINT, interrupt)) {}
  StartedWith(const StartedWith&) = delete;
  StartedWith(StartedWith&&) = delete;
  StartedWith& operator=(const StartedWith&) = delete;
  StartedWith& operator=(StartedWith&&) = delete;
  ~StartedWith() { std::signal(SIGINT, before_); }

 private:
  void (*before_)(int);
};

// Endless lines, with Ctrl+C in the middle of one.
class EndlessLines final : public std::streambuf {
 public:
  explicit EndlessLines(int interruptedAt) : interruptedAt_(interruptedAt) {}

  [[nodiscard]] int Begun() const { return begun_; }

 protected:
  int_type underflow() override {
    if (begun_ == interruptedAt_) static_cast<void>(std::raise(SIGINT));
    line_ = EquityLine(begun_++);
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_.front());
  }

 private:
  int interruptedAt_;
  std::atomic<int> begun_ = 0;
  std::string line_;
};

TEST_F(InterruptedBatch, EndsBetweenTwoLinesOnAnInterrupt) {
  const StartedWith foreground(SIG_DFL);
  EndlessLines lines(100);
  std::ostringstream output;
  EXPECT_EQ(Run({"batch", "--jobs", "2", "--fields", "best"}, lines, output), kInterrupted);
  EXPECT_EQ(lines.Begun(), 101);
  const auto answers = Lines(output.str());
  ASSERT_EQ(answers.size(), 100U) << "lines already read are answered, the cut-off line is not";
  EXPECT_EQ(answers.back(), R"({"id":99,"best":"22"})");
  EXPECT_THAT(output.str(), EndsWith("\n"));
}

// The reader is then waiting for room, and must not continue once there is some.
TEST_F(InterruptedBatch, ReadsNothingMoreOnceInterruptedWhileItsOutputIsBlocked) {
  const StartedWith foreground(SIG_DFL);
  EndlessLines lines(-1);
  std::promise<void> release;
  BlockedOutput blocked(release.get_future().share());
  std::ostream output(&blocked);
  auto run = std::async(std::launch::async, [&] {
    return Run({"batch", "--jobs", "2", "--fields", "best"}, lines, output);
  });
  EXPECT_EQ(run.wait_for(std::chrono::milliseconds(500)), std::future_status::timeout);
  const int begun = lines.Begun();
  ASSERT_GT(begun, 0);
  static_cast<void>(std::raise(SIGINT));
  release.set_value();
  EXPECT_EQ(run.get(), kInterrupted);
  EXPECT_EQ(lines.Begun(), begun);
  EXPECT_EQ(Lines(blocked.str()).size(), static_cast<std::size_t>(begun)) << "lines already read are answered";
  EXPECT_THAT(blocked.str(), EndsWith("\n"));
}

TEST(InterruptWatch, LeavesAnIgnoredSignalIgnored) {
  const StartedWith background(SIG_IGN);
  const InterruptWatch watch;
  static_cast<void>(std::raise(SIGINT));
  EXPECT_FALSE(InterruptWatch::Came());
}

TEST(DescriptorInput, ReadsToTheEndOrToTheInterrupt) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  ASSERT_EQ(write(ends[1], "one\ntwo", 7), 7);
  DescriptorInput buffer(ends[0], "pipe");
  std::istream input(&buffer);
  std::string line;
  EXPECT_TRUE(std::getline(input, line));
  EXPECT_EQ(line, "one");
  const StartedWith foreground(SIG_DFL);
  const InterruptWatch watch;
  std::jthread user([] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    kill(getpid(), SIGINT);
  });
  std::getline(input, line);  // would wait for ever: the pipe is open and empty
  EXPECT_EQ(line, "two");
  EXPECT_TRUE(InterruptWatch::Came());
  close(ends[1]);
  close(ends[0]);
}

}  // namespace
}  // namespace quillon
