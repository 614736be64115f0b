#include "shell/feedback.h"

#include <cstddef>
#include <limits>

#include "results/web_addresses.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

constexpr std::size_t kShortestFeedback = 3;
constexpr std::size_t kLongestFeedback = 1000;
constexpr std::int64_t kMillisecondsPerSecond = 1000;

// In the counter's width, so that a wait across the wraparound fails rather than lasting seven weeks.
std::int32_t TicksBetween(std::int32_t start, std::int32_t now) {
  const std::int64_t ticks = std::int64_t{now} - start;
  using Limits = std::numeric_limits<std::int32_t>;
  if (ticks < Limits::min() || ticks > Limits::max()) throw RunTimeError(RunTimeFault::kOverflow);
  return static_cast<std::int32_t>(ticks);
}

void AppendCode(std::string& out, unsigned char code) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  out += '%';
  if (code >= 16) out += kDigits[code / 16];
  out += kDigits[code % 16];
}

void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

std::string WithCrLf(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '\n' && !result.ends_with('\r')) result += '\r';
    result += c;
  }
  return result;
}

}  // namespace

std::optional<Message> FeedbackComplaint(std::string_view note) {
  const std::size_t length = Windows1252FromUtf8(WithCrLf(note)).size();
  if (length >= kShortestFeedback && length <= kLongestFeedback) return std::nullopt;
  return Message{.text = length > kLongestFeedback ? "Too much feedback. Please consider sending an email."
                                                   : "Please fill out the feedback before sending.",
                 .icon = MessageIcon::kExclamation};
}

std::string FeedbackWriter(std::string_view answer) {
  return std::string(answer.find('@') == std::string_view::npos ? kAnonymousAddress : answer);
}

bool IsTimeToSend(std::int32_t start, std::int32_t now) {
  return TicksBetween(start, now) > kSecondsBeforeSending * kMillisecondsPerSecond;
}

std::string EncodeForUrl(std::string_view text) {
  std::string out;
  for (const char c : Windows1252FromUtf8(text))
    AppendCode(out, static_cast<unsigned char>(c));
  ReplaceAll(out, "%D%A", "%0D%0A");
  return out;
}

std::string FeedbackRequest(std::string_view writer, std::string_view note) {
  return FeedbackScriptAddress() + "?email_name=" + EncodeForUrl(writer) +
         "&email_body=" + EncodeForUrl(WithCrLf(note));
}

bool TellsSent(std::string_view reply) {
  return reply.find("sent") != std::string_view::npos;
}

Message FeedbackOutcome(bool sent) {
  if (!sent) return {"Error", "There was a problem sending your message.", MessageIcon::kStop};
  return {.text = "Your message has been sent."};
}

}  // namespace quillon
