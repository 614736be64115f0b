#include "tools/analysis_output.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <vector>

#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "results/hand_line.h"
#include "results/report.h"
#include "results/results_grid.h"
#include "support/number_text.h"

namespace quillon {
namespace {

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

struct HandRow {
  std::string_view hand;
  std::int16_t combos;
  double expectedValue;
  double equity;
  double foldShare;
  std::string color;
};

std::array<HandRow, kHandClassCount> HandRows(const AnalysisState& state) {
  const std::array<Rgb, kHandClassCount> colors = GridColors(state);
  std::array<HandRow, kHandClassCount> rows{};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::string_view hand = HandLabel(static_cast<std::int16_t>(i));
    rows[i] = {hand,
               ComboCount(hand),
               GetHandInfo(state.HandInfo, hand, kExpectedValueColumn),
               GetHandInfo(state.HandInfo, hand, kEquityColumn),
               GetHandInfo(state.HandInfo, hand, kFoldShareColumn),
               ColorText(colors[i])};
  }
  return rows;
}

std::string CsvOutput(const AnalysisState& state) {
  std::string text = "hand,combos,ev,equity,fold,colour\n";
  for (const HandRow& row : HandRows(state)) {
    text.append(row.hand).append(",").append(std::to_string(row.combos)).append(",");
    text.append(NumberText(row.expectedValue)).append(",").append(NumberText(row.equity)).append(",");
    text.append(NumberText(row.foldShare)).append(",").append(row.color).append("\n");
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

// Reads back as the same number. The general form need not: the first 15 digits of the largest double lie beyond it.
std::string JsonNumber(double value) {
  return nlohmann::json(value).dump();
}

// A name from the command line may be no valid UTF-8; it must not cost the user the analysis.
std::string JsonString(std::string_view text) {
  return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string ValueIf(bool present, const std::string& value) {
  return present ? value : "null";
}

std::string Joined(std::span<const std::string> pieces, std::string_view separator) {
  std::string text;
  for (const std::string& piece : pieces)
    text.append(text.empty() ? "" : separator).append(piece);
  return text;
}

struct JsonMember {
  std::string_view key;
  std::string value;
};

std::string JsonMembers(std::span<const JsonMember> members, std::string_view separator) {
  std::vector<std::string> pieces;
  for (const JsonMember& member : members)
    pieces.push_back(JsonString(member.key) + ": " + member.value);
  return Joined(pieces, separator);
}

std::string HandJson(const HandRow& row) {
  const std::array<JsonMember, 6> members = {{{"hand", JsonString(row.hand)},
                                              {"combos", std::to_string(row.combos)},
                                              {"ev", JsonNumber(row.expectedValue)},
                                              {"equity", JsonNumber(row.equity)},
                                              {"fold", JsonNumber(row.foldShare)},
                                              {"colour", JsonString(row.color)}}};
  return "{" + JsonMembers(members, ", ") + "}";
}

std::string HandsJson(const AnalysisState& state) {
  std::vector<std::string> hands;
  for (const HandRow& row : HandRows(state))
    hands.push_back(HandJson(row));
  return "[\n    " + Joined(hands, ",\n    ") + "\n  ]";
}

std::string JsonOutput(const AnalysisState& state) {
  const bool amounts = state.Mode != AnalysisMode::kEquityOnly;
  const bool raise = state.Mode == AnalysisMode::kPreflopRaise;
  const std::int16_t column = amounts ? kExpectedValueColumn : kEquityColumn;
  const std::string best = BestHand(state.HandInfo, column);
  const std::string worst = WorstHand(state.HandInfo, column);
  const GridTexts texts = MakeGridTexts(state);

  const std::array<JsonMember, 15> members = {
      {{"mode", JsonString(ModeName(state.Mode))},
       {"pot", ValueIf(amounts, JsonNumber(state.PotSize))},
       {"call", ValueIf(amounts, JsonNumber(state.CallAmount))},
       {"shove", ValueIf(raise, JsonNumber(state.ShoveAmount))},
       {"range", JsonString(state.RangeName)},
       {"calling_range", ValueIf(raise, JsonString(state.CallingRangeName))},
       {"range_summary", JsonString(RangeSummary(state.RangeText))},
       {"calling_range_summary", raise ? JsonString(RangeSummary(state.CallingRangeText)) : "null"},
       {"dropped_hands", ValueIf(raise, JsonString(state.DroppedHands))},
       {"title", JsonString(texts.Title)},
       {"situation", JsonString(texts.HandInfo)},
       {"explanation", JsonString(texts.Results)},
       {"best", ValueIf(!best.empty(), JsonString(best))},
       {"worst", ValueIf(!worst.empty(), JsonString(worst))},
       {"hands", HandsJson(state)}}};
  return "{\n  " + JsonMembers(members, ",\n  ") + "\n}\n";
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
