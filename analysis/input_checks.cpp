#include "analysis/input_checks.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "analysis/dealt_range.h"
#include "support/number_text.h"

namespace quillon {
namespace {

// One row of a table of complaints: the message, and the test of the inputs that brings it up.
template <class Inputs>
struct Complaint {
  std::string_view Title;
  std::string_view Text;
  bool (*Applies)(const Inputs&);
};

struct CallInputs {
  std::string RangeName;
  HandList Range;
  double Pot;
  double Call;
  std::string PotText;
  std::string CallText;
  NumberMarks Marks;
};

struct RaiseInputs {
  std::string RangeName;
  std::string CallingRangeName;
  double Pot;
  double Call;
  double Shove;
  std::string PotText;
  std::string CallText;
  std::string ShoveText;
  NumberMarks Marks;
};

struct EquityInputs {
  std::string RangeName;
  HandList Range;
};

// The order of the rows is the order of the tests.
constexpr std::array<Complaint<CallInputs>, 7> kCallComplaints = {{
    {"Missing Range", "Please choose a range for your opponent.",  //
     [](const CallInputs& in) { return in.RangeName.empty(); }},
    {"No Hands in Range", "No hands in your opponent's current range.",
     [](const CallInputs& in) { return TotalWeight(in.Range) == 0; }},
    {"Pot Size Error", "The pot size must be greater than the amount you have to call.",
     [](const CallInputs& in) { return in.Call >= in.Pot; }},
    {"Pot Size Error", "The pot size must be greater than zero.",  //
     [](const CallInputs& in) { return in.Pot <= 0; }},
    {"Call Size Error", "The amount to call must be greater than zero.",
     [](const CallInputs& in) { return in.Call <= 0; }},
    {"Pot Size Error", "The pot size contains non-numeric characters",
     [](const CallInputs& in) { return !IsNumericText(in.PotText, in.Marks); }},
    {"Call Size Error", "The call size contains non-numeric characters",
     [](const CallInputs& in) { return !IsNumericText(in.CallText, in.Marks); }},
}};

// The title "Pot Size" over the complaint about the shove is meant, and so is the wording that differs from row to row.
constexpr std::array<Complaint<RaiseInputs>, 8> kRaiseComplaints = {{
    {"Missing Range", "You must assign or create a range of hands for your opponent.",
     [](const RaiseInputs& in) { return in.RangeName.empty(); }},
    {"Missing Range", "You must assign or create a range of hands for your opponent to call with.",
     [](const RaiseInputs& in) { return in.CallingRangeName.empty(); }},
    {"Pot Size", "The pot size must be greater than zero.",  //
     [](const RaiseInputs& in) { return in.Pot <= 0; }},
    {"Call Amount", "The amount you must call cannot be a negative number.",
     [](const RaiseInputs& in) { return in.Call < 0; }},
    {"Pot Size", "The amount your opponent must call must be greater than zero.",
     [](const RaiseInputs& in) { return in.Shove <= 0; }},
    {"Pot Size", "The pot size contains non-numeric characters",
     [](const RaiseInputs& in) { return !IsNumericText(in.PotText, in.Marks); }},
    {"Call Size", "The call size contains illegal characters",
     [](const RaiseInputs& in) { return !in.CallText.empty() && !IsNumericText(in.CallText, in.Marks); }},
    {"Shove Size", "The amount your opponent must call when you shove contains illegal characters.",
     [](const RaiseInputs& in) { return !IsNumericText(in.ShoveText, in.Marks); }},
}};

constexpr std::array<Complaint<EquityInputs>, 2> kEquityComplaints = {{
    {"Select Range", "Please select a range for your opponent.",
     [](const EquityInputs& in) { return in.RangeName.empty(); }},
    {"Empty Range", "Your opponent's range is empty. Please select another range.",
     [](const EquityInputs& in) { return TotalWeight(in.Range) == 0; }},
}};

template <class Inputs, std::size_t Count>
bool Pass(const Inputs& inputs, const std::array<Complaint<Inputs>, Count>& complaints, MessageBoxes& messages) {
  const auto complaint =
      std::find_if(complaints.begin(), complaints.end(), [&](const auto& row) { return row.Applies(inputs); });
  if (complaint == complaints.end()) return true;
  messages.Show({std::string(complaint->Title), std::string(complaint->Text), MessageIcon::kExclamation});
  return false;
}

// Dealt around two cards that are in no deck, so that nothing is blocked.
HandList WholeRange(const ProgramFolder& folder, std::string_view name) {
  std::string rangeText;
  return DealRange(folder, name, "Xx", "Yy", rangeText);
}

}  // namespace

bool CheckCallInputs(AnalysisWindow& window, const ProgramFolder& folder) {
  const std::string rangeName = window.SelectedRange(kCallRangeList);
  const CallInputs inputs{rangeName,
                          WholeRange(folder, rangeName),
                          GetBoxValue(window, kCallPotBox),
                          GetBoxValue(window, kCallCallBox),
                          window.BoxText(kCallPotBox),
                          window.BoxText(kCallCallBox),
                          window.Marks()};
  return Pass(inputs, kCallComplaints, window.Messages());
}

bool CheckRaiseInputs(AnalysisWindow& window) {
  const RaiseInputs inputs{window.SelectedRange(kRaiseRangeList),
                           window.SelectedRange(kRaiseCallingRangeList),
                           GetBoxValue(window, kRaisePotBox),
                           GetBoxValue(window, kRaiseCallBox),
                           GetBoxValue(window, kRaiseShoveBox),
                           window.BoxText(kRaisePotBox),
                           window.BoxText(kRaiseCallBox),
                           window.BoxText(kRaiseShoveBox),
                           window.Marks()};
  return Pass(inputs, kRaiseComplaints, window.Messages());
}

bool CheckEquityInputs(AnalysisWindow& window, const ProgramFolder& folder) {
  const std::string rangeName = window.SelectedRange(kEquityRangeList);
  const EquityInputs inputs{rangeName, WholeRange(folder, rangeName)};
  return Pass(inputs, kEquityComplaints, window.Messages());
}

}  // namespace quillon
