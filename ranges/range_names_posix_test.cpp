#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/range_names.h"
#include "testing/range_dialog_messages.h"
#include "testing/recorded_messages.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

TEST(ValidateRangeName, LetsEverythingThroughThatAFileCanHave) {
  using namespace std::string_literals;
  const TemporaryProgram program;
  program.Write("Button.txt", "AA (1), \r\n");
  for (const std::string& name :
       {" "s, " v1.5 "s, "."s, "a|b"s, "CON"s, "nul.x"s, "a\tb"s, "button"s, "Button.txt\0"s}) {
    RecordedMessages messages;
    EXPECT_TRUE(ValidateRangeName(program.Folder(), name, messages)) << name;
    EXPECT_TRUE(messages.Shown.empty()) << name;
    EXPECT_TRUE(ValidateNewName(program.Folder(), "Button", name, messages)) << name;
  }
}

TEST(ValidateRangeName, ToldOfAnExistingNameWhateverIsInItsFiles) {
  const TemporaryProgram program;
  program.Write("Pipe|.txt", "AA (1), \r\n");
  program.Write("K\xE4se.txt", "AA (1), \r\n");
  program.Write("button.txt", "AA (1), \r\n");
  program.Write("Button.txt", "AA (1), \r\n");
  program.Write("Temp Range1 .txt", "AA (1), \r\n");
  for (const char* name : {"Pipe|", "Käse", "Temp Range1 "}) {
    RecordedMessages messages;
    EXPECT_FALSE(ValidateRangeName(program.Folder(), name, messages)) << name;
    EXPECT_THAT(messages.Shown, testing::ElementsAre(Exists(name)));
  }
  RecordedMessages messages;
  EXPECT_FALSE(ValidateNewName(program.Folder(), "button", "Button", messages)) << "another range";
}

TEST(ValidateRangeName, CountsBytesOfALongName) {
  const TemporaryProgram program;
  RecordedMessages messages;
  EXPECT_FALSE(ValidateRangeName(program.Folder(), std::string(250, 'x') + "ä", messages));
  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_EQ(messages.Shown[0].text, "Your range name is too long. Please choose a shorter one.");
}

}  // namespace
}  // namespace quillon
