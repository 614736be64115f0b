#include "shell/screens/http_client.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>

#include "testing/loopback_host.h"

namespace quillon {
namespace {

using std::chrono::milliseconds;

TEST(HttpClient, TakesAMinuteAtMost) {
  EXPECT_EQ(kWebTimeOutSeconds, 60);
  EXPECT_EQ(HttpClient().Limit(), std::chrono::minutes(1));
}

TEST(HttpClient, GivesWhatTheHostSays) {
  const LoopbackHost host("HTTP/1.1 200 OK\r\n\r\n1.0");
  EXPECT_EQ(HttpClient().Get(host.Address()), "1.0");
}

TEST(HttpClient, GivesNothingOnceItsLimitHasPassed) {
  const LoopbackHost host([](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); });
  EXPECT_EQ(HttpClient(milliseconds(100)).Get(host.Address()), "");
}

TEST(HttpClient, GivesNothingAtTheEndOfTheProgram) {
  std::atomic<bool> over = false;
  const LoopbackHost host([&over](LoopbackConnection& connection) {
    while (!over && connection.Pause(milliseconds(1))) {
    }
  });
  std::string reply = "none yet";
  QElapsedTimer spent;
  spent.start();
  QTimer::singleShot(0, qApp, [&] { reply = HttpClient(milliseconds(20'000)).Get(host.Address()); });
  QTimer::singleShot(100, qApp, &QCoreApplication::quit);
  QCoreApplication::exec();
  over = true;
  EXPECT_EQ(reply, "");
  EXPECT_LT(spent.elapsed(), 10'000);
}

}  // namespace
}  // namespace quillon
