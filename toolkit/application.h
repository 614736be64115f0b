#pragma once

// The program's outermost frame. A fault that nothing has caught on its way ends here: its text is written to standard
// error, shown in a message box with the stop icon, and the process ends with exit status 1.

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>

#include "support/message_boxes.h"

namespace quillon {

/// What a user does that the program answers.
struct UserAct {
  bool ByKey = false;
  QPointer<QWidget> Window;  // where; a list that is open belongs to the window of its box
};

class Application : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  /// Events are handled one at a time, each of them here; what escapes a handler goes no further.
  bool notify(QObject* receiver, QEvent* event) override;

 Q_SIGNALS:
  void Announced(QWidget* speaker, const QString& text);  // to a screen reader ("toolkit/accessible_control.h")
};

/// The act that the program answers at this moment; of two, one within the other, the inner one. A long answer, such as
/// a run, stays that of the act that started it, whatever keys and clicks are answered meanwhile.
[[nodiscard]] UserAct AnsweredAct();

/// Makes what is done while it lives the answer to that act: each event has one, and so has news that comes later.
class Answering {
 public:
  explicit Answering(UserAct act);
  ~Answering();
  Answering(const Answering&) = delete;
  Answering& operator=(const Answering&) = delete;
  Answering(Answering&&) = delete;
  Answering& operator=(Answering&&) = delete;

 private:
  UserAct outer_;
};

/// Whether it is a key that is being answered. What a key reaches or opens is to have the focus, and to show it.
[[nodiscard]] bool AnswersKey();

/// The window that a box which comes up at this moment belongs to: the one whose user is being answered, or else the
/// one in front. Null where neither can be seen.
[[nodiscard]] QWidget* AskingWindow();

/// The application, once it has a display. Without one, a line on standard error says so, with Qt's reason, and the
/// process ends with status 1.
[[nodiscard]] std::unique_ptr<Application> StartApplication(int& argc, char** argv);

/// Tells of the fault and ends the process; the box says that it does. With no window system to show it in, the text on
/// standard error is all.
[[noreturn]] void EndWithFault(const std::string& text);

/// The text of the exception being handled: that of a RunTimeError as it is; of another, the nearest
/// run-time error. Called inside a catch clause only.
[[nodiscard]] std::string CurrentFaultText();

}  // namespace quillon
