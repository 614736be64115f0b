#include "study/sweep_figure.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "hand/hand_classes.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

constexpr double kMostNumber = std::numeric_limits<double>::max();

double Finite(double value) {
  return std::clamp(value, -kMostNumber, kMostNumber);
}

// Adds room above and below, so that no line lies on the frame.
void Widen(FigureScale& scale, double part) {
  const double room = scale.High > scale.Low ? scale.High * part - scale.Low * part : 1;
  scale.Low = Finite(scale.Low - room);
  scale.High = Finite(scale.High + room);
}

void AddShare(Figure& figure, std::span<const SweepRow> rows) {
  figure.Up = {.Title = "Profitable hands, in percent of all", .Low = 0, .High = 100, .Unit = "%"};
  FigureLine& line = figure.Lines.emplace_back();
  for (const SweepRow& row : rows)
    line.Values.push_back(PercentOf(row.ProfitableCombos, kConcreteHandCount, 2));
}

void AddValues(Figure& figure, std::span<const std::string> hands, std::span<const SweepRow> rows) {
  figure.Up = {.Title = "Expected value, in the unit of the amounts", .Unit = "chip"};
  for (std::size_t i = 0; i < hands.size(); ++i) {
    FigureLine& line = figure.Lines.emplace_back(FigureLine{.Name = hands[i]});
    for (const SweepRow& row : rows) {
      const double value = row.ExpectedValues.at(i);
      line.Values.push_back(value);
      figure.Up.Low = std::min(figure.Up.Low, value);
      figure.Up.High = std::max(figure.Up.High, value);
    }
  }
  Widen(figure.Up, 0.05);
}

}  // namespace

Figure SweepFigure(const SweepLabels& labels, std::span<const SweepRow> rows) {
  Figure figure{.Title = labels.Title,
                .Across = {.Title = labels.Across,
                           .Low = LeadingNumber(rows.front().At),
                           .High = LeadingNumber(rows.back().At),
                           .Unit = "chip"},
                .Up = {},
                .Places = {},
                .Lines = {}};
  for (const SweepRow& row : rows)
    figure.Places.push_back(row.At);
  if (labels.Hands.empty()) {
    AddShare(figure, rows);
  } else {
    AddValues(figure, labels.Hands, rows);
  }
  return figure;
}

}  // namespace quillon
