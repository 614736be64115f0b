#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/range_files.h"
#include "ranges/range_lists.h"
#include "ranges/range_names.h"
#include "support/file_names.h"
#include "testing/range_dialog_messages.h"
#include "testing/recorded_messages.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(RangesOfWindows, DifferByMoreThanLetterCase) {
  const TemporaryProgram program;
  SaveRangeText(program.Folder(), "ABC", "AA (1), ");
  EXPECT_EQ(LoadRangeText(program.Folder(), "abc"), "AA (1), ");
  RecordedMessages messages;
  EXPECT_FALSE(ValidateRangeName(program.Folder(), "abc", messages));
  EXPECT_THAT(messages.Shown, ElementsAre(Exists("abc"))) << "so nothing is replaced unasked";
  SaveRangeText(program.Folder(), "abc", "KK (1), ");
  EXPECT_EQ(LoadRangeText(program.Folder(), "ABC"), "KK (1), ");
  EXPECT_EQ(RangeFolderEntries(program.Folder()).size(), 1U);
}

TEST(RangesOfWindows, CanBeRenamedToOtherLetterCase) {
  const TemporaryProgram program;
  SaveRangeText(program.Folder(), "abc", "AA (1), ");
  SaveRangeText(program.Folder(), "other", "QQ (1), ");
  RecordedMessages messages;
  EXPECT_TRUE(ValidateNewName(program.Folder(), "abc", "ABC", messages));
  EXPECT_THAT(messages.Shown, IsEmpty());
  RenameRange(program.Folder(), "abc", "ABC", "KK (1), ");
  const std::vector<std::string> files = RangeFolderEntries(program.Folder());
  ASSERT_EQ(files.size(), 2U);
  EXPECT_TRUE(IsSameName(files[0], "ABC.txt")) << "Wine leaves a file the letters that it has; Windows changes them";
  EXPECT_EQ(LoadRangeText(program.Folder(), "ABC"), "KK (1), ");
  for (const char* taken : {"OTHER", "ABC"}) {
    messages.Shown.clear();
    EXPECT_FALSE(ValidateNewName(program.Folder(), "ABC", taken, messages)) << taken;
    EXPECT_THAT(messages.Shown, ElementsAre(Exists(taken)));
  }
}

TEST(RangesOfWindows, HaveNoNameThatWindowsDoesNotStore) {
  const TemporaryProgram program;
  for (const auto& [name, fault] :
       std::vector<std::pair<std::string, std::string>>{{"con", "is one that Windows keeps for a device"},
                                                        {"LPT1.x", "is one that Windows keeps for a device"},
                                                        {"a.", "ends with a dot or a space, which Windows drops"},
                                                        {"a|b", "holds a character that Windows has in no file's name"},
                                                        {std::string(300, '.'), "is too long"}}) {
    RecordedMessages messages;
    EXPECT_FALSE(ValidateRangeName(program.Folder(), name, messages, true)) << name;
    ASSERT_EQ(messages.Shown.size(), 1U) << name;
    EXPECT_EQ(messages.Shown[0].title, "Error");
    EXPECT_EQ(messages.Shown[0].text, "Your range name " + fault + ". Please choose " +
                                          (fault == "is too long" ? "a shorter one." : "another one."));
  }
}

}  // namespace
}  // namespace quillon
