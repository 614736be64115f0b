#include "shell/upgrade_check.h"

#include <deque>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "results/web_addresses.h"
#include "shell/recorded_web.h"
#include "shell/settings_file.h"
#include "support/recorded_messages.h"
#include "support/run_time_error.h"
#include "testing/file_calls.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kLatest = "You have the latest version of Quillon";
constexpr const char* kDownload = "Download latest version of Quillon";

// About screen as it stands before the first check. Its box clicks by itself when its state changes.
class RecordedUpgradeWindow final : public UpgradeWindow {
 public:
  RecordedUpgradeWindow(WebClient& web, ProgramFolder folder) : Web(web), Folder(std::move(folder)) {}

  void SetVersionCaption(std::string_view caption) override { Version = caption; }
  void SetCurrentVersionCaption(std::string_view caption) override { CurrentVersions.emplace_back(caption); }
  [[nodiscard]] CheckBoxState UpgradeBox() const override { return Box; }
  void SetUpgradeBox(CheckBoxState state) override {
    if (state == Box) return;
    Box = state;
    ++Clicks;
    ClickUpgrade(*this, Web, Folder);
  }
  void SetUpgradeLinkVisible(bool visible) override { LinkVisible = visible; }
  void SetUpgradeLinkCaption(std::string_view caption) override { LinkCaption = caption; }

  WebClient& Web;
  ProgramFolder Folder;
  std::string Version;
  std::vector<std::string> CurrentVersions;  // each caption that it had
  CheckBoxState Box = CheckBoxState::kUnchecked;
  int Clicks = 0;
  bool LinkVisible = false;
  std::string LinkCaption = "Download Upgrade";
};

class UpgradeCheck : public testing::Test {
 public:
  void Store(std::string_view value) const { WriteIniValue("Upgrade", "Auto", value, program.Folder()); }
  [[nodiscard]] std::string Stored() const { return ReadIniValue("Upgrade", "Auto", program.Folder()); }
  [[nodiscard]] bool SettingsFileExists() const { return std::filesystem::exists(SettingsFilePath(program.Folder())); }
  void Check() { CheckForUpgrade(window, web, program.Folder()); }
  void UserSets(CheckBoxState state) { window.SetUpgradeBox(state); }

  TemporaryProgram program;
  RecordedWeb web;
  RecordedUpgradeWindow window{web, program.Folder()};
};

TEST_F(UpgradeCheck, FreshSettingsAskForNothing) {
  window.LinkVisible = true;
  Check();
  EXPECT_THAT(web.Asked, IsEmpty());
  EXPECT_EQ(window.Version, "0.9");
  EXPECT_THAT(window.CurrentVersions, ElementsAre("N/A"));
  EXPECT_FALSE(window.LinkVisible);
  EXPECT_EQ(window.Box, CheckBoxState::kUnchecked);
  EXPECT_EQ(window.Clicks, 0);
  EXPECT_FALSE(SettingsFileExists()) << "nobody has chosen anything yet";
}

TEST_F(UpgradeCheck, StartWithTheSettingOnChecksTwiceAndKeepsTheSecondResult) {
  Store("1");
  web.Replies = {"1.5", "0.9"};
  Check();
  EXPECT_THAT(web.Asked, ElementsAre(VersionFileAddress(), VersionFileAddress()));
  EXPECT_EQ(window.Clicks, 1);
  EXPECT_EQ(window.Box, CheckBoxState::kChecked);
  EXPECT_EQ(Stored(), "1");
  EXPECT_THAT(window.CurrentVersions,
              ElementsAre("N/A", "N/A", "Checking website...", "1.5", "Checking website...", "0.9"));
  EXPECT_TRUE(window.LinkVisible);
  EXPECT_EQ(window.LinkCaption, kLatest);
}

TEST_F(UpgradeCheck, SecondRequestThatFailsStaysToo) {
  Store("1");
  web.Replies = {"1.5", ""};
  Check();
  EXPECT_EQ(window.CurrentVersions.back(), "Error Connecting");
  EXPECT_FALSE(window.LinkVisible);
}

