#include "tools/analysis_output.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

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

std::string ReportOutput(ReportForm form, AnalysisState& state, std::span<const std::string> hands) {
  TextScreen screen(form);
  BuildReport(screen, state);
  for (const std::string& hand : hands)
    AddSpecificHand(screen, state, hand);
  return UnixLineEnds(screen.Text());
}

bool HasAmounts(const AnalysisState& state) {
  return state.Mode != AnalysisMode::kEquityOnly;
}

bool IsRaise(const AnalysisState& state) {
  return state.Mode == AnalysisMode::kPreflopRaise;
}

// What the scenario does not have is left out: a value where only equity was asked for, a fold share where nobody
// folds.
struct HandRow {
  std::string_view hand;
  std::int16_t combos;
  std::optional<double> expectedValue;
  double equity;
  std::optional<double> foldShare;
  std::string color;
};

std::array<HandRow, kHandClassCount> HandRows(const AnalysisState& state) {
  const std::array<Rgb, kHandClassCount> colors = GridColors(state);
  std::array<HandRow, kHandClassCount> rows{};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    HandRow& row = rows[i];
    row.hand = HandLabel(static_cast<std::int16_t>(i));
    row.combos = ComboCount(row.hand);
    row.equity = GetHandInfo(state.HandInfo, row.hand, kEquityColumn);
    row.color = ColorText(colors[i]);
    if (HasAmounts(state)) row.expectedValue = GetHandInfo(state.HandInfo, row.hand, kExpectedValueColumn);
    if (IsRaise(state)) row.foldShare = GetHandInfo(state.HandInfo, row.hand, kFoldShareColumn);
  }
  return rows;
}

std::string TextOf(std::optional<double> value) {
  return value ? NumberText(*value) : std::string();
}

std::string CsvOutput(const AnalysisState& state) {
  std::string text = "hand,combos,ev,equity,fold,colour\n";
  for (const HandRow& row : HandRows(state)) {
    text += Joined({row.hand, ",", std::to_string(row.combos), ",", TextOf(row.expectedValue), ",",
                    NumberText(row.equity), ",", TextOf(row.foldShare), ",", row.color, "\n"});
  }
  return text;
}

std::string_view ModeName(AnalysisMode mode) {
  switch (mode) {
    case AnalysisMode::kPreflopCall:
      return "call";
    case AnalysisMode::kPreflopRaise:
      return "raise";
    case AnalysisMode::kEquityOnly:
      return "equity";
    case AnalysisMode::kNone:
      break;
  }
  return "none";
}

template <typename Value>
Json ValueIf(bool present, Value&& value) {
  return present ? Json(std::forward<Value>(value)) : Json();
}

Json JsonOf(std::optional<double> value) {
  return value ? Json(*value) : Json();
}

Json HandJson(const HandRow& row) {
  return {{"hand", row.hand},     {"combos", row.combos},          {"ev", JsonOf(row.expectedValue)},
          {"equity", row.equity}, {"fold", JsonOf(row.foldShare)}, {"colour", row.color}};
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

std::string JsonOutput(const AnalysisState& state) {
  const bool amounts = HasAmounts(state);
  const bool raise = IsRaise(state);
  const std::int16_t column = amounts ? kExpectedValueColumn : kEquityColumn;
  const std::string best = BestHand(state.HandInfo, column);
  const std::string worst = WorstHand(state.HandInfo, column);
  const GridTexts texts = MakeGridTexts(state);

  Json hands = Json::array();
  for (const HandRow& row : HandRows(state))
    hands.push_back(HandJson(row));

  const Json object = {{"mode", ModeName(state.Mode)},
                       {"pot", ValueIf(amounts, state.PotSize)},
                       {"call", ValueIf(amounts, state.CallAmount)},
                       {"shove", ValueIf(raise, state.ShoveAmount)},
                       {"range", state.RangeName},
                       {"calling_range", ValueIf(raise, state.CallingRangeName)},
                       {"range_summary", RangeSummary(state.RangeText)},
                       {"calling_range_summary", raise ? Json(RangeSummary(state.CallingRangeText)) : Json()},
                       {"dropped_hands", ValueIf(raise, DroppedHandsJson(state.DroppedHands))},
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
  const auto* const found = std::find(kOutputFormatNames.begin(), kOutputFormatNames.end(), name);
  if (found == kOutputFormatNames.end()) return OutputFormat::kPlain;
  return static_cast<OutputFormat>(found - kOutputFormatNames.begin());
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

std::string AnalysisOutput(OutputFormat format, AnalysisState& state, std::span<const std::string> hands) {
  switch (format) {
    case OutputFormat::kPlain:
      return ReportOutput(ReportForm::kPlainText, state, {});
    case OutputFormat::kForum:
      return ReportOutput(ReportForm::kForum, state, hands);
    case OutputFormat::kTable:
      return state.HandInfo;
    case OutputFormat::kJson:
      return JsonOutput(state);
    case OutputFormat::kCsv:
      return CsvOutput(state);
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
