#include "shell/http_reply.h"

#include <algorithm>
#include <charconv>

#include "support/ascii_text.h"

namespace quillon {
namespace {

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// Lines end with CR LF, and with LF alone where a script has written the head by hand.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// The position behind the empty line that ends a head, or npos.
std::size_t EndOfHead(std::string_view text, std::size_t from) {
  for (std::size_t lineEnd = text.find('\n', from); lineEnd != std::string_view::npos;
       lineEnd = text.find('\n', lineEnd + 1)) {
    const std::string_view behind = text.substr(lineEnd + 1);
    if (behind.starts_with('\n')) return lineEnd + 2;
    if (behind.starts_with("\r\n")) return lineEnd + 3;
  }
  return std::string_view::npos;
}

// "HTTP/1.1 200 OK" -> 200; 0 for what is no such line.
int StatusOf(std::string_view line) {
  constexpr std::string_view kForm = "HTTP/1.x ddd";
  if (line.size() < kForm.size() || !line.starts_with("HTTP/1.")) return 0;
  const std::string_view digits = line.substr(9, 3);
  const bool isOne = IsDigit(line[7]) && line[8] == ' ' && std::ranges::all_of(digits, IsDigit) &&
                     (line.size() == kForm.size() || line[kForm.size()] == ' ');
  if (!isOne) return 0;
  return (digits[0] - '0') * 100 + (digits[1] - '0') * 10 + (digits[2] - '0');
}

std::optional<std::uint64_t> LengthOf(std::string_view text) {
  std::uint64_t length = 0;
  const char* end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data(), end, length);
  if (fault != std::errc() || stop != end) return std::nullopt;
  return length;
}

}  // namespace

bool HttpReply::Redirects() const {
  return Status == 301 || Status == 302 || Status == 303 || Status == 307 || Status == 308;
}

HttpReplyReader::State HttpReplyReader::Take(std::string_view bytes) {
  if (state_ != State::kReading) return state_;
  if (inBody_) {
    TakeBody(bytes);
  } else {
    TakeHead(bytes);
  }
  return state_;
}

HttpReplyReader::State HttpReplyReader::End() {
  if (state_ == State::kReading) state_ = inBody_ && !bodyLength_ ? State::kWhole : State::kFailed;
  return state_;
}

void HttpReplyReader::TakeHead(std::string_view bytes) {
  const std::size_t seen = head_.size();
  head_.append(bytes.substr(0, kLongestHttpHead + 1 - seen));
  const std::size_t end = EndOfHead(head_, seen - std::min<std::size_t>(seen, 2));
  if (end == std::string_view::npos) {
    if (head_.size() > kLongestHttpHead) state_ = State::kFailed;
    return;
  }

  if (!ReadHead(std::string_view(head_).substr(0, end))) {
    state_ = State::kFailed;
    return;
  }
  inBody_ = true;
  if (reply_.Redirects()) {
    state_ = State::kWhole;
    return;
  }
  TakeBody(bytes.substr(end - seen));
}

bool HttpReplyReader::ReadHead(std::string_view head) {
  reply_.Status = StatusOf(TakeLine(head));
  if (reply_.Status == 0) return false;
  while (!head.empty()) {
    if (!ReadField(TakeLine(head))) return false;
  }
  return true;
}

bool HttpReplyReader::ReadField(std::string_view line) {
  const std::size_t colon = std::min(line.find(':'), line.size());
  const std::string_view name = line.substr(0, colon);
  const std::string_view value = Trimmed(line.substr(std::min(colon + 1, line.size())), " \t");
  if (EqualButForCase(name, "location")) reply_.Location = value;
  // A body in chunks is not for a reader of HTTP 1.0; to take it as it stands would be to take the chunks' sizes, too.
  if (EqualButForCase(name, "transfer-encoding")) return EqualButForCase(value, "identity");
  if (!EqualButForCase(name, "content-length")) return true;

  const std::optional<std::uint64_t> length = LengthOf(value);
  if (!length || (bodyLength_ && bodyLength_ != length)) return false;
  bodyLength_ = length;
  return true;
}

void HttpReplyReader::TakeBody(std::string_view bytes) {
  if (bodyLength_) bytes = bytes.substr(0, std::min<std::uint64_t>(*bodyLength_ - reply_.Body.size(), bytes.size()));
  const bool isTooLong =
      bodyLength_.value_or(0) > kLongestHttpBody || bytes.size() > kLongestHttpBody - reply_.Body.size();
  if (isTooLong) {
    state_ = State::kFailed;
    return;
  }
  reply_.Body += bytes;
  if (bodyLength_ == reply_.Body.size()) state_ = State::kWhole;
}

}  // namespace quillon
