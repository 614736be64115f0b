#include "support/line_ends.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace quillon {
namespace {

struct LineEndCase {
  const char* rule;
  const char* text;
  const char* expected;
};

class LineEnds : public testing::TestWithParam<LineEndCase> {};

TEST_P(LineEnds, BecomeSingleLineFeeds) {
  EXPECT_EQ(UnixLineEnds(GetParam().text), GetParam().expected);
}

constexpr auto kLineEndCases = std::to_array<LineEndCase>({
    {"NothingStaysNothing", "", ""},
    {"TextWithoutLineEndStays", "Hand\tCombs", "Hand\tCombs"},
    {"ReturnIsALineEnd", "Situation\rType\r", "Situation\nType\n"},
    {"ReturnAndFeedAreOneLineEnd", "a\r\nb", "a\nb"},
    {"FeedStays", "a\nb\n", "a\nb\n"},
    {"PairBeforeTheLinesOwnReturnIsTwo", "Hand\r\n\r", "Hand\n\n"},
    {"TwoPairsAreTwo", "\r\n\r\nRange\r", "\n\nRange\n"},
    {"TwoReturnsAreTwo", "\r\r", "\n\n"},
    {"ReturnBeforeAPairIsItsOwn", "\r\r\n", "\n\n"},
    {"FeedBeforeAReturnIsItsOwn", "\n\r", "\n\n"},
});

INSTANTIATE_TEST_SUITE_P(UnixLineEnds, LineEnds, testing::ValuesIn(kLineEndCases),
                         [](const auto& entry) { return std::string(entry.param.rule); });

}  // namespace
}  // namespace quillon
