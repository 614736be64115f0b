#include "study/sweep.h"

#include <algorithm>
#include <charconv>

#include "analysis/scenarios.h"
#include "support/number_text.h"

namespace quillon {
namespace {

constexpr std::size_t kMostDigits = 15;
constexpr std::size_t kParts = 3;

struct Decimal {
  std::int64_t digits;
  int decimals;
};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::optional<Decimal> ReadDecimal(std::string_view text) {
  const std::size_t point = std::min(text.find('.'), text.size());
  std::string digits(text.substr(0, point));
  if (point < text.size()) digits += text.substr(point + 1);
  if (digits.empty() || digits.size() > kMostDigits || !std::ranges::all_of(digits, IsDigit)) return std::nullopt;
  Decimal decimal{.digits = 0, .decimals = static_cast<int>(digits.size() - point)};
  std::from_chars(digits.data(), digits.data() + digits.size(), decimal.digits);
  return decimal;
}

// The digits of a number with this many decimals; nothing if a 64-bit integer cannot hold them.
std::optional<std::int64_t> Scaled(const Decimal& decimal, int decimals) {
  constexpr std::int64_t kMost = 1'000'000'000'000'000'000;
  std::int64_t digits = decimal.digits;
  for (int i = decimal.decimals; i < decimals; ++i) {
    if (digits >= kMost / 10) return std::nullopt;
    digits *= 10;
  }
  return digits;
}

using AllFigures = std::array<ClassFigures, kHandClassCount>;

AllFigures FiguresOf(const Scenario& scenario, const RangeNumbers& ranges) {
  AllFigures figures;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    figures[static_cast<std::size_t>(index)] = ranges.FiguresOf(scenario, index);
  return figures;
}

// A table cell keeps only 15 digits. The sign is taken before that, so only displayed values go through the text.
double AsTableHolds(double value) {
  return LeadingNumber(NumberText(value));
}

SweepRow RowOf(const SweepQuestion& question, const Amounts& amounts, const AllFigures& figures, std::string at) {
  const Scenario& scenario = ScenarioOf(question.Mode);
  SweepRow row;
  row.At = std::move(at);
  const auto resultOf = [&](std::int16_t index) {
    return ResultOf(scenario, index, figures[static_cast<std::size_t>(index)], amounts);
  };
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const HandResult result = resultOf(index);
    if (result.ExpectedValue >= 0) row.ProfitableCombos += result.Combos;
  }
  for (const std::int16_t index : question.Hands)
    row.ExpectedValues.push_back(AsTableHolds(resultOf(index).ExpectedValue));
  return row;
}

}  // namespace

std::variant<Steps, std::string> Steps::Read(std::string_view text) {
  const std::size_t one = text.find(':');
  const std::size_t two = text.find(':', one + 1);
  const bool three = two != std::string_view::npos && text.find(':', two + 1) == std::string_view::npos;
  if (!three) return "steps are written FROM:TO:STEP, such as 5:20:0.5";
  return Between(text.substr(0, one), text.substr(one + 1, two - one - 1), text.substr(two + 1));
}

std::variant<Steps, std::string> Steps::Between(std::string_view from, std::string_view to, std::string_view step) {
  const std::array<std::string_view, kParts> parts = {from, to, step};
  std::array<Decimal, kParts> decimals{};
  for (std::size_t i = 0; i < kParts; ++i) {
    const std::optional<Decimal> decimal = ReadDecimal(parts[i]);
    if (!decimal) return "\"" + std::string(parts[i]) + "\" is not a plain decimal of at most 15 digits";
    decimals[i] = *decimal;
  }
  const int places = std::max({decimals[0].decimals, decimals[1].decimals, decimals[2].decimals});
  std::array<std::int64_t, kParts> scaled{};
  for (std::size_t i = 0; i < kParts; ++i) {
    const std::optional<std::int64_t> digits = Scaled(decimals[i], places);
    if (!digits) return "the numbers have too many digits, taken together, to be exact";
    scaled[i] = *digits;
  }
  const auto [first, last, width] = scaled;
  if (width == 0) return "the step must be above 0";
  if (last < first) return "the end may not be below the start";
  const std::int64_t count = (last - first) / width + 1;
  if (count > kMostSteps) return "there may be at most " + std::to_string(kMostSteps) + " steps";
  return Steps(first, width, count, places);
}

std::string Steps::Text(std::int64_t step) const {
  std::string digits = std::to_string(from_ + step * step_);
  if (decimals_ == 0) return digits;
  const auto decimals = static_cast<std::size_t>(decimals_);
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  digits.insert(digits.size() - decimals, ".");
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return digits;
}

double ProfitablePercent(const SweepRow& row) {
  return 100.0 * row.ProfitableCombos / kConcreteHandCount;
}

std::string SweepCsv(std::string_view what, std::span<const std::string> hands, std::span<const SweepRow> rows) {
  std::string text = std::string(what) + ",profitable";
  for (const std::string& hand : hands)
    text += "," + hand;
  for (const SweepRow& row : rows) {
    text += "\n" + row.At + "," + NumberText(ProfitablePercent(row));
    for (const double value : row.ExpectedValues)
      text += "," + NumberText(value);
  }
  return text + "\n";
}

SweepRow SweepRowAt(const SweepQuestion& question, const RangeNumbers& ranges, std::string at) {
  return RowOf(question, question.Fixed, FiguresOf(ScenarioOf(question.Mode), ranges), std::move(at));
}

std::vector<SweepRow> SweepAmount(const SweepQuestion& question, const RangeNumbers& ranges, double Amounts::*amount,
                                  const Steps& steps) {
  const AllFigures figures = FiguresOf(ScenarioOf(question.Mode), ranges);
  std::vector<SweepRow> rows;
  Amounts amounts = question.Fixed;
  for (std::int64_t step = 0; step < steps.Count(); ++step) {
    std::string at = steps.Text(step);
    amounts.*amount = LeadingNumber(at);
    rows.push_back(RowOf(question, amounts, figures, std::move(at)));
  }
  return rows;
}

}  // namespace quillon
