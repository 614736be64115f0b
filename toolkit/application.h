#pragma once

// The program's outermost frame. A fault that nothing has caught on its way ends here: its text is written to standard
// error, shown in a message box with the stop icon, and the process ends with exit status 1.

#include <QApplication>
#include <memory>
#include <string>

#include "support/message_boxes.h"

namespace quillon {

class Application : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  /// Events are handled one at a time, each of them here; what escapes a handler goes no further.
  bool notify(QObject* receiver, QEvent* event) override;

  [[nodiscard]] bool KeyboardLeads() const { return keyboardLeads_; }

 Q_SIGNALS:
  void Announced(QWidget* speaker, const QString& text);  // to a screen reader ("toolkit/accessible_control.h")

 private:
  bool keyboardLeads_ = false;
};

/// Whether the last press in the program was of a key, not of a mouse button. A key that only modifies others, such as
/// Shift, does not count. What the user reaches or opens then is to have the focus, and to show it.
[[nodiscard]] bool KeyboardLeads();

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
