#pragma once

// Addresses of the web, shown in the user's browser by the desktop's own opener, `xdg-open`.

#include <QUrl>
#include <filesystem>
#include <functional>

namespace quillon {

/// The address of a file whose path is absolute, byte by byte: a name need not be UTF-8.
///
///     /home/ann/K\xE4se.html -> file:///home/ann/K%E4se.html
[[nodiscard]] QUrl AddressOfFile(const std::filesystem::path& file);

/// Shows the address in the browser, and returns at once. Where there is no browser, `missing` is called from the event
/// loop soon after, in answer to the same act of the user's ("toolkit/application.h").
void OpenInBrowser(const QUrl& address, std::function<void()> missing);

}  // namespace quillon
