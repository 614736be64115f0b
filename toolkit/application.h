#pragma once

// The program's outermost frame. A fault that nothing has caught on its way ends here: its text is written to standard
// error, shown in a message box with the stop icon, and the process ends with exit status 1.

#include <QApplication>
#include <memory>
#include <string>

#include "support/message_boxes.h"

namespace quillon {

class Application : public QApplication {
 public:
  Application(int& argc, char** argv);

  /// Events are handled one at a time, each of them here; what escapes a handler goes no further.
  bool notify(QObject* receiver, QEvent* event) override;
};

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
