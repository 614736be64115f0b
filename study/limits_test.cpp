#include "study/limits.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "analysis/analysis.h"
#include "testing/study_hands.h"

namespace quillon {
namespace {

ClassWeights Range(const std::vector<std::string>& labels) {
  ClassWeights weights{};
  for (const std::string& label : labels)
    weights.at(static_cast<std::size_t>(HandIndex(label))) = 1;
  return weights;
}

TEST(CallLimit, FollowsFromTheEquity) {
  EXPECT_EQ(CallLimit(100, 0.2), (Limit{LimitKind::kUpTo, 25}));
  EXPECT_EQ(CallLimit(100, 0.5), (Limit{LimitKind::kAlways, 0})) << "no call may be as large as the pot";
  EXPECT_EQ(CallLimit(100, 0.8), (Limit{LimitKind::kAlways, 0}));
  EXPECT_EQ(CallLimit(100, 1), (Limit{LimitKind::kAlways, 0}));
  EXPECT_EQ(CallLimit(100, 0), (Limit{LimitKind::kNever, 0}));
}

TEST(ShoveLimit, MindsTheEnds) {
  struct Case {
    const char* rule;
    double pot;
    double call;
    ClassFigures figures;
    Limit limit;
  };
  for (const Case& c : {
           Case{"never called, it wins the pot", 15, 500, {-1, 0}, {LimitKind::kAlways, 0}},
           Case{"at even equity the shove does not matter", 15, 15, {0.5, 1}, {LimitKind::kAlways, 0}},
           Case{"but the call does", 15, 16, {0.5, 1}, {LimitKind::kNever, 0}},
           Case{"a weaker hand is good up to an amount", 15, 0, {0.25, 0.5}, {LimitKind::kUpTo, 37.5}},
           Case{"or not at all", 1, 100, {0.25, 1}, {LimitKind::kNever, 0}},
           Case{"worth nothing at once", 3, 1, {0.25, 1}, {LimitKind::kNever, 0}},
           Case{"a stronger hand is always good", 15, 10, {0.75, 0.5}, {LimitKind::kAlways, 0}},
           Case{"unless the call costs more than it gains", 1, 100, {0.75, 1}, {LimitKind::kFrom, 48.5}},
           Case{"so large a limit that it is none", 1e300, 0, {0.49999999, 1}, {LimitKind::kAlways, 0}},
           Case{"worth nothing at once, and more from there", 1, 3, {0.75, 1}, {LimitKind::kAlways, 0}},
       }) {
    EXPECT_EQ(ShoveLimit(c.pot, c.call, c.figures), c.limit) << c.rule;
  }
}

// Checks a class at an amount by analyses.
template <typename ExpectedValueAt>
void ExpectLimit(const Limit& limit, ExpectedValueAt at, const std::string& what) {
  constexpr double kALittle = 1e-9;
  const auto loses = [&](double amount) { return at(amount) < 0; };
  switch (limit.Kind) {
    case LimitKind::kUpTo:
      EXPECT_FALSE(loses(limit.Amount * (1 - kALittle))) << what;
      EXPECT_TRUE(loses(limit.Amount * (1 + kALittle))) << what;
      break;
    case LimitKind::kFrom:
      EXPECT_TRUE(loses(limit.Amount * (1 - kALittle))) << what;
      EXPECT_FALSE(loses(limit.Amount * (1 + kALittle))) << what;
      break;
    case LimitKind::kAlways:
    case LimitKind::kNever:
      for (const double amount : {kALittle, 1.0, 99.99})
        EXPECT_EQ(loses(amount), limit.Kind == LimitKind::kNever) << what << " at " << amount;
      break;
  }
}

double ExpectedValue(const Situation& situation, const RangeNumbers& ranges, std::string_view label) {
  return GetHandResult(Analyze(situation, ranges).value_or(Analysis{}).HandInfo, label).ExpectedValue;
}

TEST(LimitsOf, ACallAgreesWithAnalysesJustBelowAndAbove) {
  const RangeNumbers range(Hands(), Range({"AA", "KK", "AKs", "AKo", "76s", "22"}));
  const Limits limits = LimitsOf(AnalysisMode::kPreflopCall, range, {100, 0, 0});
  std::set<LimitKind> kinds;
  for (std::int16_t index = 0; index < kHandClassCount; index += 3) {
    const Limit& limit = limits.at(static_cast<std::size_t>(index));
    const auto at = [&](double call) {
      return ExpectedValue({.Mode = AnalysisMode::kPreflopCall, .Amounts = {100, call, 0}}, range, HandLabel(index));
    };
    ExpectLimit(limit, at, std::string(HandLabel(index)));
    kinds.insert(limit.Kind);
  }
  EXPECT_EQ(kinds, (std::set<LimitKind>{LimitKind::kUpTo, LimitKind::kAlways}));
}

TEST(LimitsOf, AShoveAgreesWithAnalysesJustBelowAndAbove) {
  struct Case {
    double pot;
    double call;
    ClassWeights calling;
    std::set<LimitKind> kinds;
  };
  const ClassWeights tight = Range({"AA", "KK", "QQ", "AKs", "AKo"});
  for (const Case& c : {Case{15, 5, tight, {LimitKind::kUpTo, LimitKind::kAlways}},
                        Case{1, 90, AllHands(), {LimitKind::kNever, LimitKind::kFrom}},
                        Case{15, 5, ClassWeights{}, {LimitKind::kAlways}}}) {
    const RangeNumbers ranges(Hands(), AllHands(), c.calling);
    const Limits limits = LimitsOf(AnalysisMode::kPreflopRaise, ranges, {c.pot, c.call, 0});
    std::set<LimitKind> kinds;
    for (std::int16_t index = 0; index < kHandClassCount; index += 3) {
      const Limit& limit = limits.at(static_cast<std::size_t>(index));
      const auto at = [&](double shove) {
        return ExpectedValue({.Mode = AnalysisMode::kPreflopRaise, .Amounts = {c.pot, c.call, shove}}, ranges,
                             HandLabel(index));
      };
      ExpectLimit(limit, at, std::string(HandLabel(index)));
      kinds.insert(limit.Kind);
    }
    EXPECT_EQ(kinds, c.kinds) << c.pot;
  }
}

TEST(LimitText, SaysItInWords) {
  EXPECT_EQ(LimitText({LimitKind::kUpTo, 12.5}), "12.5");
  EXPECT_EQ(LimitText({LimitKind::kFrom, 12.5}), "from 12.5");
  EXPECT_EQ(LimitText({LimitKind::kAlways, 0}), "always");
  EXPECT_EQ(LimitText({LimitKind::kNever, 0}), "never");
}

TEST(ShortAmount, IsAtMostEightCharactersOnTheSideThatDoesNotLose) {
  struct Case {
    double amount;
    const char* upTo;
    const char* from;
  };
  for (const Case& c : {
           Case{12.3456, "12.34", "12.35"},
           Case{12.341, "12.34", "12.35"},
           Case{0.5, "0.5", "0.5"},
           Case{0.01, "0.01", "0.01"},
           Case{9.999, "9.99", "10"},
           Case{12345.678, "12345.67", "12345.68"},
           Case{1234567.89, "1234567", "1234568"},
           Case{116724.44, "116724.4", "116724.5"},
           Case{99999999.5, "99999999", "1.0E+08"},
           Case{123456789, "1.2E+08", "1.3E+08"},
           Case{9.96e12, "9.9E+12", "1.0E+13"},
           Case{0.00123, "1.2E-03", "1.3E-03"},
           Case{0.00999, "9.9E-03", "1.0E-02"},
           Case{kMostLimit, "1E+300", "1E+300"},
           Case{5e-324, "4.9E-324", "4.9E-324"},
       }) {
    EXPECT_EQ(ShortAmount({LimitKind::kUpTo, c.amount}), c.upTo) << c.amount;
    EXPECT_EQ(ShortAmount({LimitKind::kFrom, c.amount}), c.from) << c.amount;
  }
}

}  // namespace
}  // namespace quillon
