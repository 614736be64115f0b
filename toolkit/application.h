#pragma once

// The program's outermost frame. An uncaught fault ends here: its text is written to standard error and shown in a
// message box with the stop icon, and the process exits with status 1.

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>

#include "support/message_boxes.h"

namespace quillon {

/// A user's action that the program responds to.
struct UserAct {
  bool ByKey = false;
  QPointer<QWidget> Window;  // where it happened; an open list belongs to the window of its box
};

class Application : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  /// Passes every event on; an exception that escapes its handler ends here.
  bool notify(QObject* receiver, QEvent* event) override;

 Q_SIGNALS:
  void Announced(QWidget* speaker, const QString& text);  // to a screen reader ("toolkit/accessible_control.h")
};

/// The action being handled; if nested, the innermost. A long response, such as a run, belongs to the action that
/// started it, whatever keys and clicks are handled meanwhile.
[[nodiscard]] UserAct AnsweredAct();

/// During its lifetime, whatever is done is a response to this action: for each event, and for later consequences.
class Answering {
 public:
  explicit Answering(UserAct act);
  ~Answering();
  Q_DISABLE_COPY_MOVE(Answering)

 private:
  UserAct outer_;
};

/// Whether the action is a key. What a key reaches or opens should get the focus and show it.
[[nodiscard]] bool AnswersKey();

/// The window that a box opened now belongs to: that of the action being handled, or the active one; null if invisible.
[[nodiscard]] QWidget* AskingWindow();

/// The application. Without a display, prints a line with Qt's reason to standard error and exits with status 1.
[[nodiscard]] std::unique_ptr<Application> StartApplication(int& argc, char** argv);

/// Shows the fault and ends the process. Without a window system, it is only written to standard error.
[[noreturn]] void EndWithFault(const std::string& text);

/// The text of the exception being handled: that of a RunTimeError, or of the nearest run-time error for any other.
/// Call only inside a catch clause.
[[nodiscard]] std::string CurrentFaultText();

}  // namespace quillon
