#include "shell/screens/http_client.h"

#include <QTest>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

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
  const LoopbackHost host([](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); });
  QTimer::singleShot(100, qApp, &QCoreApplication::quit);
  EXPECT_EQ(HttpClient(milliseconds(20'000)).Get(host.Address()), "");
}

class WatchedWindow : public QWidget {
 public:
  int Paints = 0;
  int Keys = 0;
  int Closings = 0;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { ++Paints; }
  void keyPressEvent(QKeyEvent* /*event*/) override { ++Keys; }
  void closeEvent(QCloseEvent* /*event*/) override { ++Closings; }
};

TEST(HttpClient, LeavesTheWindowDrawnAndClosableButDeaf) {
  WatchedWindow window;
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCoreApplication::processEvents();
  window.Paints = 0;
  const LoopbackHost host([](LoopbackConnection& connection) {
    std::this_thread::sleep_for(milliseconds(300));
    connection.Send("HTTP/1.1 200 OK\r\n\r\n1.0");
  });
  QTimer::singleShot(100, &window, [&] {
    window.update();
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
  });
  QTimer::singleShot(150, &window, [&] { window.windowHandle()->close(); });

  EXPECT_EQ(HttpClient().Get(host.Address()), "1.0");

  EXPECT_EQ(window.Paints, 1);
  EXPECT_EQ(window.Keys, 0);
  EXPECT_EQ(window.Closings, 1);
}

}  // namespace
}  // namespace quillon
