#pragma once

// The reply to a plain HTTP request, read from the bytes as they come in. A host may say what it likes, so nothing that
// it sends is kept without a limit, and a reply that breaks the rules counts as none.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The longest body that is read. What is asked for is a number or a word.
inline constexpr std::size_t kLongestHttpBody = std::size_t{1} << 20;
/// The most that may stand before a body.
inline constexpr std::size_t kLongestHttpHead = std::size_t{64} << 10;

struct HttpReply {
  int Status = 0;
  std::string Location;  // where a redirect leads, as the host says it
  std::string Body;  // also of a page that tells of an error; that of a redirect is not read

  [[nodiscard]] bool Redirects() const;
};

class HttpReplyReader {
 public:
  enum class State : std::uint8_t {
    kReading,  // there is more to come
    kWhole,  // the reply is complete; whatever else comes is no part of it
    kFailed,  // too long, cut short, or no reply of HTTP 1
  };

  /// The next bytes of the connection.
  State Take(std::string_view bytes);

  /// The host has closed the connection in good order. That ends a body whose length was not told.
  State End();

  [[nodiscard]] State Now() const { return state_; }

  /// What was read; to be used when the state is kWhole.
  [[nodiscard]] const HttpReply& Reply() const { return reply_; }

 private:
  void TakeHead(std::string_view bytes);
  [[nodiscard]] bool ReadHead(std::string_view head);
  [[nodiscard]] bool ReadField(std::string_view line);
  void TakeBody(std::string_view bytes);

  State state_ = State::kReading;
  bool inBody_ = false;
  std::string head_;
  std::optional<std::uint64_t> bodyLength_;
  HttpReply reply_;
};

}  // namespace quillon
