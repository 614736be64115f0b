#pragma once

// Takes the place of `xdg-open` in the program's PATH, writes down what it is to open, and ends with a
// status of the test's choice.

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
  /// What the real one ends with where it finds no browser.
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

  /// What it was given, one a line, after waiting for those at work.
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
