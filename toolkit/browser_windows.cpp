#include <QCoreApplication>
#include <QDesktopServices>
#include <QTimer>
#include <utility>

#include "toolkit/application.h"
#include "toolkit/browser.h"
#include "toolkit/text.h"

namespace quillon {

QUrl AddressOfFile(const std::filesystem::path& file) {
  return QUrl::fromLocalFile(ToQt(file.string()));
}

void OpenInBrowser(const QUrl& address, std::function<void()> missing) {
  if (QDesktopServices::openUrl(address)) return;
  QTimer::singleShot(0, qApp, [asked = AnsweredAct(), missing = std::move(missing)] {
    const Answering answering(asked);
    missing();
  });
}

}  // namespace quillon
