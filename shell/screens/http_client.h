#pragma once

// The web client of the window. While a request is on its way the window is still drawn and can be closed, but it is
// deaf: what the user does with the mouse and the keyboard in the meantime is dropped. Only a box that comes up during
// the request is heard, for it wants an answer.

#include <chrono>

#include "shell/web_client.h"

namespace quillon {

class HttpClient : public WebClient {
 public:
  explicit HttpClient(std::chrono::milliseconds limit = std::chrono::seconds(kWebTimeOutSeconds)) : limit_(limit) {}

  /// A redirect is followed on the same host and port, ten times at most; the limit of time is for all of it together.
  /// Nothing tells a page that tells of an error from a good one: a number at its start counts as a version, and "sent"
  /// in it as delivered. A body longer than kLongestHttpBody is a failure, and so is one that ends before its announced
  /// length. The host is asked directly, by no proxy, and what one request brings is not sent with another. The bytes
  /// of the body are taken as Windows-1252.
  std::string Get(std::string_view address) override;

  /// How long a request may take.
  [[nodiscard]] std::chrono::milliseconds Limit() const { return limit_; }

 private:
  std::chrono::milliseconds limit_;
};

}  // namespace quillon
