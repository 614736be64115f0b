#include "shell/upgrade_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "results/web_addresses.h"
#include "shell/settings_file.h"
#include "testing/fault_of.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

constexpr const char* kLatest = "You have the latest version of Quillon";
constexpr const char* kDownload = "Download latest version of Quillon";

TEST(UpgradeLookOf, GoesByTheLeadingNumberOfTheReply) {
  struct Case {
    const char* rule;
    const char* reply;
    const char* version;
    const char* link;
  };
  const std::vector<Case> cases = {
      {"the same version is up to date", "0.9", "0.9", kLatest},
      {"a higher one is offered", "0.91", "0.91", kDownload},
      {"0.10 is 0.1 and older", "0.10", "0.1", kLatest},
      {"a page of the host's has the number 0", "<html>404</html>", "0", kLatest},
      {"a row of numbers counts up to its second point", "1.2.3", "1.2", kDownload},
      {"digits that nobody can see do not count", "0.9000000000000001", "0.9", kLatest},
      {"what is beyond all numbers is still one", "1e999", "1.79769313486232E+308", kDownload},
      {"a failed request hides the link", "", "Error Connecting", ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(UpgradeLookOf(c.reply), (UpgradeLook{c.version, c.link})) << c.rule;
}

class UpgradeBox : public testing::Test {
 public:
  void Store(std::string_view value) const { WriteIniValue("Upgrade", "Auto", value, program.Folder()); }

  TemporaryProgram program;
};

TEST_F(UpgradeBox, IsTheLeadingNumberAsAWholeOne) {
  struct Case {
    const char* rule;
    const char* value;
    CheckBoxState box;
  };
  const std::vector<Case> cases = {
      {"1 is on", "1", CheckBoxState::kChecked},
      {"2 is the greyed box", "2", CheckBoxState::kGrayed},
      {"an empty value is off", "", CheckBoxState::kUnchecked},
      {"what follows the number does not matter", "1 (on)", CheckBoxState::kChecked},
      {"a half goes to the even side", "0.5", CheckBoxState::kUnchecked},
      {"three halves go to the even side", "1.5", CheckBoxState::kGrayed},
  };
  EXPECT_EQ(StoredUpgradeBox(program.Folder()), CheckBoxState::kUnchecked) << "nothing is stored";
  for (const Case& c : cases) {
    Store(c.value);
    EXPECT_EQ(StoredUpgradeBox(program.Folder()), c.box) << c.rule;
    StoreUpgradeBox(c.box, program.Folder());
    EXPECT_EQ(ReadIniValue("Upgrade", "Auto", program.Folder()), std::to_string(static_cast<int>(c.box))) << c.rule;
  }
}

TEST_F(UpgradeBox, SettingThatItCannotShowIsFatalAndNamed) {
  for (const char* value : {"3", "-1", "70000", "1e999"}) {
    Store(value);
    EXPECT_THAT(FaultTextOf([&] { return StoredUpgradeBox(program.Folder()); }),
                AllOf(HasSubstr("'380'"), HasSubstr("settings.ini"), HasSubstr(value)));
  }
}

TEST(TargetOfLink, GoesByTheCaption) {
  for (const char* caption : {"Download Upgrade", kDownload}) {
    EXPECT_EQ(TargetOfLink(caption).Address, DownloadAddress()) << caption;
    EXPECT_EQ(TargetOfLink(caption).Told, std::nullopt) << caption;
  }
  EXPECT_EQ(TargetOfLink(kLatest).Address, "");
  EXPECT_EQ(TargetOfLink(kLatest).Told,
            (Message{"Quillon", "You're good to go!", MessageIcon::kInformation, MessageButtons::kOk}));
  for (const char* caption : {"Check out our online tutorials", "download upgrade", ""}) {
    EXPECT_EQ(TargetOfLink(caption).Address, "") << caption;
    EXPECT_EQ(TargetOfLink(caption).Told, std::nullopt) << caption;
  }
}

}  // namespace
}  // namespace quillon
