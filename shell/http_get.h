#pragma once

// A plain HTTP GET, on threads of its own. A host may send what it likes: nothing is kept without a limit, and a reply
// that breaks the rules counts as no reply.

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace quillon {

/// The longest body that is read, in bytes. What is asked for is a number or a word.
inline constexpr std::size_t kLongestHttpBody = std::size_t{1} << 20;

/// Asks for the body at `address`, an "http" address, and returns at once. `answer` is called exactly once, on
/// another thread, when the body is there or has failed, and with the empty text when `limit` has passed. It must not
/// throw.
///
/// The target is sent byte for byte as the address gives it, odd escapes such as "%9" included; what follows a "#" is
/// not sent. The body of an error page counts like any other. A redirect is followed on the same host and port, ten
/// times at most; the limit of time is for all of it together. A body longer than kLongestHttpBody is a failure, and so
/// is one that ends before its announced length or with a connection that is reset. The host is asked directly, by no
/// proxy, and no cookie is sent. The bytes of the body are taken as Windows-1252, and given as UTF-8.
void HttpGet(std::string_view address, std::chrono::milliseconds limit, std::function<void(std::string)> answer);

}  // namespace quillon
