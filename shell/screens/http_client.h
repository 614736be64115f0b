#pragma once

// The web client of the window. While a request is under way the window is drawn and can be closed, but input is
// blocked.

#include <chrono>

#include "shell/web_client.h"

namespace quillon {

class HttpClient : public WebClient {
 public:
  explicit HttpClient(std::chrono::milliseconds limit = std::chrono::seconds(kWebTimeOutSeconds)) : limit_(limit) {}

  /// What HttpGet answers, waited for with the event loop.
  std::string Get(std::string_view address) override;

  /// How long a request may take.
  [[nodiscard]] std::chrono::milliseconds Limit() const { return limit_; }

 private:
  std::chrono::milliseconds limit_;
};

}  // namespace quillon
