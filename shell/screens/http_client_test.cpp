#include "shell/screens/http_client.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QCoreApplication>
#include <QCursor>
#include <QDrag>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QNetworkProxy>
#include <QNetworkProxyFactory>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <array>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

#include "shell/http_reply.h"
#include "shell/loopback_host.h"
#include "toolkit/expected_boxes.h"
#include "toolkit/label.h"

namespace quillon {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::array kProxyVariables = {"http_proxy", "HTTP_PROXY", "all_proxy", "ALL_PROXY"};
constexpr milliseconds kShort{300};
constexpr milliseconds kSlack{10'000};  // for a machine that has other things to do
constexpr milliseconds kGenerous{20'000};  // never used up, save by a test that fails

std::string Ok(std::string_view body) {
  return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + std::string(body);
}

std::string Redirect(std::string_view location) {
  return "HTTP/1.1 302 Found\r\nLocation: " + std::string(location) + "\r\nContent-Length: 0\r\n\r\n";
}

std::string Get(const std::string& address, milliseconds limit = kGenerous) {
  return HttpClient(limit).Get(address);
}

// The name of a request's target: "GET /a HTTP/1.0" -> "/a".
std::string TargetOf(const std::string& request) {
  const std::size_t start = request.find(' ') + 1;
  return request.substr(start, request.find(' ', start) - start);
}

class HttpClientTime : public testing::Test {
 protected:
  [[nodiscard]] milliseconds Spent() const { return std::chrono::duration_cast<milliseconds>(Clock::now() - start_); }

  // It lasted as long as the limit and not much longer.
  void ExpectTheLimit() const {
    EXPECT_GE(Spent(), kShort);
    EXPECT_LT(Spent(), kShort + kSlack);
  }
  void ExpectNoWait() const { EXPECT_LT(Spent(), kGenerous / 2); }

 private:
  Clock::time_point start_ = Clock::now();
};

TEST(HttpClient, TakesAMinuteAtMost) {
  EXPECT_EQ(kWebTimeOutSeconds, 60);
  EXPECT_EQ(HttpClient().Limit(), std::chrono::minutes(1));
}

TEST(HttpClient, GivesTheBody) {
  struct Row {
    const char* Name;
    std::string Reply;
    std::string Body;
  };
  const std::array rows = {
      Row{"version", Ok("0.9\r\n"), "0.9\r\n"},
      Row{"one that ends with the connection", "HTTP/1.0 200 OK\r\n\r\nsent", "sent"},
      Row{"an empty one", Ok(""), ""},
      Row{"Windows-1252", Ok("2\xA2 \x80"), "2\u00A2 \u20AC"},
      Row{"no text at all", Ok(std::string_view("\0\x01\xFF\r\n", 5)), std::string("\0\x01\u00FF\r\n", 6)},
      Row{"the longest", Ok(std::string(kLongestHttpBody, 'x')), std::string(kLongestHttpBody, 'x')},
      Row{"the longest that ends with the connection", "HTTP/1.0 200 OK\r\n\r\n" + std::string(kLongestHttpBody, 'x'),
          std::string(kLongestHttpBody, 'x')},
  };
  for (const Row& row : rows) {
    const LoopbackHost host(row.Reply);
    EXPECT_TRUE(Get(host.Address()) == row.Body) << row.Name;
  }
}

TEST(HttpClient, AsksWithTheTargetByteForByte) {
  const LoopbackHost host(Ok("sent"));
  const std::string target = "/quillon/register/benice.php?email_name=%61%40%78&email_body=%9%61%A%E9%0D%0A%20%2B";

  EXPECT_EQ(Get(host.Address(target)), "sent");

  ASSERT_EQ(host.Requests().size(), 1U);
  const std::string request = host.Requests().front();
  EXPECT_TRUE(request.starts_with("GET " + target + " HTTP/1.0\r\n")) << request;
  EXPECT_NE(request.find("\r\nHost: 127.0.0.1:" + std::to_string(host.Port()) + "\r\n"), std::string::npos) << request;
}

TEST(HttpClient, GivesThePageThatTellsOfAnError) {
  for (const std::string_view status : {"404 Not Found", "500 Internal Server Error", "401 Unauthorized"}) {
    const LoopbackHost host("HTTP/1.1 " + std::string(status) + "\r\nContent-Length: 4\r\n\r\nOops");
    EXPECT_EQ(Get(host.Address()), "Oops") << status;
  }
}

TEST(HttpClient, GivesNothingForARedirectThatLeadsNowhere) {
  const LoopbackHost host("HTTP/1.1 302 Found\r\nContent-Length: 4\r\n\r\nsent");
  EXPECT_EQ(Get(host.Address()), "");
}

TEST(HttpClient, GivesNothingForAnAddressThatIsNone) {
  for (const char* address : {"", "nonsense", "https://127.0.0.1/", "file:///etc/hostname", "http://"})
    EXPECT_EQ(Get(address), "") << address;
}

TEST(HttpClient, FollowsARedirectOnTheSameHost) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send(TargetOf(connection.Request()) == "/old" ? Redirect("/new") : Ok("1.0"));
  });

