#pragma once

// Conversion between the program's text (UTF-8, lines end in CR LF) and Qt's (UTF-16, lines end in LF).

#include <QLocale>
#include <QString>
#include <string>
#include <string_view>

#include "support/number_text.h"

namespace quillon {

/// CR LF becomes LF. Bytes that are not UTF-8 become the replacement character.
[[nodiscard]] QString ToQt(std::string_view text);

/// UTF-8, with line ends unchanged.
[[nodiscard]] std::string FromQt(const QString& text);

/// UTF-8, with LF as CR LF: the text of a multi-line box.
[[nodiscard]] std::string LinesFromQt(const QString& text);

/// The marks of amounts in a locale.
[[nodiscard]] NumberMarks MarksOf(const QLocale& locale);

}  // namespace quillon
