#include "shell/screens/http_client.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>
#include <optional>

#include "shell/http_address.h"
#include "shell/http_reply.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

constexpr int kMostRedirects = 10;
constexpr qint64 kBlock = 64 << 10;  // what a flood may pile up between two looks at it

// Takes the mouse and the keyboard away from the whole program while it lives. What they do meanwhile is dropped, not
// kept: a click is meant for the window as it looked, and ten impatient ones would send ten notes. To have the event
// loop leave them alone would not do, for it counts the closing of a window among them.
class InputBlock : public QObject {
 public:
  // What is open or pressed would stay so: a list that is dropped down holds the mouse of the whole screen.
  InputBlock() {
    for (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && popup->close();)
      popup = QApplication::activePopupWidget();
    if (auto* const button = qobject_cast<QAbstractButton*>(QApplication::focusWidget())) button->setDown(false);
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    // None is open when a request starts, so this one came up since and wants an answer.
    if (QApplication::activeModalWidget() != nullptr) return false;
    switch (event->type()) {
      case QEvent::Shortcut:
      case QEvent::InputMethod:
      case QEvent::DragEnter:
      case QEvent::DragMove:
      case QEvent::Drop:
        return true;
      case QEvent::MouseButtonRelease:
        return !watched->isWindowType() && !TakesRelease(*watched, dynamic_cast<QMouseEvent&>(*event));
      default:
        return event->isInputEvent();
    }
  }

 private:
  // What the mouse holds since before the request is let go of, yet far away from the mouse, where that is no click.
  bool TakesRelease(QObject& control, const QMouseEvent& release) {
    if (lettingGo_) return true;
    if (release.button() != Qt::LeftButton) return false;
    constexpr QPointF kNowhere(-100'000, -100'000);
    QMouseEvent away(release.type(), kNowhere, kNowhere, release.button(), release.buttons(), release.modifiers());
    lettingGo_ = true;
    QCoreApplication::sendEvent(&control, &away);
    lettingGo_ = false;
    return false;
  }

  bool lettingGo_ = false;
};

void TakeAll(QTcpSocket& socket, HttpReplyReader& reader) {
  const QByteArray bytes = socket.readAll();
  reader.Take({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// One request and its reply; none if it is not whole by the deadline.
std::optional<HttpReply> Ask(const HttpAddress& address, const QDeadlineTimer& deadline) {
  HttpReplyReader reader;
  QEventLoop loop;
  bool over = false;
  const auto finish = [&] {
    over = true;
    loop.quit();
  };
  QTcpSocket socket;
  bool reached = false;
  const auto call = [&] { socket.connectToHost(QString::fromStdString(address.Host), address.Port); };
  QTimer again;  // not before the socket has come to rest
  again.setSingleShot(true);
  QObject::connect(&again, &QTimer::timeout, &again, call);
  QObject::connect(&socket, &QTcpSocket::connected, &socket, [&] {
    reached = true;
    socket.write(QByteArray::fromStdString(HttpRequestText(address)));
  });
  QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [&] {
    TakeAll(socket, reader);
    if (reader.Now() != HttpReplyReader::State::kReading) finish();
  });
  QObject::connect(&socket, &QTcpSocket::errorOccurred, &socket, [&](QAbstractSocket::SocketError error) {
    // A socket has a limit of its own for a connection, half a minute, and this one may have more time than that.
    if (error == QAbstractSocket::SocketTimeoutError && !reached && !deadline.hasExpired()) {
      again.start(0);
      return;
    }
    TakeAll(socket, reader);
    if (error == QAbstractSocket::RemoteHostClosedError) reader.End();
    finish();
  });
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &timer, finish);
  timer.start(static_cast<int>(deadline.remainingTime()));

  socket.setProxy(QNetworkProxy::NoProxy);
  socket.setReadBufferSize(kBlock);
  call();
  if (!over) loop.exec();
  if (reader.Now() != HttpReplyReader::State::kWhole) return std::nullopt;
  return reader.Reply();
}

}  // namespace

std::string HttpClient::Get(std::string_view address) {
  const InputBlock block;
  const QDeadlineTimer deadline(limit_, Qt::PreciseTimer);
  std::optional<HttpAddress> next = ParseHttpAddress(address);
  for (int redirects = 0; next && redirects <= kMostRedirects; ++redirects) {
    const std::optional<HttpReply> reply = Ask(*next, deadline);
    if (!reply) return {};
    if (!reply->Redirects()) return Utf8FromWindows1252(reply->Body);
    next = RedirectedAddress(*next, reply->Location);
  }
  return {};
}

}  // namespace quillon
