#include "toolkit/text.h"

namespace quillon {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
      .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string FromQt(const QString& text) {
  return text.toStdString();
}

std::string LinesFromQt(const QString& text) {
  return QString(text).replace(QStringLiteral("\n"), QStringLiteral("\r\n")).toStdString();
}

NumberMarks MarksOf(const QLocale& locale) {
  return {FromQt(locale.currencySymbol()), FromQt(locale.decimalPoint()), FromQt(locale.groupSeparator())};
}

}  // namespace quillon