TEST_F(UpgradeCheck, OutcomeGoesByTheLeadingNumberOfTheReply) {
  struct Case {
    const char* rule;
    const char* reply;
    const char* version;
    const char* caption;
  };
  const std::vector<Case> cases = {
      {"the same version is up to date", "0.9", "0.9", kLatest},
      {"a lower one too", "0.8", "0.8", kLatest},
      {"a higher one is offered", "0.91", "0.91", kDownload},
      {"1.0 shows as 1", "1.0 final", "1", kDownload},
      {"a line end behind the number does not matter", "0.9\r\n", "0.9", kLatest},
      {"0.10 is 0.1 and older", "0.10", "0.1", kLatest},
      {"a page of the host's has the number 0", "<html>404</html>", "0", kLatest},
      {"a blank is no empty reply", " ", "0", kLatest},
      {"a row of numbers counts up to its second point", "1.2.3", "1.2", kDownload},
      {"digits that nobody can see do not count", "0.9000000000000001", "0.9", kLatest},
      {"what is beyond all numbers is still one", "1e999", "1.79769313486232E+308", kDownload},
  };
  Store("1");
  window.Box = CheckBoxState::kChecked;
  for (const Case& c : cases) {
    window.LinkVisible = false;
    window.CurrentVersions.clear();
    web.Replies = {c.reply};
    Check();
    EXPECT_THAT(window.CurrentVersions, ElementsAre("N/A", "Checking website...", c.version)) << c.rule;
    EXPECT_EQ(window.LinkCaption, c.caption) << c.rule;
    EXPECT_TRUE(window.LinkVisible) << c.rule;
  }
  EXPECT_EQ(web.Asked.size(), cases.size()) << "a box that is in its state already is not clicked";
}

TEST_F(UpgradeCheck, FailedRequestIsToldInTheCaptionAlone) {
  Store("1");
  window.Box = CheckBoxState::kChecked;
  window.LinkVisible = true;
  window.LinkCaption = kDownload;
  web.WhileAsked = [this] {
    EXPECT_EQ(window.CurrentVersions.back(), "Checking website...");
    EXPECT_TRUE(window.LinkVisible) << "the link is as it was while the request is on its way";
    EXPECT_EQ(window.LinkCaption, kDownload);
  };
  Check();
  EXPECT_THAT(window.CurrentVersions, ElementsAre("N/A", "Checking website...", "Error Connecting"));
  EXPECT_FALSE(window.LinkVisible);
  EXPECT_EQ(window.LinkCaption, kDownload);
}

TEST_F(UpgradeCheck, CheckingTheBoxStoresItAtOnceAndAsksOnce) {
  web.Replies = {"1"};
  web.WhileAsked = [this] { EXPECT_EQ(Stored(), "1"); };
  UserSets(CheckBoxState::kChecked);
  EXPECT_EQ(web.Asked.size(), 1U);
  EXPECT_EQ(window.LinkCaption, kDownload);

  UserSets(CheckBoxState::kUnchecked);
  EXPECT_EQ(Stored(), "0");
  EXPECT_EQ(web.Asked.size(), 1U) << "unchecking it asks for nothing";
  EXPECT_EQ(window.CurrentVersions.back(), "N/A");
  EXPECT_FALSE(window.LinkVisible);

  web.Replies = {"0.9"};
  UserSets(CheckBoxState::kChecked);
  EXPECT_EQ(web.Asked.size(), 2U);
  EXPECT_EQ(window.LinkCaption, kLatest);
  EXPECT_TRUE(window.LinkVisible);
}

