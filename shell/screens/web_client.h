#pragma once

// The program's only access to the web: the body at an address, by a plain HTTP GET, for the upgrade check and the
// feedback. Failures are not distinguished. During a request the window repaints and can be closed, but other input is
// blocked.

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace quillon {

/// How long a request may take, including the body.
inline constexpr std::chrono::seconds kWebTimeLimit{60};

/// The body at an "http" address, as text. Blocks until it has arrived. Any failure gives the empty text: an unknown
/// host, a timeout, a broken connection, an endless body.
using WebClient = std::function<std::string(std::string_view address)>;

/// HttpGet with an event loop that waits for the answer.
[[nodiscard]] std::string WaitForHttp(std::string_view address, std::chrono::milliseconds limit);

}  // namespace quillon
