#pragma once

// The web client of the window. During a request the window repaints and can be closed, but other input is blocked.

#include <chrono>

#include "shell/web_client.h"

namespace quillon {

class HttpClient : public WebClient {
 public:
  explicit HttpClient(std::chrono::milliseconds limit = std::chrono::seconds(kWebTimeOutSeconds)) : limit_(limit) {}

  /// HttpGet with an event loop that waits for the answer.
  std::string Get(std::string_view address) override;

  /// How long a request may take.
  [[nodiscard]] std::chrono::milliseconds Limit() const { return limit_; }

 private:
  std::chrono::milliseconds limit_;
};

}  // namespace quillon
