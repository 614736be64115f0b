#include "tools/analysis_output.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "results/hand_line.h"
#include "results/report.h"
#include "results/results_grid.h"
#include "support/joined_text.h"
#include "support/number_text.h"

namespace quillon {
namespace {

using Json = nlohmann::ordered_json;

// A report screen that keeps the text alone; a terminal has no fonts.
class TextScreen final : public ReportScreen {
 public:
  explicit TextScreen(ReportForm form) : form_(form) {}

  [[nodiscard]] const std::string& Text() const { return text_; }

  [[nodiscard]] ReportForm SelectedForm() const override { return form_; }
  void SetSpecificHandVisible(bool /*visible*/) override {}
  void SetText(std::string_view text) override { text_ = text; }
  void SetFontName(std::string_view /*name*/) override {}
  void SetFontSize(std::int16_t /*size*/) override {}
  void SetFontColor(std::int32_t /*color*/) override {}
  void InsertText(std::string_view text) override { text_ += text; }

 private:
  ReportForm form_;
  std::string text_;
};

std::string ReportOutput(ReportForm form, const Analysis& analysis, std::span<const std::string> hands) {
  TextScreen screen(form);
  BuildReport(screen, analysis);
  for (const std::string& hand : hands)
    AddSpecificHand(screen, analysis, hand);
  return UnixLineEnds(screen.Text());
}

// A class with the colour of its cell.
using ShownHand = std::pair<HandResult, std::string>;

std::vector<ShownHand> ShownHands(const Analysis& analysis) {
  const std::array<Rgb, kHandClassCount> colors = GridColors(analysis);
  std::vector<ShownHand> hands;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    hands.emplace_back(GetHandResult(analysis.HandInfo, HandLabel(index)),
                       ColorText(colors[static_cast<std::size_t>(index)]));
  }
  return hands;
}

// What the scenario does not have is left out: a value where only equity was asked for, a fold share where nobody
// folds.
std::string CsvOutput(const Analysis& analysis) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  std::string text = "hand,combos,ev,equity,fold,colour\n";
  for (const auto& [hand, color] : ShownHands(analysis)) {
    const std::string value = scenario.HasExpectedValue() ? NumberText(hand.ExpectedValue) : "";
    const std::string fold = scenario.HasCallingRange ? NumberText(hand.FoldShare) : "";
    text += Joined({hand.Label, ",", std::to_string(hand.Combos), ",", value, ",", NumberText(hand.Equity), ",", fold,
                    ",", color, "\n"});
  }
  return text;
}

template <typename Value>
Json ValueIf(bool present, Value&& value) {
  return present ? Json(std::forward<Value>(value)) : Json();
}

Json HandJson(const Scenario& scenario, const HandResult& hand, const std::string& color) {
  return {{"hand", hand.Label},
          {"combos", hand.Combos},
          {"ev", ValueIf(scenario.HasExpectedValue(), hand.ExpectedValue)},
          {"equity", hand.Equity},
          {"fold", ValueIf(scenario.HasCallingRange, hand.FoldShare)},
          {"colour", color}};
}

// The classes that the report names, each a text such as "JJ (½'d)".
Json DroppedHandsJson(std::string_view text) {
  constexpr std::string_view kSeparator = ", ";
  Json hands = Json::array();
  while (!text.empty()) {
    const std::string_view hand = text.substr(0, text.find(kSeparator));
    hands.push_back(hand);
    text.remove_prefix(std::min(hand.size() + kSeparator.size(), text.size()));
  }
  return hands;
}

std::string JsonOutput(const Analysis& analysis) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  const bool called = scenario.HasCallingRange;
  const std::int16_t column = ShownColumn(analysis);
  const std::string best = BestHand(analysis.HandInfo, column);
  const std::string worst = WorstHand(analysis.HandInfo, column);
  const GridTexts texts = MakeGridTexts(analysis);

  Json hands = Json::array();
  for (const auto& [hand, color] : ShownHands(analysis))
    hands.push_back(HandJson(scenario, hand, color));

  const Json object = {{"mode", scenario.Command},
                       {"pot", ValueIf(scenario.AmountCount > 0, analysis.PotSize)},
                       {"call", ValueIf(scenario.AmountCount > 1, analysis.CallAmount)},
                       {"shove", ValueIf(scenario.AmountCount > 2, analysis.ShoveAmount)},
                       {"range", analysis.RangeName},
                       {"calling_range", ValueIf(called, analysis.CallingRangeName)},
                       {"range_summary", RangeSummary(analysis.RangeText)},
                       {"calling_range_summary", called ? Json(RangeSummary(analysis.CallingRangeText)) : Json()},
                       {"dropped_hands", ValueIf(called, DroppedHandsJson(analysis.DroppedHands))},
                       {"title", texts.Title},
                       {"situation", UnixLineEnds(texts.HandInfo)},
                       {"explanation", UnixLineEnds(texts.Results)},
                       {"best", ValueIf(!best.empty(), best)},
                       {"worst", ValueIf(!worst.empty(), worst)},
                       {"hands", hands}};
  // A name from the command line may be no valid UTF-8; it must not cost the user the analysis.
  return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

// Black on light cells, white on dark ones. Source of the weights: ITU-R BT.601, luma.
bool ReadsBetterInWhite(Rgb color) {
  constexpr int kHalfLuma = 128 * 1000;
  return 299 * color.Red + 587 * color.Green + 114 * color.Blue < kHalfLuma;
}

std::string Channels(Rgb color) {
  return std::to_string(color.Red) + ";" + std::to_string(color.Green) + ";" + std::to_string(color.Blue);
}

}  // namespace

OutputFormat OutputFormatOf(std::string_view name) {
  const auto* const found = std::find_if(kAnalysisFormats.begin(), kAnalysisFormats.end(),
                                         [name](const OutputFormatRow& row) { return row.Name == name; });
  return found == kAnalysisFormats.end() ? OutputFormat::kPlain : found->Format;
}

std::string UnixLineEnds(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      result += text[i];
      continue;
    }
    result += '\n';
    if (text.substr(i + 1).starts_with('\n')) ++i;
  }
  return result;
}

std::string AnalysisOutput(OutputFormat format, const Analysis& analysis, std::span<const std::string> hands) {
  switch (format) {
    case OutputFormat::kPlain:
      return ReportOutput(ReportForm::kPlainText, analysis, {});
    case OutputFormat::kForum:
      return ReportOutput(ReportForm::kForum, analysis, hands);
    case OutputFormat::kTable:
      return analysis.HandInfo;
    case OutputFormat::kJson:
      return JsonOutput(analysis);
    case OutputFormat::kCsv:
      return CsvOutput(analysis);
  }
  return {};
}

std::string TerminalGrid(const std::array<Rgb, 169>& colors) {
  std::string text;
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const std::string_view label = HandLabel(static_cast<std::int16_t>(i));
    text += "\x1b[48;2;" + Channels(colors[i]) + "m";
    text += ReadsBetterInWhite(colors[i]) ? "\x1b[38;2;255;255;255m " : "\x1b[38;2;0;0;0m ";
    text.append(label).append(label.size() == 2 ? "  " : " ").append("\x1b[0m");
    if (i % kRankCount == kRankCount - 1U) text += "\n";
  }
  return text;
}

}  // namespace quillon
