#include <QTest>
#include <csignal>
#include <gtest/gtest.h>

#include "toolkit/end_signals.h"

namespace quillon {
namespace {

class EndSignalsTest : public testing::TestWithParam<int> {
 protected:
  EndSignalsTest() { before_ = std::signal(GetParam(), SIG_DFL); }
  ~EndSignalsTest() override { static_cast<void>(std::signal(GetParam(), before_)); }

 private:
  void (*before_)(int) = nullptr;
};

TEST_P(EndSignalsTest, CallFromTheEventLoop) {
  int calls = 0;
  const EndSignals signals([&calls] { ++calls; });
  for (int expected = 1; expected <= 2; ++expected) {
    ASSERT_EQ(std::raise(GetParam()), 0);
    EXPECT_EQ(calls, expected - 1) << "not within the handler";
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls == expected; }));
  }
}

TEST_P(EndSignalsTest, StayIgnoredWhereTheyWere) {
  static_cast<void>(std::signal(GetParam(), SIG_IGN));
  int calls = 0;
  const EndSignals signals([&calls] { ++calls; });
  ASSERT_EQ(std::raise(GetParam()), 0);
  QTest::qWait(50);
  EXPECT_EQ(calls, 0);
}

TEST_P(EndSignalsTest, DoWhatTheyDidOnceTheObjectIsGone) {
  {
    const EndSignals signals([] {});
  }
  struct sigaction after {};
  ASSERT_EQ(sigaction(GetParam(), nullptr, &after), 0);
  EXPECT_EQ(after.sa_handler, SIG_DFL);
}

INSTANTIATE_TEST_SUITE_P(Posix, EndSignalsTest, testing::Values(SIGHUP, SIGINT, SIGTERM));

}  // namespace
}  // namespace quillon
