#include "toolkit/application.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>

#include "support/run_time_error.h"
#include "toolkit/accessible_control.h"
#include "toolkit/desktop_scale.h"
#include "toolkit/fonts.h"
#include "toolkit/light_look.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"
#include "toolkit/x11_clipboard.h"

namespace quillon {
namespace {

// What Qt says of itself as it starts.
struct StartMessages {
  QStringList All;
  QString NoDisplay;  // the first that tells of a display
};

StartMessages& Heard() {
  static StartMessages heard;
  return heard;
}

void HearStart(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  StartMessages& heard = Heard();
  if (type != QtFatalMsg) {
    heard.All.push_back(text);
    if (heard.NoDisplay.isEmpty() && QByteArray(context.category).startsWith("qt.qpa"))
      heard.NoDisplay = text.trimmed();
    return;
  }
  // Qt goes on to abort.
  const std::string reason =
      FromQt(heard.NoDisplay.isEmpty() ? text.section(QLatin1Char('\n'), 0, 0) : heard.NoDisplay);
  std::fputs(("Quillon finds no display for its window: " + reason + "\n").c_str(), stderr);
  std::_Exit(EXIT_FAILURE);
}

// A key that is a shortcut is told of as an override only.
bool IsPressOfAKey(const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return false;
  const int key = dynamic_cast<const QKeyEvent&>(event).key();
  constexpr std::array kModifiers = {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr};
  return std::ranges::find(kModifiers, key) == kModifiers.end();
}

}  // namespace

std::unique_ptr<Application> StartApplication(int& argc, char** argv) {
  // The style works lengths out for 96 dots to the inch, and the program's scale comes on top.
  QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
  std::optional<QtScalingOff> scalingOff(std::in_place);
  const QtMessageHandler before = qInstallMessageHandler(HearStart);
  auto application = std::make_unique<Application>(argc, argv);
  qInstallMessageHandler(before);
  for (const QString& text : Heard().All)
    qWarning("%s", qUtf8Printable(text));
  scalingOff.reset();
  ShowAtScale(DesktopScale());
  return application;
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Quillon"));
  // Qt's file dialog keeps a history in the user's home; the program keeps nothing outside its own folder.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QProcess::nullDevice());
  LoadFonts();
  UseLightLook();
  ShowAtScale(1);
  InstallAccessibleControls(*this);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  if (IsPressOfAKey(*event)) keyboardLeads_ = true;
  if (event->type() == QEvent::MouseButtonPress) keyboardLeads_ = false;
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    EndWithFault(CurrentFaultText());
  }
}

bool KeyboardLeads() {
  const auto* application = dynamic_cast<const Application*>(QCoreApplication::instance());
  return application != nullptr && application->KeyboardLeads();
}

void EndWithFault(const std::string& text) {
  std::fputs((text + "\n").c_str(), stderr);
  std::fflush(stderr);
  if (qApp != nullptr) {
    QMessageBox box(QApplication::activeWindow());
    const std::string told = text + "\r\n\r\nQuillon ends now.";
    FillMessageBox(box, {.title = std::string(kApplicationTitle), .text = told, .icon = MessageIcon::kStop});
    box.exec();
    HandOverClipboard();
  }
  // At once: handlers further out, and what they hold, belong to a program that has ended.
  std::_Exit(EXIT_FAILURE);
}

std::string CurrentFaultText() {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return error.what();
  } catch (const std::bad_alloc&) {
    return RunTimeError(RunTimeFault::kOutOfMemory).what();
  } catch (const std::exception& error) {
    return RunTimeError(RunTimeFault::kInternalError, error.what()).what();
  } catch (...) {
    return RunTimeError(RunTimeFault::kInternalError).what();
  }
}

}  // namespace quillon
