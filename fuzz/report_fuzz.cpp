// Reports of arbitrary analyses: each is complete or fails as documented, changes nothing but the dropped hands of its
// state, and repeats identically.

#include <optional>
#include <string>

#include "fuzz/any_state.h"
#include "fuzz/fuzz_target.h"
#include "results/report.h"

namespace quillon {
namespace {

std::optional<std::string> Report(const Analysis& state, ReportForm form) {
  try {
    return PlainText(BuildReport(state, form));
  } catch (const RunTimeError& error) {
    Require(IsFaultOfAnalysis(error.Fault()), "a report fails only because of its numbers or ranges");
    return std::nullopt;
  }
}

// Forward, since the library's search from the end compares at every position.
std::size_t LastPlaceOf(std::string_view text, std::string_view wanted) {
  std::size_t last = std::string_view::npos;
  for (std::size_t place = text.find(wanted); place != std::string_view::npos; place = text.find(wanted, place + 1))
    last = place;
  return last;
}

void CheckPlain(const Analysis& state, std::string_view text) {
  // A range's name may contain anything, but not at this position.
  const std::size_t rows = LastPlaceOf(text, "Calculations");
  Require(rows != std::string_view::npos, "a report has its calculations");
  std::size_t place = text.find("\rAA\t", rows);
  Require(place != std::string_view::npos, "the first hand has its row");
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::size_t end = text.find('\r', place + 1);
    Require(end != std::string_view::npos, "a row ends");
    const std::string_view row = text.substr(place + 1, end - place - 1);
    Require(row.starts_with(HandLabel(index)) && row.substr(HandLabel(index).size()).starts_with('\t'),
            "every hand has its row, in its order");
    if (state.Mode != AnalysisMode::kEquityOnly)
      Require(row.find('=') != std::string_view::npos, "every hand has its formula");
    place = end;
  }
  Require(place + 1 == text.size(), "nothing follows the last row");
}

void CheckForum(const Analysis& state, const std::string& text) {
  Require(text.find("[/URL] - ") != std::string::npos, "a post names the program");
  if (state.Mode == AnalysisMode::kEquityOnly) {
    std::size_t place = 0;
    for (std::int16_t index = 0; index < kHandClassCount; ++index) {
      place = text.find(std::string(HandLabel(index)) + ": ", place);
      Require(place != std::string::npos, "every hand has its equity, in its order");
    }
  } else {
    Require(text.find("[b]Situation:[/b]") != std::string::npos, "a post has the situation");
  }
}

void CheckReport(const Analysis& state, ReportForm form, bool twice) {
  const std::optional<std::string> text = Report(state, form);
  if (!text) return;

  Require((state.Mode == AnalysisMode::kNone) == text->empty(), "there is a report of every analysis");
  if (twice) Require(Report(state, form) == text, "a second report is the same");
  if (state.Mode == AnalysisMode::kNone) return;
  if (form == ReportForm::kPlainText)
    CheckPlain(state, *text);
  else
    CheckForum(state, *text);
}

void CheckHandLine(const Analysis& state, std::string_view hand) {
  ReportText line;
  try {
    AddSpecificHand(line, state, hand);
  } catch (const RunTimeError& error) {
    Require(IsFaultOfAnalysis(error.Fault()), "a hand's line fails only because of its numbers");
    return;
  }
  const bool none = hand == "None" || state.Mode == AnalysisMode::kNone;
  Require(none == line.empty(), "every hand has a line");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const ChecksOfRun checks(input, 3);
  const std::size_t hand = input.TakeBelow(kHandClassCount + 1);
  const Analysis state = AnyState(input);

  if (checks.Has(0)) CheckReport(state, ReportForm::kPlainText, checks.All());
  if (checks.Has(1)) CheckReport(state, ReportForm::kForum, checks.All());
  if (checks.Has(2))
    CheckHandLine(state, hand == kHandClassCount ? "None" : HandLabel(static_cast<std::int16_t>(hand)));
}

}  // namespace quillon