  EXPECT_EQ(Get(host.Address("/old")), "1.0");
  EXPECT_EQ(host.Requests().size(), 2U);
}

TEST(HttpClient, FollowsNoRedirectToAnotherHostOrPort) {
  const LoopbackHost other(Ok("1.0"));
  for (const std::string& elsewhere : {other.Address(), other.Address("/", "localhost")}) {
    const LoopbackHost host(Redirect(elsewhere));
    EXPECT_EQ(Get(host.Address()), "") << elsewhere;
  }
  EXPECT_TRUE(other.Requests().empty());
}

TEST(HttpClient, FollowsNoRedirectToAnotherNameOfTheSamePort) {
  std::uint16_t port = 0;
  const LoopbackHost host([&](LoopbackConnection& connection) {
    connection.Send(TargetOf(connection.Request()) == "/old"
                        ? Redirect("http://localhost:" + std::to_string(port) + "/new")
                        : Ok("1.0"));
  });
  port = host.Port();

  EXPECT_EQ(Get(host.Address("/old")), "");
  EXPECT_EQ(host.Requests().size(), 1U);
}

TEST(HttpClient, LeavesARingOfRedirectsAfterTheTenth) {
  const LoopbackHost host(Redirect("/"));

  EXPECT_EQ(Get(host.Address()), "");
  EXPECT_EQ(host.Requests().size(), 11U);
}

TEST(HttpClient, SendsNoCookieBack) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    const std::string cookie = "Set-Cookie: id=1; Path=/\r\n";
    connection.Send(TargetOf(connection.Request()) == "/old"
                        ? "HTTP/1.1 302 Found\r\n" + cookie + "Location: /new\r\n\r\n"
                        : "HTTP/1.1 200 OK\r\n" + cookie + "\r\n1.0");
  });
  HttpClient client(kGenerous);

  EXPECT_EQ(client.Get(host.Address("/old")), "1.0");
  EXPECT_EQ(client.Get(host.Address("/new")), "1.0");

  EXPECT_EQ(host.Requests().size(), 3U);
  for (const std::string& request : host.Requests())
    EXPECT_EQ(request.find("ookie"), std::string::npos) << request;
}

TEST(HttpClient, AsksAnewEachTime) {
  int count = 0;
  const LoopbackHost host([&](LoopbackConnection& connection) {
    const std::string body = std::to_string(++count);
    connection.Send("HTTP/1.1 200 OK\r\nCache-Control: max-age=3600\r\n\r\n" + body);
  });
  HttpClient client(kGenerous);

  EXPECT_EQ(client.Get(host.Address()), "1");
  EXPECT_EQ(client.Get(host.Address()), "2");
}

