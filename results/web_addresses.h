#pragma once

// The product's web addresses. The host is chosen at build time (QUILLON_WEB_HOST) and is the same for all. Without a
// port it is reached at port 80.

#include <string>
#include <string_view>

namespace quillon {

/// The web host, as a name with or without a port: "www.quillon.example", "localhost:8080".
[[nodiscard]] std::string_view WebHost();

/// The address of the product's home page: "http://www.quillon.example/quillon/".
[[nodiscard]] std::string HomeAddress();

/// The file that starts with the newest version's number: "register/ver.html" below the home page.
[[nodiscard]] std::string VersionFileAddress();

/// The page for downloading the newest version: "download.html" below the home page.
[[nodiscard]] std::string DownloadAddress();

/// The script for feedback, without its query: "register/benice.php" below the home page.
[[nodiscard]] std::string FeedbackScriptAddress();

}  // namespace quillon
