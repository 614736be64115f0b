#pragma once

// Addresses of the web, shown in the user's browser by the desktop's own opener, `xdg-open`.

#include <QUrl>
#include <functional>

namespace quillon {

/// Shows the address in the browser, and returns at once. Where there is no browser, `missing` is called from the event
/// loop soon after, in answer to the same act of the user's ("toolkit/application.h").
void OpenInBrowser(const QUrl& address, std::function<void()> missing);

}  // namespace quillon
