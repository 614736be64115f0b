#include "shell/field_help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "testing/recorded_messages.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;

// A line of whole sentences.
bool IsSentences(const std::string& text) {
  return text.front() >= 'A' && text.front() <= 'Z' && (text.ends_with('.') || text.ends_with('?')) &&
         text.find_first_of("\r\n") == std::string::npos;
}

TEST(FieldHelp, EachLinkShowsWholeSentencesUnderItsKey) {
  std::set<std::string> texts;
  for (const FieldHelp& help : kFieldHelp) {
    const std::string_view key = help.Key;
    const std::string text(FieldHelpText(key));
    for (const std::string& paragraph : Split(text, "\r\n\r\n")) {
      EXPECT_TRUE(IsSentences(paragraph)) << key << ": " << paragraph;
      EXPECT_THAT(paragraph, testing::Not(testing::HasSubstr("  "))) << key;
    }
    EXPECT_TRUE(texts.insert(text).second) << key << " has the same text as another link";
    RecordedMessages messages;
    ShowFieldHelp(key, messages);
    EXPECT_THAT(messages.Shown,
                ElementsAre(Message{std::string(key), text, MessageIcon::kInformation, MessageButtons::kOk}));
  }
  EXPECT_EQ(FieldHelpText("Calling Range"),
            "Your opponent's calling range contains all the hands that you believe he'll call your ALL IN with.");
}

TEST(FieldHelp, KeyThatIsNoneShowsAnEmptyBoxUnderItself) {
  for (const std::string key : {"", "pot size", "Pot Size ", "Call ALL IN"}) {
    EXPECT_EQ(FieldHelpText(key), "") << key;
    RecordedMessages messages;
    ShowFieldHelp(key, messages);
    EXPECT_THAT(messages.Shown, ElementsAre(Message{key, "", MessageIcon::kInformation, MessageButtons::kOk}));
  }
}

}  // namespace
}  // namespace quillon
