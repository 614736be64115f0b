#pragma once

// The program's only access to the web: the body at an address, by a plain HTTP GET, for the upgrade check and the
// feedback. Failures are not distinguished.

#include <string>
#include <string_view>

namespace quillon {

/// How long a request may take, in seconds, including the body.
inline constexpr int kWebTimeOutSeconds = 60;

class WebClient {
 public:
  virtual ~WebClient() = default;

  /// The body at `address`, an "http" address, as text. Blocks until it has arrived. Any failure gives the empty text:
  /// an unknown host, a timeout, a broken connection, an endless body.
  virtual std::string Get(std::string_view address) = 0;
};

}  // namespace quillon
