#include "shell/screens/web_client.h"

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

TEST(WebClient, GivesWhatTheHostSays) {
  const LoopbackHost host("HTTP/1.1 200 OK\r\n\r\n1.0");
  EXPECT_EQ(kWebTimeLimit, std::chrono::minutes(1));
  EXPECT_EQ(WaitForHttp(host.Address(), kWebTimeLimit), "1.0");
}

TEST(WebClient, GivesNothingOnceItsLimitHasPassed) {
  const LoopbackHost host([](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); });
  EXPECT_EQ(WaitForHttp(host.Address(), milliseconds(100)), "");
}

TEST(WebClient, GivesNothingAtTheEndOfTheProgram) {
  std::atomic<bool> over = false;
  const LoopbackHost host([&over](LoopbackConnection& connection) {
    while (!over && connection.Pause(milliseconds(1))) {
    }
  });
  std::string reply = "none yet";
  QElapsedTimer spent;
  spent.start();
  QTimer::singleShot(0, qApp, [&] { reply = WaitForHttp(host.Address(), milliseconds(20'000)); });
  QTimer::singleShot(100, qApp, &QCoreApplication::quit);
  QCoreApplication::exec();
  over = true;
  EXPECT_EQ(reply, "");
  EXPECT_LT(spent.elapsed(), 10'000);
}

}  // namespace
}  // namespace quillon
