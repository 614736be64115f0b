// The grid and the hover panel of analyses that never ran: green is profit, red is loss, and each cell shows its own
// hand.

#include <array>
#include <string>

#include "fuzz/any_state.h"
#include "fuzz/fuzz_target.h"
#include "results/hover_panel.h"
#include "results/results_grid.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/results_tables.h"

namespace quillon {
namespace {

class Panel final : public HoverWindow {
 public:
  void SetHoverPicture(HoverPicture picture) override { Picture = picture; }
  [[nodiscard]] std::string HoverHand() const override { return Hand; }
  void SetHoverHand(std::string_view caption) override { Hand = caption; }
  void SetHoverEquityTitle(std::string_view /*caption*/) override {}
  void SetHoverEquity(std::string_view caption) override { Equity = caption; }
  void SetHoverValue(std::string_view caption) override { Value = caption; }
  void SetHoverReturn(std::string_view caption) override { Return = caption; }
  void SetHoverValueLinesVisible(bool /*visible*/) override {}
  void SetHoverFoldShare(std::string_view /*caption*/) override {}
  void SetHoverFoldLineVisible(bool /*visible*/) override {}
  void SetHoverAdvice(std::string_view caption) override { Advice = caption; }
  [[nodiscard]] TwipRect HoverRect() const override { return {0, 0, 2000, 1500}; }
  void SetHoverRect(const TwipRect& rect) override { Place = rect; }
  [[nodiscard]] TwipRect SquareRect(std::int16_t index) const override {
    const int column = index % 13;
    const int row = index / 13;
    return {static_cast<float>(300 + column * 465), static_cast<float>(900 + row * 465), 465, 465};
  }
  [[nodiscard]] TwipRect GridScreenRect() const override { return {0, 0, 9000, 9000}; }
  void ShowHover() override { Shown = true; }

  HoverPicture Picture = HoverPicture::kBlue;
  std::string Hand;
  std::string Equity;
  std::string Value;
  std::string Return;
  std::string Advice;
  TwipRect Place;
  bool Shown = false;
};

void CheckColors(const Analysis& state) {
  const std::array<Rgb, kHandClassCount> colors = GridColors(state);
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
    Require(IsFaultOfAnalysis(error.Fault()), "texts fail for their numbers or their ranges");
  }
}

void CheckHover(const Analysis& state, std::int16_t index) {
  Panel panel;
  panel.Hand = "none";
  try {
    ShowHandHover(index, state, panel);
  } catch (const RunTimeError& error) {
    Require(IsFaultOfAnalysis(error.Fault()), "the panel fails for its numbers");
    return;
  }
  Require(panel.Shown == !state.HandInfo.empty(), "the panel is for results");
  if (!panel.Shown || state.Mode == AnalysisMode::kNone) return;
  Require(panel.Hand == HandLabel(index), "the panel shows the cell's hand");
  Require(!panel.Equity.empty() && !panel.Advice.empty(), "the panel has its lines");
  Require(panel.Place.Left + panel.Place.Width <= 9000 && panel.Place.Top + panel.Place.Height <= 9000,
          "the panel stays on the screen");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  const ChecksOfRun checks(input, 3);
  const auto index = static_cast<std::int16_t>(input.TakeBelow(kHandClassCount));
  const Analysis state = AnyState(input);
  if (checks.Has(0)) CheckColors(state);
  if (checks.Has(1)) CheckTexts(state, checks.All());
  if (checks.Has(2)) CheckHover(state, index);
  return 0;
}
