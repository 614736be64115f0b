#pragma once

// Replaces `xdg-open` in the program's PATH: records what it should open, and exits with the test's status.

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <string>

namespace quillon {

class FakeOpener {
 public:
  /// The status of the real one if it finds no browser.
  static constexpr int kNoneFound = 3;

  explicit FakeOpener(int status = 0) : path_(qgetenv("PATH")) {
    QFile command(folder_.filePath(QStringLiteral("xdg-open")));
    command.open(QIODevice::WriteOnly);
    command.write("#!/bin/sh\nprintf '%s\\n' \"$@\" >>\"$0.opened\"\nexit " + QByteArray::number(status) + "\n");
    command.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(folder_.path()) + ":" + path_);
  }
  FakeOpener(const FakeOpener&) = delete;
  FakeOpener(FakeOpener&&) = delete;
  FakeOpener& operator=(const FakeOpener&) = delete;
  FakeOpener& operator=(FakeOpener&&) = delete;
  ~FakeOpener() { qputenv("PATH", path_); }

  /// The arguments of all calls, one per line, after waiting for running ones.
  [[nodiscard]] std::string Opened() const {
    EXPECT_TRUE(QTest::qWaitFor([] { return qApp->findChild<QProcess*>() == nullptr; }));
    QFile opened(folder_.filePath(QStringLiteral("xdg-open.opened")));
    return opened.open(QIODevice::ReadOnly) ? opened.readAll().toStdString() : std::string();
  }

 private:
  QTemporaryDir folder_;
  QByteArray path_;
};

}  // namespace quillon
