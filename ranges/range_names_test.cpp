#include "ranges/range_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "testing/range_dialog_messages.h"
#include "testing/recorded_messages.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Message Stop(std::string title, std::string text) {
  return {std::move(title), std::move(text), MessageIcon::kStop, MessageButtons::kOk};
}

Message ForbiddenCharacter() {
  return Stop("Quillon",
              "The following characters are not allowed in the range name: \r\n\r\n"
              "/\\:*?\"<>|");
}

Message TooLong() {
  return Stop("Error", "Your range name is too long. Please choose a shorter one.");
}

struct NameCase {
  const char* rule;
  std::string name;
  std::optional<Message> refusal;
};

TEST(ValidateRangeName, FirstFailingTestIsTold) {
  const TemporaryProgram program;
  program.Write("Button.txt", "AA (1), \r\n");
  program.Write("Temp Range1.txt", "AA (1), \r\n");
  program.Write("Übermut.txt", "AA (1), \r\n");
  program.Write("Hollow.txt");
  program.Write("Line.txt", "\r\n");

  const std::vector<NameCase> cases = {
      {"a new name passes", "Cutoff", std::nullopt},
      {"points and blanks pass", " v 1.5", std::nullopt},
      {"the empty name", "", NoName()},
      {"a slash", "a/b", ForbiddenCharacter()},
      {"a backslash", "a\\b", ForbiddenCharacter()},
      {"a colon", "a:b", ForbiddenCharacter()},
      {"an asterisk", "a*b", ForbiddenCharacter()},
      {"a question mark", "a?b", ForbiddenCharacter()},
      {"a double quote", "a\"b", ForbiddenCharacter()},
      {"a less sign", "a<b", ForbiddenCharacter()},
      {"a greater sign", "a>b", ForbiddenCharacter()},
      {"two forbidden characters are one message", "a/b?", ForbiddenCharacter()},
      {"an existing name", "Button", Exists("Button")},
      {"an empty file is no range", "Hollow", std::nullopt},
      {"a file with a line end alone is no range", "Line", std::nullopt},
      {"the scratch name passes although it exists", "Temp Range1", std::nullopt},
      {"as long as a file's name can be with its extension", std::string(251, 'x'), std::nullopt},
      {"a byte too long", std::string(252, 'x'), TooLong()},
      {"a forbidden character is told first", std::string(252, '?'), ForbiddenCharacter()},
  };
  for (const NameCase& c : cases) {
    RecordedMessages messages;
    EXPECT_EQ(ValidateRangeName(program.Folder(), c.name, messages), !c.refusal.has_value()) << c.rule;
    if (c.refusal) {
      EXPECT_THAT(messages.Shown, ElementsAre(*c.refusal)) << c.rule;
    } else {
      EXPECT_THAT(messages.Shown, IsEmpty()) << c.rule;
    }
  }
}

TEST(ValidateNewName, TakesNoNameThatIsThereAlready) {
  const TemporaryProgram program;
  program.Write("Button.txt", "AA (1), \r\n");
  program.Write("temp range1.txt", "AA (1), \r\n");
  for (const std::string name : {"Button", "temp range1"}) {
    RecordedMessages messages;
    EXPECT_FALSE(ValidateNewName(program.Folder(), "Button", name, messages)) << name;
    EXPECT_THAT(messages.Shown, ElementsAre(Exists(name)));
  }
  RecordedMessages messages;
  EXPECT_TRUE(ValidateNewName(program.Folder(), "Button", "New", messages));
  EXPECT_THAT(messages.Shown, IsEmpty());
}

}  // namespace
}  // namespace quillon
