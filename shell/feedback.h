#pragma once

// Feedback from the user: a note of 3 to 1,000 characters, typed on the About screen, that goes to a script on the
// product's web host in the query of one GET. The script takes "email_name", who writes, and "email_body", the note,
// and answers with a text that holds "sent" on success.
//
// The text of the box, and what is sent of it, has CR LF as line end, and so a line end counts as two characters. What
// is counted is what is sent, characters of the code page of "support/windows_1252.h", whatever they take in memory.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/message_boxes.h"

namespace quillon {

inline constexpr std::int32_t kSecondsBeforeSending = 5;

/// The writer where none is given. RFC 2606 reserves the domain, so it will never belong to anyone.
inline constexpr std::string_view kAnonymousAddress = "nobody@q.test";
static_assert(kAnonymousAddress.size() == 13);

inline constexpr std::string_view kAskAddress = "What is your email address?";

/// What is wrong with a note, its line ends as LF or CR LF: it is too long or too short. Nothing if it may be sent.
[[nodiscard]] std::optional<Message> FeedbackComplaint(std::string_view note);

/// Who writes, from an answer to kAskAddress. One without "@" is kAnonymousAddress, so that cancelling that box sends
/// the note all the same.
[[nodiscard]] std::string FeedbackWriter(std::string_view answer);

/// Whether more than kSecondsBeforeSending have passed between two readings of a counter of milliseconds, after whose
/// 2^31 - 1 comes -2^31. RunTimeError "Overflow" if it has run so far that 32 bits cannot hold the difference, as when
/// it passes 2^31 - 1 in between.
[[nodiscard]] bool IsTimeToSend(std::int32_t start, std::int32_t now);

/// A text for the query of an address: every character, letters and digits too, as "%" and its code in the code page,
/// in upper-case hexadecimal digits without leading zeros. Only the pair of a CR and a LF has its zeros, as "%0D%0A";
/// wherever the digits "%D%A" come together they are taken for that pair, so a CR before one of the characters A0 to AF
/// comes out wrong. A character that the code page lacks is sent as "?".
///
///     "a b" -> "%61%20%62"      "\r\n" -> "%0D%0A"      "\n" -> "%A"      "\t" -> "%9"      "\r¡" -> "%0D%0A1"
[[nodiscard]] std::string EncodeForUrl(std::string_view text);

/// The address that sends a note of any length.
[[nodiscard]] std::string FeedbackRequest(std::string_view writer, std::string_view note);

/// Whether the script's reply says that the note has been sent: it holds "sent".
[[nodiscard]] bool TellsSent(std::string_view reply);

/// What the user is told at the end.
[[nodiscard]] Message FeedbackOutcome(bool sent);

}  // namespace quillon
