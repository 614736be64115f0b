#pragma once

// Replaces the desktop's image program, and records what it should open.

#include <QDesktopServices>
#include <QObject>
#include <QString>
#include <QUrl>
#include <string>
#include <vector>

#include "toolkit/text.h"

namespace quillon {

class OpenedFiles : public QObject {
  Q_OBJECT

 public:
  OpenedFiles() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
  OpenedFiles(const OpenedFiles&) = delete;
  OpenedFiles(OpenedFiles&&) = delete;
  OpenedFiles& operator=(const OpenedFiles&) = delete;
  OpenedFiles& operator=(OpenedFiles&&) = delete;
  ~OpenedFiles() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

  Q_INVOKABLE void Open(const QUrl& address) { Opened.push_back(FromQt(address.toString())); }

  std::vector<std::string> Opened;
};

}  // namespace quillon
