#pragma once

// A plain HTTP GET, on threads of its own. All buffers are limited, and an invalid reply counts as no reply.

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace quillon {

/// The longest body that is read, in bytes. A reply should be a number or a word.
inline constexpr std::size_t kLongestHttpBody = std::size_t{1} << 20;

/// Asks for the body at `address`, an "http" address, and returns at once. `answer` is called exactly once, on another
/// thread, when the request succeeds or fails, or with the empty text after `limit`. It must not throw.
///
/// The target is sent byte for byte, odd escapes such as "%9" included, but without a fragment ("#..."). The body of an
/// error page counts like any other. Redirects are followed on the same host and port, at most ten times, all within
/// the one time limit. It is a failure if a body is longer than kLongestHttpBody, or ends early or with a connection
/// reset. No proxy is used, and no cookie is sent. The body is decoded from Windows-1252 to UTF-8.
void HttpGet(std::string_view address, std::chrono::milliseconds limit, std::function<void(std::string)> answer);

}  // namespace quillon
