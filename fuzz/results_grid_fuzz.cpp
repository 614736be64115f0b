// The grid and the hover panel of arbitrary analyses: green is profit, red is loss, and each cell shows its own hand.

#include <cstddef>
#include <optional>

#include "fuzz/any_state.h"
#include "fuzz/fuzz_target.h"
#include "ranges/card_grid.h"
#include "results/hover_panel.h"
#include "results/results_grid.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/results_tables.h"

namespace quillon {
namespace {

void CheckColors(const Analysis& state) {
  const CellColors colors = GridColors(state);
  if (state.Mode == AnalysisMode::kEquityOnly) return;
  const plain::ResultsTable table(state.HandInfo);
  for (std::size_t index = 0; index < colors.size(); ++index) {
    const Rgb color = colors[index];
    const bool profitable = table.Cell(plain::Labels()[index], 1) >= 0;
    Require(color.Blue == (profitable ? color.Red : color.Green), "a cell has one colour");
    Require(profitable ? color.Green >= color.Red : color.Red >= color.Green, "green is profit and red is loss");
  }
}

void CheckTexts(const Analysis& state, bool twice) {
  try {
    const GridTexts texts = MakeGridTexts(state);
    Require(texts.LegendVisible == (state.Mode != AnalysisMode::kEquityOnly), "equities have no legend");
    if (twice) Require(texts == MakeGridTexts(state), "the texts are the same again");
  } catch (const RunTimeError& error) {
    Require(IsFaultOfAnalysis(error.Fault()), "texts fail only because of their numbers or ranges");
  }
}

void CheckHover(const Analysis& state, std::int16_t index) {
  try {
    const std::optional<HoverTexts> texts = MakeHoverTexts(index, state);
    Require(texts.has_value() == (!state.HandInfo.empty() && state.Mode != AnalysisMode::kNone),
            "the panel is for results");
    if (!texts) return;
    Require(texts->Hand == HandLabel(index), "the panel shows the cell's hand");
    Require(!texts->Equity.empty() && !texts->Advice.empty(), "the panel has its lines");
    Require(texts->Value.has_value() == (state.Mode != AnalysisMode::kEquityOnly), "equities have no value");
  } catch (const RunTimeError& error) {
    Require(IsFaultOfAnalysis(error.Fault()), "the panel fails only because of its numbers");
  }
  const CardGridPlaces grid = PlaceCardGrid(200, 800, {405, 405});
  const TwipRect square = grid.Cells.at(static_cast<std::size_t>(index)).Square;
  const TwipRect place = HoverPlace({0, 0, 2000, 1500}, square, {0, 0, 9000, 9000});
  Require(place.Left >= 0 && place.Left + place.Width <= 9000, "the panel stays on the screen");
  Require(place.Top >= 0 && place.Top + place.Height <= 9000, "the panel stays on the screen");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const ChecksOfRun checks(input, 3);
  const auto index = static_cast<std::int16_t>(input.TakeBelow(kHandClassCount));
  const Analysis state = AnyState(input);
  if (checks.Has(0)) CheckColors(state);
  if (checks.Has(1)) CheckTexts(state, checks.All());
  if (checks.Has(2)) CheckHover(state, index);
}

}  // namespace quillon
