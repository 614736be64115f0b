// The main of every test program with windows. They run without a screen, in a temporary folder, with the program's own
// style and a fixed font, whatever the machine's desktop. A Qt warning is a failure: it reveals a failed connection or
// lost drawing.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

#include "testing/expected_boxes.h"
#include "toolkit/application.h"

namespace {

// A screen on which every window has room at 100%.
void UseOffscreen(const QTemporaryDir& folder) {
  QFile file(folder.filePath(QStringLiteral("screen.json")));
  if (!file.open(QIODevice::WriteOnly)) std::abort();
  file.write(R"({"screens": [{"name": "test", "x": 0, "y": 0, "width": 1400, "height": 1000, "logicalDpi": 96,
                 "logicalBaseDpi": 96, "dpr": 1}]})");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}

void ForgetTheDesktop(const QTemporaryDir& folder) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) UseOffscreen(folder);
  for (const char* name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_STYLE_OVERRIDE",
                           "QT_QPA_PLATFORMTHEME", "SESSION_MANAGER"}) {
    qunsetenv(name);
  }
  for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
    qputenv(name, QFile::encodeName(folder.path()));
}

void FailAtWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (text.startsWith(QStringLiteral("This plugin does not support"))) return;  // there is no screen
  const bool warns = type == QtWarningMsg || type == QtCriticalMsg;
  if (warns && testing::UnitTest::GetInstance()->current_test_info() != nullptr) {
    ADD_FAILURE() << "Qt warns: " << text.toStdString();
  } else {
    std::cerr << text.toStdString() << '\n';
  }
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir folder;
  if (!folder.isValid()) return EXIT_FAILURE;
  ForgetTheDesktop(folder);
  QDir::setCurrent(folder.path());

  const auto application = quillon::StartApplication(argc, argv);
  qInstallMessageHandler(FailAtWarning);
  quillon::StartWatchingBoxes();
  return RUN_ALL_TESTS();
}
