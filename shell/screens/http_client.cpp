#include "shell/screens/http_client.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
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
  InputBlock() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Shortcut:
      case QEvent::InputMethod:
      case QEvent::DragEnter:
        return true;
      default:
        return event->isInputEvent();
    }
  }
};

void TakeAll(QTcpSocket& socket, HttpReplyReader& reader) {
  const QByteArray bytes = socket.readAll();
  reader.Take({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// One request and its reply; none if it is not whole by the deadline.
std::optional<HttpReply> Ask(const HttpAddress& address, const QDeadlineTimer& deadline) {
  HttpReplyReader reader;
  QEventLoop loop;
  QTcpSocket socket;
  bool over = false;
  const auto finish = [&] {
    over = true;
    loop.quit();
  };
  QObject::connect(&socket, &QTcpSocket::connected, &socket,
                   [&] { socket.write(QByteArray::fromStdString(HttpRequestText(address))); });
  QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [&] {
    TakeAll(socket, reader);
    if (reader.Now() != HttpReplyReader::State::kReading) finish();
  });
  QObject::connect(&socket, &QTcpSocket::errorOccurred, &socket, [&](QAbstractSocket::SocketError error) {
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
  socket.connectToHost(QString::fromStdString(address.Host), address.Port);
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
