#pragma once

// The product's place on the web. The host is chosen when the program is built (QUILLON_WEB_HOST), and every address of
// the program is on it. A host without a port is reached at port 80.

#include <string>
#include <string_view>

namespace quillon {

/// The web host, as a name with or without a port: "www.quillon.example", "localhost:8080".
[[nodiscard]] std::string_view WebHost();

/// The address of the product's home page: "http://www.quillon.example/quillon/".
[[nodiscard]] std::string HomeAddress();

/// The file whose text starts with the number of the newest version: "register/ver.html" below the home page.
[[nodiscard]] std::string VersionFileAddress();

/// The page from which the newest version can be downloaded: "download.html" below the home page.
[[nodiscard]] std::string DownloadAddress();

/// The script that takes feedback, without its query: "register/benice.php" below the home page.
[[nodiscard]] std::string FeedbackScriptAddress();

}  // namespace quillon
