#include "ranges/range_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/range_text.h"
#include "testing/fault_of.h"
#include "testing/file_calls.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

// With the separators of this system.
auto HasPath(std::string_view path) {
  return HasSubstr(PathOf(path).string());
}

TEST(RangeFilePath, IsTheRangeFolderTheNameAndTheExtension) {
  struct Case {
    const char* rule;
    const char* name;
    const char* path;
  };
  const std::vector<Case> cases = {
      {"a name with a blank", "Button Shove", "/games/quillon/Ranges/Button Shove.txt"},
      {"a point belongs to the name", "v1.5", "/games/quillon/Ranges/v1.5.txt"},
      {"an extension is not taken off", "x.txt", "/games/quillon/Ranges/x.txt.txt"},
      {"the empty name", "", "/games/quillon/Ranges/.txt"},
      {"letters beyond ASCII", "Übermütig", "/games/quillon/Ranges/Übermütig.txt"},
      {"a leading separator stays below the folder", "/etc/x", "/games/quillon/Ranges//etc/x.txt"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(RangeFilePath({"/games/quillon"}, c.name), PathOf(c.path)) << c.rule;
}

TEST(SaveRangeText, ReadsBackEqual) {
  const TemporaryProgram program;
  const std::vector<std::pair<const char*, std::string>> cases = {
      {"a whole range with its last blank", TextWith("AA KK", "AKs")},
      {"the empty text", ""},
      {"a text with a line end of its own", "AA (1), \r\n"},
      {"a text of several lines", "AA (1),\r\nKK (1),\n"},
      {"letters beyond ASCII", "Übermütig – 50 €: AA (1), "},
  };
  for (const auto& [rule, text] : cases) {
    SaveRangeText(program.Folder(), "x", text);
    EXPECT_EQ(LoadRangeText(program.Folder(), "x"), text) << rule;
  }
}

TEST(SaveRangeText, WritesItsScratchFileWhereNoListShowsIt) {
  const TemporaryProgram program;
  WatchedCalls calls;
  SaveRangeText({program.Folder().Path, &calls}, "x", "AA (1), ");
  ASSERT_EQ(calls.ScratchFiles().size(), 1U);
  EXPECT_EQ(std::filesystem::path(calls.ScratchFiles()[0]).parent_path(), program.Folder().Path);
}

TEST(SaveRangeText, NameThatNoFileCanHaveIsFatal) {
  const TemporaryProgram program;
  const auto faultOfName = [&](std::string_view name) {
    return FaultOf([&] { SaveRangeText(program.Folder(), name, "AA (1), "); });
  };
  using namespace std::string_view_literals;
  EXPECT_EQ(faultOfName("AA\0BB"sv), RunTimeFault::kBadFileName);
  EXPECT_EQ(faultOfName(std::string(300, 'x')), RunTimeFault::kBadFileName);
  EXPECT_TRUE(std::filesystem::is_empty(RangeFolderPath(program.Folder())));
  std::filesystem::remove(RangeFolderPath(program.Folder()));
  EXPECT_THAT(FaultTextOf([&] { SaveRangeText(program.Folder(), "Lost", "AA (1), "); }),
              AllOf(HasSubstr("'76': Path not found"), HasSubstr("Lost.txt")));
}

TEST(LoadRangeText, TakesOffOneLineEnd) {
  struct Case {
    const char* rule;
    std::string bytes;
    std::string text;
    bool exists;
  };
  const std::vector<Case> cases = {
      {"a line end", "AA (1), \r\n", "AA (1), ", true},
      {"no line end", "AA (1), ", "AA (1), ", true},
      {"the last of two", "AA (1), \r\n\r\n", "AA (1), \r\n", true},
      {"a carriage return alone stays", "AA (1), \r", "AA (1), \r", true},
      {"a line end alone", "\r\n", "", false},
      {"an empty file", "", "", false},
      {"a blank counts", " ", " ", true},
      {"letters of the code page", "\x80: AA (1), \r\n", "€: AA (1), ", true},
  };
  const TemporaryProgram program;
  for (const Case& c : cases) {
    program.Write("x.txt", c.bytes);
    EXPECT_EQ(LoadRangeText(program.Folder(), "x"), c.text) << c.rule;
    EXPECT_EQ(RangeExists(program.Folder(), "x"), c.exists) << c.rule;
  }
}

TEST(LoadRangeText, WhatCannotBeReadIsEmpty) {
  using namespace std::string_view_literals;
  const TemporaryProgram program;
  program.Write("x.txt", "AA (1), ");
  program.Write("page.html", "AA (1), ");
  std::filesystem::create_directory(program.RangeFile("folder.txt"));

  const std::vector<std::pair<const char*, std::string_view>> cases = {
      {"a missing file", "y"},
      {"another extension", "page"},
      {"a longer extension, less its last four characters", "page."},
      {"a folder", "folder"},
      {"a NUL character, although the name before it would do", "x.txt\0"sv},
      {"no name", ""},
  };
  for (const auto& [rule, name] : cases) {
    EXPECT_EQ(LoadRangeText(program.Folder(), name), "") << rule;
    EXPECT_FALSE(RangeExists(program.Folder(), name)) << rule;
  }
  EXPECT_EQ(LoadRangeText(program.Folder(), "x"), "AA (1), ") << "and this one can be read";
}

TEST(DeleteRange, FailureIsFatalAndNamed) {
  using namespace std::string_view_literals;
  const TemporaryProgram program;
  EXPECT_THAT(FaultTextOf([&] { DeleteRange(program.Folder(), "x"); }),
              AllOf(HasSubstr("'53': File not found"), HasPath("Ranges/x.txt")));
  EXPECT_THAT(FaultTextOf([&] { DeleteRange(program.Folder(), ""); }),
              AllOf(HasSubstr("'53': File not found"), HasPath("Ranges/.txt")));
  EXPECT_THAT(FaultTextOf([&] { DeleteRange({program.Folder().Path / "gone"}, "x"); }),
              AllOf(HasSubstr("'76': Path not found"), HasPath("Ranges/x.txt")));

  program.Write("x.txt", "AA (1), ");
  EXPECT_THAT(FaultTextOf([&] { DeleteRange(program.Folder(), "x.txt\0"sv); }), HasSubstr("'52'"));
  FailingCalls calls(0);
  EXPECT_THAT(FaultTextOf([&] { DeleteRange({program.Folder().Path, &calls}, "x"); }), HasPath("Ranges/x.txt"));
  EXPECT_EQ(program.Read("x.txt"), "AA (1), ");
  DeleteRange(program.Folder(), "x");
  EXPECT_FALSE(std::filesystem::exists(program.RangeFile("x.txt")));
}

TEST(RenameRange, NewRangeTakesTheTextAndTheOldNameGoes) {
  for (const std::vector<const char*>& files : {std::vector{"old.txt"}, {"old.txt", "new.txt"}}) {
    const TemporaryProgram program;
    for (const char* file : files)
      program.Write(file, "AA (1), and more than will be there");
    RenameRange(program.Folder(), "old", "new", "KK (1), ");
    EXPECT_EQ(program.Read("new.txt"), "KK (1), \r\n");
    EXPECT_FALSE(std::filesystem::exists(program.RangeFile("old.txt")));
    RenameRange(program.Folder(), "new", "new", "QQ (1), ");
    EXPECT_EQ(program.Read("new.txt"), "QQ (1), \r\n");
  }
}

TEST(RenameRange, OldFileThatIsMissingIsFatalBeforeAnythingIsWritten) {
  const TemporaryProgram program;
  for (const char* name : {"old", "", "new"}) {
    EXPECT_THAT(FaultTextOf([&] { RenameRange(program.Folder(), name, "new", "KK (1), "); }),
                AllOf(HasSubstr("'53': File not found"), HasPath("Ranges/" + RangeFileName(name))));
    EXPECT_TRUE(std::filesystem::is_empty(RangeFolderPath(program.Folder()))) << name;
  }
  std::filesystem::remove(RangeFolderPath(program.Folder()));
  EXPECT_THAT(FaultTextOf([&] { RenameRange(program.Folder(), "old", "new", "KK (1), "); }),
              AllOf(HasSubstr("'76': Path not found"), HasPath("Ranges/old.txt")));
}

}  // namespace
}  // namespace quillon
