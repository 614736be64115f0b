#pragma once

// The one thing that the program asks of the web: the body at an address, by a plain HTTP GET. Two parts of the
// shell use it, the upgrade check and the feedback sender, and neither can tell one failure from another.

#include <string>
#include <string_view>

namespace quillon {

/// How long a request may take, in seconds, from its start to the end of the body.
inline constexpr int kWebTimeOutSeconds = 60;

class WebClient {
 public:
  virtual ~WebClient() = default;

  /// The body at `address`, an "http" address, as text. The call blocks until it is there. Any failure gives the
  /// empty text: a host that is not found or does not answer in time, a connection that breaks, a body without end.
  virtual std::string Get(std::string_view address) = 0;
};

}  // namespace quillon
