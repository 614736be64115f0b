#pragma once

// How the logic speaks to the user: one message box at a time, with a text, a title and an icon. The window shows it,
// the command-line companion prints it, a test records it.

#include <string>
#include <string_view>

namespace quillon {

/// The title of every message box that has none of its own.
inline constexpr std::string_view kApplicationTitle = "Quillon";

enum class MessageIcon { kInformation, kExclamation, kQuestion, kStop };
enum class MessageButtons { kOk, kYesNo, kYesNoCancel };
enum class MessageAnswer { kOk, kYes, kNo, kCancel };

struct Message {
  std::string title{kApplicationTitle};
  std::string text;  // line ends are CR LF
  MessageIcon icon = MessageIcon::kInformation;
  MessageButtons buttons = MessageButtons::kOk;
  bool columns = false;  // letters are one under another, as a mark under its place does

  bool operator==(const Message&) const = default;
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows one message, waits for the user, and returns the button pressed. A box that is closed answers with the
  /// button that does the least: kOk where that is its only button, kNo beside a lone kYes, otherwise kCancel.
  virtual MessageAnswer Show(const Message& message) = 0;
};

}  // namespace quillon
