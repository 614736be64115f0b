#include "results/report_box.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "support/number_text.h"
#include "support/utf8.h"

namespace quillon {
namespace {

std::int64_t CharacterCount(std::string_view text) {
  return std::count_if(text.begin(), text.end(), StartsUtf8Character);
}

std::string Blanks(std::int64_t count) {
  return std::string(static_cast<std::size_t>(std::max(count, std::int64_t{0})), ' ');
}

}  // namespace

std::string PlainText(const ReportText& report) {
  std::string all;
  for (const auto& piece : report) {
    if (const auto* const text = std::get_if<std::string>(&piece)) all += *text;
  }
  return all;
}

void SetReportFont(ReportText& box, std::int32_t fontCode, std::int16_t size, std::int32_t color) {
  constexpr std::array<std::string_view, 3> kFontNames = {"Arial", "Verdana", "Courier New"};
  const bool hasName = fontCode >= 1 && fontCode <= 3;
  box.emplace_back(ReportFont{hasName ? kFontNames[static_cast<std::size_t>(fontCode - 1)] : "", size, color});
}

void AppendReportLine(ReportText& box, std::string& text, std::int16_t padWidth) {
  const std::size_t colon = text.find(':');
  if (padWidth != kNoPadding && colon != std::string::npos) {
    const std::int64_t leftLength = CharacterCount(std::string_view(text).substr(0, colon + 1));
    text.insert(colon + 1, Blanks(padWidth - leftLength) + "\t");
  }
  box.emplace_back(text + "\r");
}

std::string MoneyColumn(double value, std::int16_t width) {
  std::string amount = PatternText(value, 2);
  const std::size_t firstDigit = amount.front() == '-' ? 1 : 0;
  if (amount[firstDigit] == '0') amount.erase(firstDigit, 1);  // no leading zero
  return Blanks(width - static_cast<std::int64_t>(amount.size())) + amount;
}

}  // namespace quillon
