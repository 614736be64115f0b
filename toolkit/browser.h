#pragma once

// Opens web addresses in the user's browser through the desktop's opener, `xdg-open`.

#include <QUrl>
#include <filesystem>
#include <functional>

namespace quillon {

/// The address of a file with an absolute path, byte by byte: a name need not be UTF-8.
///
///     /home/ann/K\xE4se.html -> file:///home/ann/K%E4se.html
[[nodiscard]] QUrl AddressOfFile(const std::filesystem::path& file);

/// Opens the address in the browser and returns at once. If there is no browser, `missing` is called from the event
/// loop soon after, in response to the same user action ("toolkit/application.h").
void OpenInBrowser(const QUrl& address, std::function<void()> missing);

}  // namespace quillon
