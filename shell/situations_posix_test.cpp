#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "shell/situations.h"
#include "testing/recorded_input.h"
#include "testing/recorded_messages.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

TEST(SituationFiles, ThatALinkToNowhereHoldsAreAskedAbout) {
  const TemporaryProgram program;
  std::filesystem::create_directory(SituationFolderPath(program.Folder()));
  std::filesystem::create_symlink("nowhere", SituationFolderPath(program.Folder()) / "Link.json");
  RecordedInput inputs;
  RecordedMessages messages;
  inputs.Answers = {"Link"};
  messages.Answers = {MessageAnswer::kNo};
  EXPECT_EQ(AskAndSaveSituation({AnalysisMode::kEquityOnly, {}}, {}, program.Folder(), std::ref(inputs), messages),
            std::nullopt);
  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_EQ(messages.Shown[0].title, "Replace?");
}

TEST(SituationFiles, OfAnOldArchiveAreListedAndOpenedByTheirNameAsText) {
  const TemporaryProgram program;
  program.Write("Any.txt", "AA (1), \r\n");
  std::filesystem::create_directory(SituationFolderPath(program.Folder()));
  std::ofstream(SituationFolderPath(program.Folder()) / "K\xE4se.json") << R"({"mode":"equity","range":"Any"})";
  EXPECT_EQ(SituationNames(program.Folder()), std::vector<std::string>{"Käse"});
  RecordedMessages messages;
  const auto opened = OpenSituation("Käse", program.Folder(), messages);
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->Situation.Entered.Range, "Any");
}

}  // namespace
}  // namespace quillon
