#pragma once

// Feedback from the user: a note of 3 to 1,000 characters, typed on the About screen, that is sent to a script on the
// product's web host in the query of one GET. The script takes "email_name", the sender, and "email_body", the note,
// and its reply contains "sent" on success.
//
// The box and the request use CR LF, so a line end counts as two characters. Lengths count what is sent, characters of
// the code page of "support/windows_1252.h".

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/message_boxes.h"

namespace quillon {

inline constexpr std::int32_t kSecondsBeforeSending = 5;

/// The default sender. RFC 2606 reserves the domain, so it will never belong to anyone.
inline constexpr std::string_view kAnonymousAddress = "nobody@q.test";
static_assert(kAnonymousAddress.size() == 13);

inline constexpr std::string_view kAskAddress = "What is your email address?";

/// The complaint about a note, with line ends as LF or CR LF: it is too long or too short. Nothing if it may be sent.
[[nodiscard]] std::optional<Message> FeedbackComplaint(std::string_view note);

/// The sender, from an answer to kAskAddress; kAnonymousAddress without an "@", so Cancel still sends the note.
[[nodiscard]] std::string FeedbackWriter(std::string_view answer);

/// Whether more than kSecondsBeforeSending have passed between two readings of a millisecond counter that wraps from
/// 2^31 - 1 to -2^31. RunTimeError "Overflow" if the difference does not fit in 32 bits, as after a wrap.
[[nodiscard]] bool IsTimeToSend(std::int32_t start, std::int32_t now);

/// A text encoded for a query: every character, letters and digits too, as "%" and its code in the code page, in
/// upper-case hexadecimal digits without leading zeros. Only CR LF has its zeros, as "%0D%0A"; any "%D%A" is taken for
/// that pair, so a CR before A0 to AF comes out wrong. A character that the code page lacks is sent as "?".
///
///     "a b" -> "%61%20%62"      "\r\n" -> "%0D%0A"      "\n" -> "%A"      "\t" -> "%9"      "\r¡" -> "%0D%0A1"
[[nodiscard]] std::string EncodeForUrl(std::string_view text);

/// The address that sends a note of any length.
[[nodiscard]] std::string FeedbackRequest(std::string_view writer, std::string_view note);

/// Whether the script's reply confirms that the note was sent: it contains "sent".
[[nodiscard]] bool TellsSent(std::string_view reply);

/// The message at the end.
[[nodiscard]] Message FeedbackOutcome(bool sent);

}  // namespace quillon
