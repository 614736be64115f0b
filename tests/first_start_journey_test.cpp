// From the first start in an empty folder to the next one, and failing starts.

#include <QUrl>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/settings_file.h"
#include "shell/user_guide.h"
#include "support/files.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class StartJourney : public WindowJourney {};

constexpr int kTwipsInAPixel = 15;

int StoredPixels(const ProgramFolder& folder, std::string_view key) {
  return std::stoi(ReadIniValue("Main", key, folder)) / kTwipsInAPixel;
}

TEST_F(StartJourney, FirstStartInAnEmptyFolderMakesItsFolders) {
  StartProgram();
  const fs::path folder = Session().Program().Path;
  EXPECT_TRUE(fs::is_directory(folder / "Ranges"));
  EXPECT_TRUE(fs::is_directory(folder / "Saved Grids"));
  EXPECT_TRUE(fs::is_empty(folder / "Ranges"));
  EXPECT_FALSE(fs::exists(folder / "settings.ini"));

  EXPECT_EQ(Main().Place.size(), QSize(1020, 603));
  const QPoint corner = Session().CornerOf(Main());
  const Desk& screen = Session().Screen();
  EXPECT_TRUE(WindowSession::IsAt(corner, {(screen.Width - 1020) / 2, (screen.Height - 603 + 1) / 2})) << corner.y();

  EXPECT_EQ(CloseProgram(), 0);
  for (const char* const key : {"0=", "1=", "2=", "3=", "4="})
    EXPECT_THAT(ReadAllBytes(folder / "settings.ini"), HasSubstr(std::string("\r\n") + key + "\r\n"));
  const QPoint stored(StoredPixels(Session().Program(), "Left"), StoredPixels(Session().Program(), "Top"));
  EXPECT_TRUE(WindowSession::IsAt(stored, corner)) << stored.x() << ", " << stored.y();
}

TEST_F(StartJourney, WindowIsKnownToDesktopsByTheNameOfTheMenuEntry) {
  StartProgram();
  const auto properties = Session().StartBeside("/usr/bin/xprop", {"-id", Main().Id, "WM_CLASS"});
  Session().WaitUntil("xprop has ended", [&] { return properties->Status().has_value(); });
  EXPECT_EQ(properties->Output(), "WM_CLASS(STRING) = \"quillon\", \"example.quillon.Quillon\"\n");
}

TEST_F(StartJourney, InstalledProgramKeepsEverythingInTheUsersFolder) {
  const fs::path installed = Session().Program().Path;
  const fs::path folder = installed.parent_path() / ".local" / "share" / "Quillon";
  std::ofstream(installed / "installed") << ".\n";
  Session().AddExampleRanges();
  fs::copy_file(QUILLON_CLI_PROGRAM, installed / "quillon-cli");
  Session().AddCommand("xdg-open");
  StartProgram();
  EXPECT_TRUE(fs::exists(folder / "Ranges" / "Tight Open.txt"));
  EXPECT_TRUE(fs::is_directory(folder / "Saved Grids"));
  const auto companion = Session().StartBeside((installed / "quillon-cli").string(), {"folder"});
  Session().WaitUntil("the companion has ended", [&] { return companion->Status().has_value(); });
  EXPECT_EQ(companion->Output(), folder.string() + "\n");

  Session().Press({"F1"});
  const QUrl guide = QUrl::fromLocalFile(QString::fromStdString(UserGuidePath(installed).string()));
  EXPECT_EQ(Session().CommandArguments("xdg-open"), guide.toEncoded().toStdString() + "\n");

  EXPECT_EQ(CloseProgram(), 0);
  EXPECT_TRUE(fs::exists(folder / "settings.ini"));
  EXPECT_FALSE(fs::exists(installed / "settings.ini"));
  EXPECT_FALSE(fs::exists(installed / "Saved Grids"));
}

TEST_F(StartJourney, InstalledProgramTellsWhyTheUsersFolderCannotBeMade) {
  const fs::path installed = Session().Program().Path;
  std::ofstream(installed / "installed") << ".\n";
  Session().AddExampleRanges();
  std::ofstream(installed.parent_path() / ".local") << "a file";
  Session().Start();
  const std::string text = MessageText(Session().WaitForWindow("Quillon"));
  EXPECT_EQ(text, "Run-time error '76': Path not found (" + (installed.parent_path() / ".local" / "share").string() +
                      ": Not a directory)\n\nQuillon ends now.");
  Session().Press({"Return"});
  EXPECT_EQ(Session().WaitForEnd(), 1);
}

TEST_F(StartJourney, FolderThatCannotBeMadeEndsTheProgramInWords) {
  std::ofstream(Session().Program().Path / "Ranges") << "a file";
  Session().Start();
  EXPECT_THAT(MessageText(Session().WaitForWindow("Quillon")),
              AllOf(StartsWith("Run-time error '75': Path/File access error ("),
                    EndsWith("Ranges: File exists)\n\nQuillon ends now.")));
  Session().Press({"Return"});
  EXPECT_EQ(Session().WaitForEnd(), 1);
}