TEST_F(UpgradeCheck, SettingIsTheLeadingNumberAsAWholeOne) {
  struct Case {
    const char* rule;
    const char* value;
    CheckBoxState box;
    std::size_t requests;
  };
  const std::vector<Case> cases = {
      {"0 is off", "0", CheckBoxState::kUnchecked, 0},
      {"1 is on", "1", CheckBoxState::kChecked, 2},
      {"2 is the greyed box and asks for nothing", "2", CheckBoxState::kGrayed, 0},
      {"an empty value is off", "", CheckBoxState::kUnchecked, 0},
      {"no number is off", "yes", CheckBoxState::kUnchecked, 0},
      {"what follows the number does not matter", "1 (on)", CheckBoxState::kChecked, 2},
      {"a half goes to the even side", "0.5", CheckBoxState::kUnchecked, 0},
      {"more than a half goes up", "0.6", CheckBoxState::kChecked, 2},
      {"three halves go to the even side", "1.5", CheckBoxState::kGrayed, 0},
  };
  for (const Case& c : cases) {
    RecordedWeb fresh({"1", "1"});
    RecordedUpgradeWindow about(fresh, program.Folder());
    Store(c.value);
    CheckForUpgrade(about, fresh, program.Folder());
    EXPECT_EQ(about.Box, c.box) << c.rule;
    EXPECT_EQ(fresh.Asked.size(), c.requests) << c.rule;
    EXPECT_EQ(about.LinkVisible, c.requests > 0) << c.rule;
  }
}

TEST_F(UpgradeCheck, GreyedBoxStaysGreyed) {
  Store("2");
  Check();
  EXPECT_EQ(window.Box, CheckBoxState::kGrayed);
  EXPECT_EQ(Stored(), "2");
  EXPECT_EQ(window.CurrentVersions.back(), "N/A");
}

TEST_F(UpgradeCheck, SettingThatTheBoxCannotShowIsFatalAndNamed) {
  for (const char* value : {"3", "-1", "70000", "1e999"}) {
    Store(value);
    try {
      Check();
      FAIL() << "nothing was thrown for " << value;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Fault(), RunTimeFault::kInvalidPropertyValue);
      EXPECT_THAT(error.what(), AllOf(HasSubstr("settings.ini"), HasSubstr(value)));
    }
  }
  EXPECT_THAT(web.Asked, IsEmpty());
}

TEST_F(UpgradeCheck, SettingThatCannotBeWrittenBringsTheBoxBack) {
  class NoWriting final : public PassingCalls {
   public:
    ssize_t Write(int /*file*/, std::string_view /*bytes*/) override { return -ENOSPC; }
  };
  NoWriting calls;
  RecordedUpgradeWindow about(web, {program.Folder().Path, &calls});
  about.SetUpgradeBox(CheckBoxState::kChecked);
  EXPECT_EQ(about.Box, CheckBoxState::kUnchecked);
  EXPECT_THAT(web.Asked, IsEmpty());

  Store("1");
  about.Box = CheckBoxState::kChecked;
  web.Replies = {"0.9", "0.9"};
  about.SetUpgradeBox(CheckBoxState::kUnchecked);
  EXPECT_EQ(about.Box, CheckBoxState::kChecked);
  EXPECT_EQ(about.LinkCaption, kLatest);
}

class RecordedLinkWindow final : public LinkWindow {
 public:
  void OpenAddress(std::string_view address) override { Opened.emplace_back(address); }
  [[nodiscard]] MessageBoxes& Messages() override { return Boxes; }

  std::vector<std::string> Opened;
  RecordedMessages Boxes;
};

TEST(ClickLink, GoesByTheCaption) {
  struct Case {
    const char* caption;
    std::vector<std::string> opened;
    std::vector<Message> messages;
  };
  const std::vector<Case> cases = {
      {"Download Upgrade", {DownloadAddress()}, {}},
      {"Download latest version of Quillon", {DownloadAddress()}, {}},
      {"You have the latest version of Quillon",
       {},
       {{"Quillon", "You're good to go!", MessageIcon::kInformation, MessageButtons::kOk}}},
      {"Check out our online tutorials", {""}, {}},
      {"download upgrade", {""}, {}},
      {"", {""}, {}},
  };
  for (const Case& c : cases) {
    RecordedLinkWindow window;
    ClickLink(c.caption, window);
    EXPECT_EQ(window.Opened, c.opened) << c.caption;
    EXPECT_EQ(window.Boxes.Shown, c.messages) << c.caption;
  }
}

}  // namespace
}  // namespace quillon
