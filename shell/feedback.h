#pragma once

// Feedback from the user: a note of 3 to 1,000 characters, typed on the About screen, that goes to a script on the
// product's web host in the query of one GET. The script takes "email_name", who writes, and "email_body", the note,
// and answers with a text that holds "sent" where all is well.
//
// The text of the box, and what is sent of it, has CR LF as line end, and so a line end counts as two characters. What
// is counted is what is sent, characters of the code page of "support/windows_1252.h", whatever they take in memory.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "shell/web_client.h"
#include "support/input_boxes.h"
#include "support/message_boxes.h"

namespace quillon {

inline constexpr std::size_t kShortestFeedback = 3;
inline constexpr std::size_t kLongestFeedback = 1000;
inline constexpr std::int32_t kSecondsBeforeSending = 5;

/// Who writes where nobody says so. The domain is one of those that RFC 2606 keeps from ever being somebody's.
inline constexpr std::string_view kAnonymousAddress = "nobody@q.test";
static_assert(kAnonymousAddress.size() == 13);

/// What waiting needs of the system.
class WaitingRoom {
 public:
  virtual ~WaitingRoom() = default;

  /// Milliseconds since some moment in the past. After 2^31 - 1 comes -2^31.
  virtual std::int32_t TickCount() = 0;

  /// Lets the window system handle everything that is pending, then comes back. Anything the user can click may happen
  /// inside, also the start of another wait.
  virtual void Yield() = 0;
};

/// What sending needs of the About screen.
class FeedbackWindow : public WaitingRoom {
 public:
  /// The text of `txtFeedback`, its line ends as LF or CR LF.
  [[nodiscard]] virtual std::string FeedbackText() const = 0;
  virtual void SetFeedbackText(std::string_view text) = 0;

  /// Shows the hourglass as mouse pointer over the whole program, or the default pointer again.
  virtual void SetHourglass(bool shown) = 0;

  [[nodiscard]] virtual MessageBoxes& Messages() = 0;
  [[nodiscard]] virtual InputBoxes& Inputs() = 0;
};

/// Yields, at full speed and at least once, until more than `seconds` have gone by. RunTimeError "Overflow" if the
/// counter has run so far from its start that 32 bits cannot hold the way, as when it passes 2^31 - 1 during the wait.
void WaitSeconds(std::int32_t seconds, WaitingRoom& room);

/// A text for the query of an address: every character, letters and digits too, as "%" and its code in the code page,
/// in upper-case hexadecimal digits without leading zeros. Only the pair of a CR and a LF has its zeros, as "%0D%0A";
/// wherever the digits "%D%A" come together they are taken for that pair, so a CR before one of the characters A0 to AF
/// comes out wrong. A character that the code page lacks is sent as "?".
///
///     "a b" -> "%61%20%62"      "\r\n" -> "%0D%0A"      "\n" -> "%A"      "\t" -> "%9"      "\r¡" -> "%0D%0A1"
[[nodiscard]] std::string EncodeForUrl(std::string_view text);

/// The click on `cmdSendFeedback`. A note too long or too short is refused with a message. Then the user is asked for
/// an address; an answer without "@" stands for kAnonymousAddress, so that cancelling that box sends the note all the
/// same. Five seconds later, under the hourglass, the note is sent as it reads by then, whatever its length. A reply
/// that holds "sent" empties the box; any other leaves the text for a second attempt. Either is told in a message.
///
/// A second click during the five seconds runs to its end inside the first, which then goes on: both send. Fails as
/// WaitSeconds does.
void SendFeedback(FeedbackWindow& window, WebClient& web);

}  // namespace quillon
