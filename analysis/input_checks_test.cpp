#include "analysis/input_checks.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "testing/fault_of.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

const std::optional<Complaint> kNone;

struct Row {
  const char* name;
  EnteredSituation entered;
  std::optional<Complaint> complaint;
};

class InputChecks : public testing::Test {
 public:
  void SetUp() override {
    ranges_.Save("Full", EveryHandAt(1));
    ranges_.Save("Half Aces", RangeWith({{"AA", 0.5}}));
    ranges_.Save("Nothing", EveryHandAt(0));
    ranges_.Save("Hollow", "");
    ranges_.Save("Scribble", "no weights here");
  }

  void ExpectRows(AnalysisMode mode, const std::vector<Row>& rows) const {
    for (const Row& row : rows)
      EXPECT_EQ(CheckInputs(mode, row.entered, ranges_.Folder()), row.complaint) << row.name;
  }

  TemporaryProgram ranges_;
};

const Complaint kNoRange = {"Missing Range", "Please choose a range for your opponent."};
const Complaint kNoHands = {"No Hands in Range", "No hands in your opponent's current range."};
const Complaint kPotNotAboveCall = {"Pot Size Error", "The pot size must be greater than the amount you have to call."};
const Complaint kPotNotPositive = {"Pot Size Error", "The pot size must be greater than zero."};
const Complaint kCallNotPositive = {"Call Size Error", "The amount to call must be greater than zero."};
const Complaint kPotNotNumeric = {"Pot Size Error", "The pot size contains non-numeric characters"};
const Complaint kCallNotNumeric = {"Call Size Error", "The call size contains non-numeric characters"};

TEST_F(InputChecks, PreflopCall) {
  ExpectRows(
      AnalysisMode::kPreflopCall,
      {
          {"a good situation passes", {"100", "50", "", "Full", ""}, kNone},
          {"amounts below 1 pass", {"0.5", "0.25", "", "Full", ""}, kNone},
          {"no range chosen", {"100", "50", "", "", ""}, kNoRange},
          {"a range without weight", {"100", "50", "", "Nothing", ""}, kNoHands},
          {"call above the pot", {"100", "101", "", "Full", ""}, kPotNotAboveCall},
          {"call equal to the pot", {"100", "100", "", "Full", ""}, kPotNotAboveCall},
          {"both empty are 0", {"", "", "", "Full", ""}, kPotNotAboveCall},
          {"pot 0 and a call below it", {"0", "-5", "", "Full", ""}, kPotNotPositive},
          {"call 0", {"100", "0", "", "Full", ""}, kCallNotPositive},
          {"call below 0", {"100", "-5", "", "Full", ""}, kCallNotPositive},
          {"pot with letters after a good number", {"12abc", "5", "", "Full", ""}, kPotNotNumeric},
          {"call with letters after a good number", {"100", "12abc", "", "Full", ""}, kCallNotNumeric},
          {"pot is looked at before call", {"100x", "50x", "", "Full", ""}, kPotNotNumeric},
          {"a dollar sign is numeric", {"$100", "$50", "", "Full", ""}, kNone},
          {"a thousands separator is numeric, but the value ends there", {"1,000", "0.5", "", "Full", ""}, kNone},
          {"so a pot of 1,000 does not cover a call of 1", {"1,000", "1", "", "Full", ""}, kPotNotAboveCall},
          {"call is looked at before letters in the pot", {"100x", "0", "", "Full", ""}, kCallNotPositive},
          {"letters are 0, and a call may lie below", {"abc", "-5", "", "Full", ""}, kPotNotPositive},
          {"its weight is tested before the amounts", {"0", "0", "", "Nothing", ""}, kNoHands},
      });
}

TEST_F(InputChecks, ARangeThatCannotBeReadIsAFault) {
  for (const AnalysisMode mode : {AnalysisMode::kPreflopCall, AnalysisMode::kEquityOnly}) {
    const auto faultOf = [&](const char* range) {
      return FaultOf([&] { return CheckInputs(mode, {"100", "50", "", range, ""}, ranges_.Folder()); });
    };
    EXPECT_EQ(faultOf("Missing"), RunTimeFault::kSubscriptOutOfRange);
    EXPECT_EQ(faultOf("Hollow"), RunTimeFault::kSubscriptOutOfRange);
    EXPECT_EQ(faultOf("Scribble"), RunTimeFault::kInvalidProcedureCall);
  }
}

