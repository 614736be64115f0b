#include "shell/feedback.h"

#include <limits>

#include "results/web_addresses.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

constexpr std::int64_t kMillisecondsPerSecond = 1000;

// The counter's width decides, so that a wait over its turn fails and does not go on for seven weeks.
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

std::string TextToSend(const FeedbackWindow& window) {
  return WithCrLf(window.FeedbackText());
}

bool Refuse(MessageBoxes& messages, std::string text) {
  messages.Show({std::string(kApplicationTitle), std::move(text), MessageIcon::kExclamation, MessageButtons::kOk});
  return false;
}

bool HasFitLength(const FeedbackWindow& window, MessageBoxes& messages) {
  const std::size_t length = Windows1252FromUtf8(TextToSend(window)).size();
  if (length > kLongestFeedback) return Refuse(messages, "Too much feedback. Please consider sending an email.");
  if (length < kShortestFeedback) return Refuse(messages, "Please fill out the feedback before sending.");
  return true;
}

std::string AskForAddress(InputBoxes& inputs) {
  std::string address = inputs.Ask("What is your email address?", kApplicationTitle, {});
  if (address.find('@') == std::string::npos) address = kAnonymousAddress;
  return address;
}

std::string RequestAddress(std::string_view writer, std::string_view note) {
  return FeedbackScriptAddress() + "?email_name=" + EncodeForUrl(writer) + "&email_body=" + EncodeForUrl(note);
}

void TellOutcome(FeedbackWindow& window, bool sent) {
  if (!sent) {
    window.Messages().Show(
        {"Error", "There was a problem sending your message.", MessageIcon::kStop, MessageButtons::kOk});
    return;
  }
  window.SetFeedbackText({});
  window.Messages().Show(
      {std::string(kApplicationTitle), "Your message has been sent.", MessageIcon::kInformation, MessageButtons::kOk});
}

}  // namespace

void WaitSeconds(std::int32_t seconds, WaitingRoom& room) {
  const std::int32_t start = room.TickCount();
  do {
    room.Yield();
  } while (TicksBetween(start, room.TickCount()) <= seconds * kMillisecondsPerSecond);
}

std::string EncodeForUrl(std::string_view text) {
  std::string out;
  for (const char c : Windows1252FromUtf8(text))
    AppendCode(out, static_cast<unsigned char>(c));
  ReplaceAll(out, "%D%A", "%0D%0A");
  return out;
}

void SendFeedback(FeedbackWindow& window, WebClient& web) {
  if (!HasFitLength(window, window.Messages())) return;
  const std::string writer = AskForAddress(window.Inputs());

  window.SetHourglass(true);
  WaitSeconds(kSecondsBeforeSending, window);
  const std::string reply = web.Get(RequestAddress(writer, TextToSend(window)));
  window.SetHourglass(false);

  TellOutcome(window, reply.find("sent") != std::string::npos);
}

}  // namespace quillon