// A host whose name leads nowhere can be asked through a proxy only; this machine is never asked through one.
TEST(HttpClient, AsksNoProxy) {
  constexpr const char* kUnknownHost = "http://nobody.invalid/";
  const LoopbackHost proxy(Ok("proxy"));
  for (const char* name : kProxyVariables)
    qputenv(name, QByteArray::fromStdString(proxy.Address()));
  QNetworkProxyFactory::setUseSystemConfiguration(true);
  const std::string pastTheSystems = Get(kUnknownHost, kShort);
  QNetworkProxyFactory::setUseSystemConfiguration(false);
  for (const char* name : kProxyVariables)
    qunsetenv(name);

  QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), proxy.Port()});
  const std::string pastTheApplications = Get(kUnknownHost, kShort);
  QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);

  EXPECT_EQ(pastTheSystems, "");
  EXPECT_EQ(pastTheApplications, "");
  EXPECT_TRUE(proxy.Requests().empty());
}

TEST_F(HttpClientTime, EndsWithABodyThatIsTooLong) {
  std::size_t sent = 0;
  {
    const LoopbackHost host([&](LoopbackConnection& connection) {
      const std::string block(64 << 10, 'x');
      connection.Send("HTTP/1.1 200 OK\r\n\r\n");
      while (sent < (std::size_t{100} << 20) && connection.Send(block))
        sent += block.size();
    });
    EXPECT_EQ(Get(host.Address()), "");
  }
  ExpectNoWait();
  EXPECT_LT(sent, std::size_t{32} << 20);  // what fits between the two ends of a connection is beyond our say
}

TEST_F(HttpClientTime, EndsWithAnAnnouncementThatIsTooLong) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send("HTTP/1.1 200 OK\r\nContent-Length: 100000000\r\n\r\n");
    connection.WaitUntilTheOtherEndIsGone();
  });
  EXPECT_EQ(Get(host.Address()), "");
  ExpectNoWait();
}

TEST_F(HttpClientTime, EndsWithAHeadThatDoesNotEnd) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send("HTTP/1.1 200 OK\r\n");
    while (connection.Send("X-Field: and so on\r\n")) {
    }
  });
  EXPECT_EQ(Get(host.Address()), "");
  ExpectNoWait();
}

TEST_F(HttpClientTime, EndsWithTheAnnouncedLengthThoughTheConnectionStays) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send(Ok("1.0"));
    connection.WaitUntilTheOtherEndIsGone();
  });
  EXPECT_EQ(Get(host.Address()), "1.0");
  ExpectNoWait();
}

TEST_F(HttpClientTime, EndsWithAConnectionThatIsCutShort) {
  struct Row {
    const char* Name;
    std::string_view Bytes;
    bool Breaks;
  };
  constexpr std::array kRows = {
      Row{"closed before the head", "", false},
      Row{"closed in the head", "HTTP/1.1 200 OK\r\nContent-", false},
      Row{"closed in the body", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n0.9", false},
      Row{"broken before the head", "", true},
      Row{"broken in the body", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n0.9", true},
  };
  for (const Row& row : kRows) {
    const LoopbackHost host([&](LoopbackConnection& connection) {
      connection.Send(row.Bytes);
      if (!row.Breaks) return;
      std::this_thread::sleep_for(milliseconds(50));  // until the bytes are there, which a break takes back
      connection.Break();
    });
    EXPECT_EQ(Get(host.Address()), "") << row.Name;
  }
  ExpectNoWait();
}

TEST_F(HttpClientTime, EndsAtOnceWhereNobodyListens) {
  std::string address;
  {
    const LoopbackHost host(Ok("1.0"));
    address = host.Address();
  }
  EXPECT_EQ(Get(address), "");
  ExpectNoWait();
}

TEST_F(HttpClientTime, IsUpWithAHostThatDoesNotAnswer) {
  const LoopbackHost host([](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); });
  EXPECT_EQ(Get(host.Address(), kShort), "");
  ExpectTheLimit();
}

TEST_F(HttpClientTime, IsUpWithABodyThatDripsIn) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send("HTTP/1.1 200 OK\r\n\r\n");
    while (connection.Send("1"))
      std::this_thread::sleep_for(milliseconds(20));
  });
  EXPECT_EQ(Get(host.Address(), kShort), "");
  ExpectTheLimit();
}

