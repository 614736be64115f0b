#pragma once

// The border between the program's text (UTF-8, lines end in CR LF) and Qt's (UTF-16, lines end in LF).

#include <QLocale>
#include <QString>
#include <string>
#include <string_view>

#include "support/number_text.h"

namespace quillon {

/// CR LF becomes LF. Bytes that are not UTF-8 become the replacement character.
[[nodiscard]] QString ToQt(std::string_view text);

/// UTF-8, with each line end as it is.
[[nodiscard]] std::string FromQt(const QString& text);

/// UTF-8, with LF as CR LF: the text of a box of several lines.
[[nodiscard]] std::string LinesFromQt(const QString& text);

/// How amounts are written where the locale is spoken.
[[nodiscard]] NumberMarks MarksOf(const QLocale& locale);

}  // namespace quillon
