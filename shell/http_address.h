#pragma once

// Addresses of the web as HTTP asks for them: which host, which port, and the target that stands in the request. The
// target is sent byte for byte as the address gives it. A library's idea of an address would not do here: it repairs
// percent signs that stand before no two digits, and by that changes feedback which holds a tab ("%9").

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

struct HttpAddress {
  std::string Host;  // a name or a number, an IPv6 number without its brackets; letters in lower case
  std::uint16_t Port = 80;
  std::string Target;  // path and query, beginning with "/"

  bool operator==(const HttpAddress&) const = default;
};

/// The parts of an address; what stands behind a "#" is left out, since it never leaves the program.
///
///     "http://www.quillon.example/a.html?x=%9" -> www.quillon.example, 80, /a.html?x=%9
///     "HTTP://LocalHost:8080?x"                -> localhost, 8080, /?x
///     "http://[::1]:8080/"                     -> ::1, 8080, /
///
/// Nothing for another scheme, an address without a host, one with a user's name, a port outside 1 to 65535, and for
/// anything that holds a blank, a control character or a byte beyond ASCII.
[[nodiscard]] std::optional<HttpAddress> ParseHttpAddress(std::string_view address);

/// Where a redirect leads: `location` as the reply gives it, absolute ("http://host/b"), from the root ("/b"), or
/// beside `from` ("b", "?x"). Nothing where it leads off the host or the port, and where ParseHttpAddress would give
/// nothing.
[[nodiscard]] std::optional<HttpAddress> RedirectedAddress(const HttpAddress& from, std::string_view location);

/// The whole request for an address. It is one of HTTP 1.0, so the reply comes in one piece and ends with the
/// connection; what has grown around HTTP since (cookies, caches, compression) is not asked for.
[[nodiscard]] std::string HttpRequestText(const HttpAddress& address);

}  // namespace quillon
