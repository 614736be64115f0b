#include "support/rounding.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "testing/fault_of.h"

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
      {"what is not finite is returned as it is", kInfinity, 2, kInfinity},
      {"what is no tie goes to the nearest", 0.29500000000000004, 2, 0.3},
      {"fifteen decimals", 0.1234567890123456, 15, 0.123456789012346},
      {"a large number has no decimals to lose", 1e300, 2, 1e300},
      {"the largest number stays", std::numeric_limits<double>::max(), 15, std::numeric_limits<double>::max()},
      {"the smallest number goes to nothing", std::numeric_limits<double>::denorm_min(), 15, 0},
  };
  for (const RoundCase& c : cases)
    EXPECT_EQ(RoundTo(c.value, c.digits), c.rounded) << c.rule;
}

// Eighths, sixteenths and so on are exact in binary, so integer arithmetic gives the expected value.
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

TEST(RoundToInt16, TiesGoToEvenAndTheEndsHold) {
  struct Case {
    const char* rule;
    double value;
    std::int16_t rounded;
  };
  const std::vector<Case> cases = {
      {"a tie rises to the even integer", 87.5, 88},
      {"a negative tie goes to even", -2.5, -2},
      {"the last integer", 32767, 32767},
      {"above the upper end", 32768, 32767},
      {"far above the upper end", 1e300, 32767},
      {"below the lower end", -32769, -32768},
      {"what is no number counts as nothing", kNotANumber, 0},
  };
  for (const Case& c : cases)
    EXPECT_EQ(RoundToInt16(c.value), c.rounded) << c.rule;
}

TEST(Divide, HasNoResultForADenominatorOfNothing) {
  EXPECT_EQ(Divide(-100, 50), -2);
  for (const double numerator : {1.0, -1.0})
    EXPECT_EQ(FaultOf([&] { return Divide(numerator, -0.0); }), RunTimeFault::kDivisionByZero);
  EXPECT_EQ(FaultOf([] { return PercentOf(0, 0, 0); }), RunTimeFault::kOverflow);
}

TEST(PercentOf, RoundsTheShareOfTheBase) {
  EXPECT_EQ(PercentOf(85, 169, 0), 50);
  EXPECT_EQ(PercentOf(1, 3, 2), 33.33);
  EXPECT_EQ(PercentOf(5, 8, 0), 62);  // 62.5, a tie
}

}  // namespace
}  // namespace quillon
