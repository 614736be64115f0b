#include "toolkit/application.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>
#include <utility>

#include "support/run_time_error.h"
#include "toolkit/accessible_control.h"
#include "toolkit/clipboard.h"
#include "toolkit/desktop_scale.h"
#include "toolkit/fonts.h"
#include "toolkit/light_style.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// Qt's messages during start.
struct StartMessages {
  QStringList All;
  QString NoDisplay;  // the first one about a display
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
  // Qt then aborts.
  const std::string reason =
      FromQt(heard.NoDisplay.isEmpty() ? text.section(QLatin1Char('\n'), 0, 0) : heard.NoDisplay);
  // Qt looks for its platform plug-in before it looks for the display.
  const bool incomplete = reason.starts_with("Could not find");
  const std::string message = incomplete
                                  ? "Quillon cannot show its window, and may have to be installed or unpacked again: "
                                  : "Quillon finds no display for its window: ";
  std::fputs((message + reason + "\n").c_str(), stderr);  // on Windows Qt has shown a box of its own
  std::_Exit(EXIT_FAILURE);
}

UserAct& Answered() {
  static UserAct act;
  return act;
}

QWidget* WindowOf(const QWidget& control) {
  QWidget* window = control.window();
  while (window->windowType() == Qt::Popup && window->parentWidget() != nullptr)
    window = window->parentWidget()->window();
  return window;
}

// The menu key sends no key event but a context menu event.
bool IsOfKey(const QEvent& event) {
  const auto* const menu = dynamic_cast<const QContextMenuEvent*>(&event);
  if (menu != nullptr) return menu->reason() == QContextMenuEvent::Keyboard;
  return dynamic_cast<const QKeyEvent*>(&event) != nullptr;
}

// Nothing for an event that is not a user's action, or not on a control yet.
std::optional<UserAct> ActOf(QObject* receiver, const QEvent& event) {
  // A shortcut may belong to another window than the active one, in which the key was pressed.
  if (event.type() == QEvent::Shortcut) return UserAct{.ByKey = true, .Window = QApplication::activeWindow()};
  const auto* control = event.isInputEvent() ? qobject_cast<const QWidget*>(receiver) : nullptr;
  if (control == nullptr) return {};
  return UserAct{.ByKey = IsOfKey(event), .Window = WindowOf(*control)};
}

}  // namespace

std::unique_ptr<Application> StartApplication(int& argc, char** argv) {
  // The style computes lengths for 96 dots to the inch; the program's scale is applied on top.
  QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
  std::optional<QtScalingOff> scalingOff(std::in_place);
  const QtMessageHandler before = qInstallMessageHandler(HearStart);
  auto application = std::make_unique<Application>(argc, argv);
  qInstallMessageHandler(before);
  for (const QString& text : Heard().All)
    qWarning("%s", qUtf8Printable(text));
  scalingOff.reset();
  ShowAtScale(DesktopScale(QGuiApplication::primaryScreen()));
  return application;
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  // The application's name becomes X11's window class; Wayland uses the name of the desktop file.
  setApplicationName(QStringLiteral(QUILLON_APPLICATION_ID));
  setDesktopFileName(QStringLiteral(QUILLON_APPLICATION_ID));
  // Qt's file dialog stores a history in the user's home; the program writes nothing outside its own folder. On Windows
  // the history goes to the registry, which no path reaches.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QProcess::nullDevice());
  LoadFonts();
  UseLightLook();
  ShowAtScale(1);
  InstallAccessibleControls(*this);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  const Answering answering(ActOf(receiver, *event).value_or(Answered()));
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    EndWithFault(CurrentFaultText());
  }
}

UserAct AnsweredAct() {
  return Answered();
}

Answering::Answering(UserAct act) : outer_(std::exchange(Answered(), std::move(act))) {}

Answering::~Answering() {
  Answered() = std::move(outer_);
}

bool AnswersKey() {
  return Answered().ByKey;
}

QWidget* AskingWindow() {
  QWidget* const window = Answered().Window;
  return window != nullptr && window->isVisible() ? window : QApplication::activeWindow();
}

void EndWithFault(const std::string& text) {
  std::fputs((text + "\n").c_str(), stderr);
  std::fflush(stderr);
  if (qApp != nullptr) {
    QMessageBox box(AskingWindow());
    const std::string told = text + "\r\n\r\nQuillon ends now.";
    FillMessageBox(box, {.title = std::string(kApplicationTitle), .text = told, .icon = MessageIcon::kStop});
    box.exec();
    HandOverClipboard();
  }
  // At once: no destructors, and no handlers further out, may run any more.
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
