#include "support/rounding.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

struct RoundCase {
  const char* rule;
  double value;
  int digits;
  double rounded;
};

TEST(RoundTo, TiesGoToTheEvenDigit) {
  const std::vector<RoundCase> cases = {
      {"a tie below an even digit stays", 0.125, 2, 0.12},
      {"what is stored below the tie falls", 2.675, 2, 2.67},
      {"what is stored above the tie rises", 2.665, 2, 2.67},
      {"what is no tie goes to the nearest", 0.29500000000000004, 2, 0.3},
      {"digits that are there already stay", 0.1, 1, 0.1},
      {"fifteen decimals", 0.1234567890123456, 15, 0.123456789012346},
      {"a large number has no decimals to lose", 1e300, 2, 1e300},
      {"the largest number stays", std::numeric_limits<double>::max(), 15, std::numeric_limits<double>::max()},
      {"the smallest number goes to nothing", std::numeric_limits<double>::denorm_min(), 15, 0},
  };
  for (const RoundCase& c : cases)
    EXPECT_EQ(RoundTo(c.value, c.digits), c.rounded) << c.rule;
}

// Eighths, sixteenths and so on are exact in binary, so plain integers tell what rounding must give.
TEST(RoundTo, EqualsIntegerArithmeticOnExactFractions) {
  constexpr long long kParts = 1024;
  for (long long numerator = -5000; numerator <= 5000; ++numerator) {
    long long scale = 1;
    for (int digits = 0; digits <= 6; ++digits, scale *= 10) {
      const long long scaled = std::abs(numerator) * scale;
      long long quotient = scaled / kParts;
      const long long rest = scaled % kParts;
      if (2 * rest > kParts || (2 * rest == kParts && quotient % 2 == 1)) ++quotient;
      const double expected = static_cast<double>(numerator < 0 ? -quotient : quotient) / static_cast<double>(scale);
      ASSERT_EQ(RoundTo(static_cast<double>(numerator) / kParts, digits), expected)
          << numerator << " / " << kParts << " to " << digits << " decimals";
    }
  }
}

TEST(RoundTo, WhatIsNotFiniteComesBackAsItIs) {
  EXPECT_EQ(RoundTo(kInfinity, 2), kInfinity);
  EXPECT_EQ(RoundTo(-kInfinity, 2), -kInfinity);
  EXPECT_TRUE(std::isnan(RoundTo(kNotANumber, 2)));
}

TEST(RoundToInt16, TiesGoToEvenAndTheEndsHold) {
  struct Case {
    const char* rule;
    double value;
    std::int16_t rounded;
  };
  const std::vector<Case> cases = {
      {"a tie rises to the even integer", 87.5, 88},
      {"a tie falls to the even integer", 120.5, 120},
      {"a negative tie goes to even", -2.5, -2},
      {"half goes to nothing", 0.5, 0},
      {"no tie goes to the nearest", 254.50000000000003, 255},
      {"the last integer", 32767, 32767},
      {"a little above the last integer", 32767.4, 32767},
      {"above the upper end", 32768, 32767},
      {"far above the upper end", 1e300, 32767},
      {"infinity is above the upper end", kInfinity, 32767},
      {"the first integer", -32768, -32768},
      {"a tie at the lower end", -32768.5, -32768},
      {"below the lower end", -32769, -32768},
      {"far below the lower end", -1e300, -32768},
      {"what is no number counts as nothing", kNotANumber, 0},
  };
  for (const Case& c : cases)
    EXPECT_EQ(RoundToInt16(c.value), c.rounded) << c.rule;
}

RunTimeFault FaultOfDivision(double numerator, double denominator) {
  try {
    static_cast<void>(Divide(numerator, denominator));
  } catch (const RunTimeError& error) {
    return error.Fault();
  }
  return {};
}

TEST(Divide, GivesTheQuotient) {
  EXPECT_EQ(Divide(1, 4), 0.25);
  EXPECT_EQ(Divide(-100, 50), -2);
  EXPECT_EQ(Divide(0, 5), 0);
}

TEST(Divide, HasNoResultForADenominatorOfNothing) {
  EXPECT_EQ(FaultOfDivision(1, 0), RunTimeFault::kDivisionByZero);
  EXPECT_EQ(FaultOfDivision(-1, 0), RunTimeFault::kDivisionByZero);
  EXPECT_EQ(FaultOfDivision(1, -0.0), RunTimeFault::kDivisionByZero);
  EXPECT_EQ(FaultOfDivision(0, 0), RunTimeFault::kOverflow);
  EXPECT_EQ(FaultOfDivision(-0.0, 0), RunTimeFault::kOverflow);
}

TEST(PercentOf, RoundsTheShareOfTheBase) {
  EXPECT_EQ(PercentOf(1, 169, 0), 1);
  EXPECT_EQ(PercentOf(85, 169, 0), 50);
  EXPECT_EQ(PercentOf(169, 169, 0), 100);
  EXPECT_EQ(PercentOf(0, 169, 0), 0);
  EXPECT_EQ(PercentOf(6, 1326, 1), 0.5);
  EXPECT_EQ(PercentOf(1, 1326, 1), 0.1);
  EXPECT_EQ(PercentOf(1, 3, 2), 33.33);
  EXPECT_EQ(PercentOf(5, 8, 0), 62);  // 62.5, a tie
}

TEST(PercentOf, FailsAsDivideDoes) {
  EXPECT_THROW(static_cast<void>(PercentOf(1, 0, 0)), RunTimeError);
  EXPECT_THROW(static_cast<void>(PercentOf(0, 0, 0)), RunTimeError);
}

}  // namespace
}  // namespace quillon