TEST_F(StartJourney, NextStartFindsTheBoxesAndThePlaceAsTheyWere) {
  StartProgramWithRanges();
  Click("lblNav(0)");
  Fill(0, "735");
  Fill(1, "abc");
  Click("lblNav(1)");
  Fill(2, "=735+220-178");
  EXPECT_EQ(BoxText(2), "=735+220-178");  // on Windows the window could close before reading the last keys
  Session().MoveWindow(Main(), {75, 120});
  const QPoint place = Session().FindWindow(kMainTitle).value().Place.topLeft();
  EXPECT_EQ(CloseProgram(), 0);

  StartProgram();
  EXPECT_TRUE(WindowSession::IsAt(Session().CornerOf(Main()), {75, 120}));
  EXPECT_TRUE(WindowSession::IsAt(Main().Place.topLeft(), place));
  Click("lblNav(0)");
  EXPECT_EQ(BoxText(0), "735");
  EXPECT_EQ(BoxText(1), "abc");
  Click("lblNav(1)");
  EXPECT_EQ(BoxText(2), "=735+220-178");
}

TEST_F(StartJourney, TwoStartsAreTwoPrograms) {
  StartProgramWithRanges();
  RunningProgram& first = Session().Running();
  Click("lblNav(0)");
  Fill(0, "100");
  StartProgram();
  RunningProgram& second = Session().Running();
  EXPECT_NE(first.Id(), second.Id());
  Click("lblNav(0)");
  Fill(0, "200");
  EXPECT_EQ(CloseProgram(), 0);
  EXPECT_EQ(first.Status(), std::nullopt);
  EXPECT_EQ(ReadIniValue("Values", "0", Session().Program()), "200");
}

TEST_F(StartJourney, ArgumentsAreRefusedButForThoseOfQts) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--help"}, {"range.txt"}, {"-style", "fusion", "--help"}}) {
    Session().Start(arguments);
    EXPECT_EQ(Session().WaitForEnd(), 2);
    EXPECT_THAT(Session().Running().Errors(), HasSubstr("Quillon takes no arguments."));
    EXPECT_FALSE(fs::exists(Session().Program().Path / "Ranges"));
  }
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"-session", "117f000101000173_1"}, {"-style", "windows", "-platform", "xcb"}}) {
    Session().Start(arguments);
    static_cast<void>(Session().WaitForWindow(kMainTitle));
    EXPECT_EQ(CloseProgram(), 0);
  }
}

TEST(StartWithoutADisplay, IsToldInOneLine) {
  struct Case {
    std::vector<std::string> Environment;
    std::vector<std::string> Arguments;
    std::string Message;
  };
  const std::vector<Case> cases = {
      {{}, {}, "Quillon finds no display for its window: could not connect to display"},
      {{"DISPLAY=:4095"}, {}, "Quillon finds no display for its window: could not connect to display :4095"},
      {{},
       {"-platform", "paper"},
       "Quillon cannot show its window, and may have to be installed or unpacked again: Could not find the Qt platform "
       "plugin \"paper\" in \"\""},
  };
  for (const Case& one : cases) {
    ProgramRun run;
    run.Program = "/usr/bin/env";
    run.Arguments = {"-i"};
    run.Arguments.insert(run.Arguments.end(), one.Environment.begin(), one.Environment.end());
    run.Arguments.emplace_back(QUILLON_PROGRAM);
    run.Arguments.insert(run.Arguments.end(), one.Arguments.begin(), one.Arguments.end());
    const ProgramOutcome outcome = RunProgram(run);
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_EQ(outcome.Errors, one.Message + "\n");
    EXPECT_EQ(outcome.Output, "");
  }
}

TEST_F(StartJourney, FolderWhoseNameIsNotUtf8IsTheProgramsAllTheSame) {
  Session().AddCommand("xdg-open");
  const fs::path folder = StartProgramWithRangesFrom("K\xE4se");
  const fs::path grids = folder / "Saved Grids";
  const QUrl parent = QUrl::fromLocalFile(QString::fromStdString(folder.parent_path().string()));
  const std::string address = parent.toEncoded().toStdString() + "/K%E4se/";
  ASSERT_TRUE(fs::is_directory(grids));
  Session().Press({"F1"});
  EXPECT_EQ(Session().CommandArguments("xdg-open"), address + "Guide/user-guide.html\n");

  Analyze(kRaiseRun, {"150", "50", "400", "Button Shove", "Big Blind Call"});
  Click("imgSave");
  const Window first = Session().WaitForWindow("Save Expected Value Grid");
  Session().Type("shove");
  Answer(first, {"Return"});
  Answer(Session().WaitForWindow("Open Now?"), {"alt+n"});
  EXPECT_TRUE(fs::exists(grids / "shove"));

  // The dialog proposes the same folder and name.
  Click("imgSave");
  const Window second = Session().WaitForWindow("Save Expected Value Grid");
  fs::remove(grids / "shove");
  Answer(second, {"Return"});
  Session().AddCommand("xdg-open");
  Answer(Session().WaitForWindow("Open Now?"), {"alt+y"});
  EXPECT_EQ(Session().CommandArguments("xdg-open"), address + "Saved%20Grids/shove\n");
  EXPECT_EQ(ReadAllBytes(grids / "shove").substr(0, 2), "BM");
  EXPECT_EQ(CloseProgram(), 0);
}

}  // namespace
}  // namespace quillon
