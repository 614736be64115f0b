#include "toolkit/single_line.h"

#include <QValidator>
#include <algorithm>
#include <array>

namespace quillon {
namespace {

// Line feed, vertical tab, form feed, carriage return, and the separators of Unicode.
bool IsLineEnd(QChar c) {
  constexpr std::array<char16_t, 7> kLineEnds = {0x0A, 0x0B, 0x0C, 0x0D, 0x85, 0x2028, 0x2029};
  return std::ranges::find(kLineEnds, c.unicode()) != kLineEnds.end();
}

class SingleLine : public QValidator {
 public:
  using QValidator::QValidator;

  // The caret is after the inserted text, and everything before the insertion is clean.
  State validate(QString& text, int& caret) const override {
    const QChar* start = text.cbegin();
    const auto kept = static_cast<int>(std::find_if(start, start + caret, IsLineEnd) - start);
    text.remove(kept, caret - kept);
    caret = kept;
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    return Acceptable;
  }
};

}  // namespace

void KeepToOneLine(QLineEdit& box) {
  box.setValidator(new SingleLine(&box));
}

}  // namespace quillon
