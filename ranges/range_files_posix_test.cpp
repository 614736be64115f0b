#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

#include "ranges/range_files.h"
#include "testing/fault_of.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::HasSubstr;

TEST(LoadRangeText, LetterCaseIsHeededAndPipesAndLinksToNowhereAreEmpty) {
  const TemporaryProgram program;
  program.Write("x.txt", "AA (1), ");
  program.Write("loud.TXT", "AA (1), ");
  ASSERT_EQ(::mkfifo(program.RangeFile("pipe.txt").c_str(), 0600), 0);
  std::filesystem::create_symlink("nowhere", program.RangeFile("link.txt"));
  for (const char* name : {"X", "loud", "pipe", "link"}) {
    EXPECT_EQ(LoadRangeText(program.Folder(), name), "") << name;
    EXPECT_FALSE(RangeExists(program.Folder(), name)) << name;
  }
}

TEST(RenameRange, NewRangeTakesTheTextAndTheOldNameGoesUnlessBothAreOneFile) {
  struct Case {
    const char* rule;
    std::vector<const char*> files;
    const char* link;  // empty: there is none
    const char* target;  // the old name stays only if this is the old range
    const char* from;
    const char* to;
  };
  for (const Case& c : {Case{"a new name", {"old.txt"}, "", "", "old", "new"},
                        Case{"the name of another range", {"old.txt", "new.txt"}, "", "", "old", "new"},
                        Case{"the same name", {"new.txt"}, "", "", "new", "new"},
                        Case{"the same name, which is a link", {"far.txt"}, "new.txt", "far.txt", "new", "new"},
                        Case{"a second name of the file", {"old.txt"}, "new.txt", "old.txt", "old", "new"},
                        Case{"a link to the new name", {"new.txt"}, "old.txt", "new.txt", "old", "new"},
                        Case{"a link to nowhere", {"new.txt"}, "old.txt", "nowhere", "old", "new"}}) {
    SCOPED_TRACE(c.rule);
    const TemporaryProgram program;
    for (const char* file : c.files)
      program.Write(file, "AA (1), and more than will be there");
    if (*c.link != '\0') std::filesystem::create_symlink(c.target, program.RangeFile(c.link));
    RenameRange(program.Folder(), c.from, c.to, "KK (1), ");
    EXPECT_EQ(program.Read("new.txt"), "KK (1), \r\n");
    EXPECT_EQ(std::filesystem::exists(std::filesystem::symlink_status(program.RangeFile("old.txt"))),
              c.target == std::string_view("old.txt"));
  }
}

// As old archives have them: names on disk in the code page.
TEST(RangeFilePath, NameThatIsNotUtf8IsFoundByItsText) {
  const TemporaryProgram program;
  const ProgramFolder& folder = program.Folder();
  program.Write("K\xE4se.txt", "AA (1), \r\n");
  EXPECT_TRUE(RangeExists(folder, "Käse"));
  EXPECT_EQ(LoadRangeText(folder, "Käse"), "AA (1), ");
  SaveRangeText(folder, "Käse", "KK (1), ");
  EXPECT_EQ(program.Read("K\xE4se.txt"), "KK (1), \r\n");
  RenameRange(folder, "Käse", "Brot", "QQ (1), ");
  EXPECT_EQ(program.Read("Brot.txt"), "QQ (1), \r\n");
  EXPECT_FALSE(std::filesystem::exists(program.RangeFile("K\xE4se.txt")));

  std::filesystem::create_symlink("nowhere", program.RangeFile("K\xE4se.txt"));
  DeleteRange(folder, "Käse");
  EXPECT_THAT(FaultTextOf([&] { DeleteRange(folder, "Käse"); }), HasSubstr("Ranges/Käse.txt"));
}

TEST(RangeFilePath, NameInUtf8ComesFirst) {
  const TemporaryProgram program;
  const auto expectFile = [&](std::string_view name, std::string_view file) {
    EXPECT_EQ(RangeFilePath(program.Folder(), name), program.RangeFile(file)) << name;
  };
  expectFile("Käse", "Käse.txt");  // neither exists, so a new range has the usual name
  program.Write("K\xE4se.txt");
  expectFile("Käse", "K\xE4se.txt");
  program.Write("Käse.txt");
  expectFile("Käse", "Käse.txt");

  // The bytes C3 A4 are "ä" in UTF-8, so no file is listed under their code page text.
  program.Write("ä.txt");
  expectFile("Ã¤", "Ã¤.txt");
  program.Write("\x3F\xE4.txt");
  expectFile("♠ä", "♠ä.txt");  // "?" would be in the place of what the code page lacks
}

}  // namespace
}  // namespace quillon
