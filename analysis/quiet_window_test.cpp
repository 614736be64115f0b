#include "analysis/quiet_window.h"

#include <gtest/gtest.h>

#include "testing/recording_window.h"

namespace quillon {
namespace {

TEST(QuietWindow, AnswersTheBoxesAndListsOfAllScenarios) {
  RecordedMessages messages;
  const QuietWindow window({"100", "50", "300", "Full", "Tight"}, messages);
  EXPECT_EQ(window.BoxText(0), "100");
  EXPECT_EQ(window.BoxText(1), "50");
  EXPECT_EQ(window.BoxText(2), "100");
  EXPECT_EQ(window.BoxText(3), "50");
  EXPECT_EQ(window.BoxText(4), "300");
  EXPECT_EQ(window.BoxText(5), "");
  EXPECT_EQ(window.SelectedRange(0), "Full");
  EXPECT_EQ(window.SelectedRange(1), "Full");
  EXPECT_EQ(window.SelectedRange(2), "Tight");
  EXPECT_EQ(window.SelectedRange(3), "Full");
  EXPECT_EQ(window.SelectedRange(4), "");
}

TEST(QuietWindow, PassesMessagesOn) {
  RecordedMessages messages;
  QuietWindow window({}, messages);
  window.Messages().Show({"Title", "Text"});
  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_EQ(messages.Shown[0].title, "Title");
}

}  // namespace
}  // namespace quillon
