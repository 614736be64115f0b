#pragma once

// How the logic shows messages to the user: one message box at a time, with a text, a title and an icon. The window
// shows it, the command-line companion prints it, a test records it.

#include <string>
#include <string_view>

namespace quillon {

/// The title of every message box without one of its own.
inline constexpr std::string_view kApplicationTitle = "Quillon";

enum class MessageIcon { kInformation, kExclamation, kQuestion, kStop };
enum class MessageButtons { kOk, kYesNo, kYesNoCancel };
enum class MessageAnswer { kOk, kYes, kNo, kCancel };

struct Message {
  std::string title{kApplicationTitle};
  std::string text;  // line ends are CR LF
  MessageIcon icon = MessageIcon::kInformation;
  MessageButtons buttons = MessageButtons::kOk;
  bool columns = false;  // fixed-width font, so that a mark lines up with the character above it

  bool operator==(const Message&) const = default;
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows a message, waits for the user, and returns the button pressed. Closing the box returns the button that does
  /// the least: kOk if it is the only one, kNo if the other one is kYes, otherwise kCancel.
  virtual MessageAnswer Show(const Message& message) = 0;
};

}  // namespace quillon
