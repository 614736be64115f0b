#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <unistd.h>
#include <utility>

#include "toolkit/application.h"
#include "toolkit/browser.h"

namespace quillon {
namespace {

// Some openers run as long as the browser; after this time an exit no longer means that there is none.
constexpr qint64 kLongEnoughForABrowser = 10'000;

}  // namespace

QUrl AddressOfFile(const std::filesystem::path& file) {
  const QByteArray path = QByteArray::fromStdString(file.string());
  return QUrl::fromEncoded("file://" + path.toPercentEncoding("/!$&'()*+,;=:@"));
}

void OpenInBrowser(const QUrl& address, std::function<void()> missing) {
  auto* opener = new QProcess(qApp);
  // In a session of its own, so that the browser survives closing the program's terminal.
  opener->setChildProcessModifier([] { setsid(); });
  opener->setStandardInputFile(QProcess::nullDevice());
  opener->setStandardOutputFile(QProcess::nullDevice());
  opener->setStandardErrorFile(QProcess::nullDevice());

  QElapsedTimer clock;
  clock.start();
  const auto end = [opener, clock, asked = AnsweredAct(), missing = std::move(missing)](bool opened) {
    opener->deleteLater();
    const Answering answering(asked);
    if (!opened && clock.elapsed() < kLongEnoughForABrowser) missing();
  };
  QObject::connect(opener, &QProcess::finished, opener, [end](int status) { end(status == 0); });
  QObject::connect(
      opener, &QProcess::errorOccurred, opener,
      [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) end(false);
      },
      Qt::QueuedConnection);
  opener->start(QStringLiteral("xdg-open"), {QString::fromLatin1(address.toEncoded())});
}

}  // namespace quillon