TEST_F(HttpClientTime, IsOneForAllRedirectsTogether) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    std::this_thread::sleep_for(kShort * 2 / 5);
    connection.Send(Redirect("/"));
  });
  EXPECT_EQ(Get(host.Address(), kShort), "");
  EXPECT_LE(host.Requests().size(), 3U);
  ExpectTheLimit();
}

TEST_F(HttpClientTime, IsUpWithAHostWhoseNameLeadsNowhere) {
  EXPECT_EQ(Get("http://nobody.invalid/", kShort), "");
  EXPECT_LT(Spent(), kShort + kSlack);
}

class WatchedWindow : public QWidget {
 public:
  WatchedWindow() {
    setMouseTracking(true);
    setAcceptDrops(true);
    QObject::connect(&shortcut_, &QShortcut::activated, this, [this] { Seen += "shortcut "; });
    setGeometry(100, 100, 200, 200);
    show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    QCursor::setPos(10, 10);
    QCoreApplication::processEvents();
    Seen.clear();
  }

  std::string Seen;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { Seen += "paint "; }
  void mouseMoveEvent(QMouseEvent* /*event*/) override { Seen += "move "; }
  void mousePressEvent(QMouseEvent* /*event*/) override { Seen += "press "; }
  void wheelEvent(QWheelEvent* /*event*/) override { Seen += "wheel "; }
  void keyPressEvent(QKeyEvent* /*event*/) override { Seen += "key "; }
  void inputMethodEvent(QInputMethodEvent* /*event*/) override { Seen += "composed "; }
  void dragEnterEvent(QDragEnterEvent* event) override {
    event->accept();
    Seen += "enter ";
  }
  void dragMoveEvent(QDragMoveEvent* /*event*/) override { Seen += "drag "; }
  void dropEvent(QDropEvent* /*event*/) override { Seen += "drop "; }
  void closeEvent(QCloseEvent* /*event*/) override { Seen += "close "; }

 private:
  QShortcut shortcut_{QKeySequence(static_cast<int>(Qt::CTRL) | Qt::Key_1), this};
};

class HttpClientWindow : public testing::Test {
 public:
  // Does something in the middle of a request, and gives back what the window has seen of it at the request's end.
  std::string SeenWhileAsking(const std::function<void()>& act) {
    QTimer::singleShot(kShort / 3, &window, act);
    EXPECT_EQ(Get(host.Address()), "1.0");
    return window.Seen;
  }
  std::string SeenByNow() const {
    QCoreApplication::processEvents();
    return window.Seen;
  }
  void Use() {
    QCursor::setPos(window.mapToGlobal(QPoint(50, 50)));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(50, 50));
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    QTest::keyClick(window.windowHandle(), Qt::Key_1, Qt::ControlModifier);
    QWheelEvent wheel(kSpot, window.mapToGlobal(kSpot), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window.windowHandle(), &wheel);
    QInputMethodEvent composed;
    QCoreApplication::sendEvent(&window, &composed);
  }
  void DragIn() {
    QDragEnterEvent enter(kSpot.toPoint(), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &enter);
  }
  void Drop() {
    QDragMoveEvent drag(kSpot.toPoint(), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &drag);
    QDropEvent drop(kSpot, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &drop);
  }
  void Hold() { QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, kSpot.toPoint()); }
  void LetGo() { QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, kSpot.toPoint()); }
  // Lays a control of its own over the window.
  void Cover(QWidget& control) {
    control.setParent(&window);
    control.setGeometry(window.rect());
    control.show();
    window.Seen.clear();
  }

  static constexpr QPointF kSpot{50, 50};
  QMimeData dragged;
  WatchedWindow window;
  LoopbackHost host{[](LoopbackConnection& connection) {
    std::this_thread::sleep_for(kShort);
    connection.Send(Ok("1.0"));
  }};
};

TEST_F(HttpClientWindow, IsDrawnDuringTheRequest) {
  EXPECT_EQ(SeenWhileAsking([&] { window.update(); }), "paint ");
}

TEST_F(HttpClientWindow, CanBeClosedDuringTheRequest) {
  EXPECT_EQ(SeenWhileAsking([&] { window.windowHandle()->close(); }), "close ");
}