const Complaint kNoCurrentRange = {"Missing Range", "You must assign or create a range of hands for your opponent."};
const Complaint kNoCallingRange = {"Missing Range",
                                   "You must assign or create a range of hands for your opponent to call with."};
const Complaint kRaisePotNotPositive = {"Pot Size", "The pot size must be greater than zero."};
const Complaint kCallNegative = {"Call Amount", "The amount you must call cannot be a negative number."};
const Complaint kShoveNotPositive = {"Pot Size", "The amount your opponent must call must be greater than zero."};
const Complaint kRaisePotNotNumeric = {"Pot Size", "The pot size contains non-numeric characters"};
const Complaint kRaiseCallNotNumeric = {"Call Size", "The call size contains illegal characters"};
const Complaint kShoveNotNumeric = {"Shove Size",
                                    "The amount your opponent must call when you shove contains illegal characters."};

TEST_F(InputChecks, PreflopRaise) {
  ExpectRows(
      AnalysisMode::kPreflopRaise,
      {
          {"a good situation passes", {"15", "5", "100", "Full", "Half Aces"}, kNone},
          {"amounts below 1 pass", {"0.5", "0.25", "0.75", "Full", "Full"}, kNone},
          {"a call of 0 passes", {"15", "0", "100", "Full", "Full"}, kNone},
          {"an empty call box passes", {"15", "", "100", "Full", "Full"}, kNone},
          {"a call above the pot passes", {"15", "20", "100", "Full", "Full"}, kNone},
          {"ranges without weight pass", {"15", "5", "100", "Nothing", "Nothing"}, kNone},
          {"ranges are not opened", {"15", "5", "100", "Missing", "Scribble"}, kNone},
          {"no current range", {"15", "5", "100", "", "Full"}, kNoCurrentRange},
          {"no calling range", {"15", "5", "100", "Full", ""}, kNoCallingRange},
          {"neither range", {"0", "-1", "0", "", ""}, kNoCurrentRange},
          {"the calling range is missed before the pot", {"0", "5", "100", "Full", ""}, kNoCallingRange},
          {"the pot is looked at before the call", {"0", "-1", "0", "Full", "Full"}, kRaisePotNotPositive},
          {"the call is looked at before the shove", {"15", "-1", "0", "Full", "Full"}, kCallNegative},
          {"letters in the call before those in the shove", {"15", "5x", "100x", "Full", "Full"}, kRaiseCallNotNumeric},
          {"pot 0", {"0", "5", "100", "Full", "Full"}, kRaisePotNotPositive},
          {"pot below 0", {"-1", "5", "100", "Full", "Full"}, kRaisePotNotPositive},
          {"call below 0", {"15", "-1", "100", "Full", "Full"}, kCallNegative},
          {"shove 0, under the pot's title", {"15", "5", "0", "Full", "Full"}, kShoveNotPositive},
          {"shove empty", {"15", "5", "", "Full", "Full"}, kShoveNotPositive},
          {"pot with letters after a good number", {"15x", "5", "100", "Full", "Full"}, kRaisePotNotNumeric},
          {"call with letters after a good number", {"15", "5x", "100", "Full", "Full"}, kRaiseCallNotNumeric},
          {"call of letters is a good 0 but no number", {"15", "abc", "100", "Full", "Full"}, kRaiseCallNotNumeric},
          {"call of one blank is not empty", {"15", " ", "100", "Full", "Full"}, kRaiseCallNotNumeric},
          {"shove with letters after a good number", {"15", "5", "100x", "Full", "Full"}, kShoveNotNumeric},
          {"dollar signs and separators pass", {"$15", "$5", "1,000", "Full", "Full"}, kNone},
          {"values are tested before texts", {"15x", "5x", "0", "Full", "Full"}, kShoveNotPositive},
      });
}

TEST_F(InputChecks, EquityOnly) {
  ExpectRows(AnalysisMode::kEquityOnly,
             {
                 {"a range with weight passes", {"", "", "", "Half Aces", ""}, kNone},
                 {"amounts do not matter", {"abc", "-5", "x", "Full", ""}, kNone},
                 {"no range chosen",
                  {"", "", "", "", ""},
                  Complaint{"Select Range", "Please select a range for your opponent."}},
                 {"a range without weight",
                  {"", "", "", "Nothing", ""},
                  Complaint{"Empty Range", "Your opponent's range is empty. Please select another range."}},
             });
}

}  // namespace
}  // namespace quillon
