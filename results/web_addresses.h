#pragma once

// The product's place on the web. The host is chosen when the program is built (QUILLON_WEB_HOST).

#include <string>
#include <string_view>

namespace quillon {

/// The web host, as a name with or without a port: "www.quillon.example", "localhost:8080".
[[nodiscard]] std::string_view WebHost();

/// The address of the product's home page: "http://www.quillon.example/quillon/".
[[nodiscard]] std::string HomeAddress();

}  // namespace quillon