TEST_F(HttpClientWindow, NeverLearnsOfInputMadeDuringTheRequest) {
  EXPECT_EQ(SeenWhileAsking([&] {
              Use();
              DragIn();
            }),
            "");
  EXPECT_EQ(SeenByNow(), "");
}

TEST_F(HttpClientWindow, NeverLearnsOfADropMadeDuringTheRequest) {
  DragIn();
  window.Seen.clear();
  EXPECT_EQ(SeenWhileAsking([&] { Drop(); }), "");
}

// A screen reader presses a control by no event of the mouse or the keyboard.
TEST_F(HttpClientWindow, NeverLearnsOfAScreenReadersPressDuringTheRequest) {
  Label label(nullptr);
  label.SetUse(ControlUse::kLink);
  Cover(label);
  const QSignalSpy clicks(&label, &Control::Clicked);
  const auto press = [&] {
    QAccessible::queryAccessibleInterface(&label)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
  };
  SeenWhileAsking(press);
  EXPECT_EQ(clicks.count(), 0);
  press();
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(HttpClientWindow, LosesAClickThatEndsDuringTheRequest) {
  Label label(nullptr);
  label.SetUse(ControlUse::kLink);
  Cover(label);
  const QSignalSpy releases(&label, &Control::Released);
  const QSignalSpy clicks(&label, &Control::Clicked);
  Hold();
  SeenWhileAsking([&] { LetGo(); });
  EXPECT_EQ(releases.count(), 1);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(HttpClientWindow, LosesAClickOfAButtonThatEndsDuringTheRequest) {
  QPushButton button;
  Cover(button);
  const QSignalSpy clicks(&button, &QPushButton::clicked);
  Hold();
  EXPECT_TRUE(button.isDown());
  SeenWhileAsking([&] { LetGo(); });
  EXPECT_FALSE(button.isDown());
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(HttpClientWindow, ClosesAListThatIsOpenWhenTheRequestStarts) {
  QMenu list(&window);
  list.addAction(QStringLiteral("an entry"));
  list.popup(window.mapToGlobal(kSpot.toPoint()));
  ASSERT_TRUE(list.isVisible());
  EXPECT_EQ(Get(host.Address()), "1.0");
  EXPECT_FALSE(list.isVisible());
}

TEST_F(HttpClientWindow, LetsGoOfAButtonThatAKeyHolds) {
  QPushButton button;
  Cover(button);
  button.setFocus();
  const QSignalSpy clicks(&button, &QPushButton::clicked);
  QTest::keyPress(&button, Qt::Key_Space);
  ASSERT_TRUE(button.isDown());
  EXPECT_EQ(Get(host.Address()), "1.0");
  EXPECT_FALSE(button.isDown());
  EXPECT_EQ(clicks.count(), 0);
}

// It is closed by a key, and by itself once that is in vain.
TEST_F(HttpClientWindow, HearsWhatIsDoneToABoxThatComesUpDuringTheRequest) {
  int answer = 0;
  ExpectDialog([](QDialog& box) {
    QTest::keyClick(box.windowHandle(), Qt::Key_Return);
    if (box.isVisible()) box.done(QMessageBox::Abort);
  });
  SeenWhileAsking([&] {
    answer = QMessageBox(QMessageBox::Critical, {}, {}, QMessageBox::Ok, &window).exec();
    window.Seen.clear();
    Use();
    EXPECT_EQ(window.Seen, "");
  });
  EXPECT_EQ(answer, QMessageBox::Ok);
}

TEST_F(HttpClientWindow, HearsAgainAfterTheRequest) {
  EXPECT_EQ(Get(host.Address()), "1.0");
  // The way to a spot is one move, unless the mouse is there already.
  QTest::mouseMove(window.windowHandle(), QPoint(10, 10));
  SeenByNow();
  window.Seen.clear();
  Use();
  DragIn();
  Drop();
  EXPECT_EQ(SeenByNow(), "move press key key shortcut wheel composed enter drag drop ") << "Ctrl is a key, too";
}

}  // namespace
}  // namespace quillon
