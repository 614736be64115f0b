#pragma once

// For tests: takes the place of the desktop's programs, and keeps what they were to open.

#include <QDesktopServices>
#include <QObject>
#include <QString>
#include <QUrl>
#include <array>
#include <string>
#include <vector>

#include "toolkit/text.h"

namespace quillon {

class OpenedAddresses : public QObject {
  Q_OBJECT

 public:
  OpenedAddresses() {
    for (const QString& scheme : Schemes())
      QDesktopServices::setUrlHandler(scheme, this, "Open");
  }
  OpenedAddresses(const OpenedAddresses&) = delete;
  OpenedAddresses(OpenedAddresses&&) = delete;
  OpenedAddresses& operator=(const OpenedAddresses&) = delete;
  OpenedAddresses& operator=(OpenedAddresses&&) = delete;
  ~OpenedAddresses() override {
    for (const QString& scheme : Schemes())
      QDesktopServices::unsetUrlHandler(scheme);
  }

  Q_INVOKABLE void Open(const QUrl& address) { Opened.push_back(FromQt(address.toString())); }

  std::vector<std::string> Opened;

 private:
  static std::array<QString, 2> Schemes() { return {QStringLiteral("http"), QStringLiteral("file")}; }
};

}  // namespace quillon
