// Reports of analyses that never ran: each is whole or fails as told, only the dropped hands of its state change, and a
// second one is the same.

#include <optional>
#include <string>

#include "fuzz/any_state.h"
#include "fuzz/fuzz_target.h"
#include "results/hand_line.h"
#include "results/recording_report_screen.h"
#include "results/report.h"

namespace quillon {
namespace {

std::optional<std::string> Report(AnalysisState& state, ReportForm form) {
  RecordingReportScreen screen;
  screen.Form = form;
  screen.Text = "an older report";
  try {
    BuildReport(screen, state);
  } catch (const RunTimeError& error) {
    Require(IsFaultOfAnalysis(error.Fault()), "a report fails for its numbers or its ranges");
    return std::nullopt;
  }
  Require(screen.SpecificHandVisible == (form == ReportForm::kForum), "single hands are for the forum form");
  return screen.Text;
}

std::size_t CountOf(std::string_view text, std::string_view wanted) {
  std::size_t count = 0;
  for (std::size_t place = text.find(wanted); place != std::string_view::npos;
       place = text.find(wanted, place + wanted.size()))
    ++count;
  return count;
}

void CheckPlain(const AnalysisState& state, const std::string& text) {
  // A name of a range may hold anything, but not in this place.
  const std::size_t rows = text.rfind("Calculations");
  Require(rows != std::string::npos, "a report has its calculations");
  std::size_t place = rows;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    place = text.find("\r" + std::string(HandLabel(index)) + "\t", place);
    Require(place != std::string::npos, "every hand has its row, in its order");
  }
  if (state.Mode != AnalysisMode::kPreflopCall) return;
  Require(CountOf(text.substr(rows), "\t=") == kHandClassCount, "every hand has its formula");
}

void CheckForum(const AnalysisState& state, const std::string& text) {
  Require(text.find("[/URL] - ") != std::string::npos, "a post names the program");
  if (state.Mode == AnalysisMode::kEquityOnly) {
    for (std::int16_t index = 0; index < kHandClassCount; ++index)
      Require(text.find(std::string(HandLabel(index)) + ": ") != std::string::npos, "every hand has its equity");
  } else {
    Require(text.find("[b]Situation:[/b]") != std::string::npos, "a post tells the situation");
  }
}

void CheckReport(const AnalysisState& state, ReportForm form, bool twice) {
  AnalysisState used = state;
  const std::optional<std::string> text = Report(used, form);
  Require(form == ReportForm::kPlainText || used.DroppedHands == state.DroppedHands, "a post changes nothing");
  Require(used.HandInfo == state.HandInfo && used.RangeText == state.RangeText, "the results stay");
  if (!text) return;

  Require((state.Mode == AnalysisMode::kNone) == text->empty(), "there is a report of every analysis");
  if (twice) {
    AnalysisState again = state;
    Require(Report(again, form) == text, "a second report is the same");
  }
  if (state.Mode == AnalysisMode::kNone) return;
  if (form == ReportForm::kPlainText)
    CheckPlain(state, *text);
  else
    CheckForum(state, *text);
}

void CheckHandLine(const AnalysisState& state, std::string_view hand) {
  RecordingReportScreen screen;
  screen.Text = "before after";
  screen.InsertionPoint = 6;
  try {
    AddSpecificHand(screen, state, hand);
  } catch (const RunTimeError& error) {
    Require(IsFaultOfAnalysis(error.Fault()), "a hand's line fails for its numbers");
    return;
  }
  Require(screen.Text.starts_with("before") && screen.Text.ends_with(" after"), "a line goes in where the caret is");
  const bool none = hand == "None" || state.Mode == AnalysisMode::kNone;
  Require(none == (screen.Text == "before after"), "every hand has a line");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  const ChecksOfRun checks(input, 3);
  const std::size_t hand = input.TakeBelow(kHandClassCount + 1);
  const AnalysisState state = AnyState(input);

  if (checks.Has(0)) CheckReport(state, ReportForm::kPlainText, checks.All());
  if (checks.Has(1)) CheckReport(state, ReportForm::kForum, checks.All());
  if (checks.Has(2))
    CheckHandLine(state, hand == kHandClassCount ? "None" : HandLabel(static_cast<std::int16_t>(hand)));
  return 0;
}
