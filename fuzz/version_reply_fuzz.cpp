// The upgrade check with any reply and any settings file: the link agrees with the caption, and only a setting that no
// box can show fails.

#include <cmath>
#include <string>
#include <string_view>

#include "fuzz/fuzz_target.h"
#include "shell/settings_file.h"
#include "shell/upgrade_check.h"
#include "shell/version.h"
#include "support/number_text.h"
#include "support/run_time_error.h"
#include "testing/memory_files.h"

namespace quillon {
namespace {

void CheckLook(const UpgradeLook& look, const std::string& reply) {
  if (reply.empty()) {
    Require(look == UpgradeLook{"Error Connecting", {}}, "no reply is an error");
    return;
  }
  Require(IsNumericText(look.CurrentVersion), "any reply is a number");
  const bool isNewer = LeadingNumber(reply) > LeadingNumber(kVersionText);
  const bool tellsNewer = look.Link == "Download latest version of Quillon";
  Require(tellsNewer || look.Link == "You have the latest version of Quillon", "the link has one of two captions");
  // Between close numbers the caption's 15 digits decide.
  const bool isClose = std::abs(LeadingNumber(reply) - LeadingNumber(kVersionText)) < 1e-12;
  Require(isClose || tellsNewer == isNewer, "the link depends on the number");
}

void CheckSetting(const std::string& setting, const ProgramFolder& folder) {
  try {
    const CheckBoxState state = StoredUpgradeBox(folder);
    Require(setting != "1" || state == CheckBoxState::kChecked, "1 is on");
    StoreUpgradeBox(state, folder);
    Require(StoredUpgradeBox(folder) == state, "what is stored is found");
  } catch (const RunTimeError& error) {
    const bool ofSetting =
        error.Fault() == RunTimeFault::kInvalidPropertyValue || error.Fault() == RunTimeFault::kOverflow;
    Require(setting != "1" && ofSetting, "only a setting that no box can show fails");
  }
}

}  // namespace

void CheckInput(FuzzInput input) {
  MemoryFiles files;
  const ProgramFolder folder{"/quillon-fuzz", &files};
  const bool on = input.TakeBelow(4) != 0;
  const std::string setting = on ? "1" : std::string(input.TakeText(input.TakeBelow(24)));
  files.Contents[SettingsFilePath(folder).string()] = "[Upgrade]\r\nAuto=" + setting + "\r\n";

  CheckSetting(setting, folder);

  const std::string reply(input.Rest());
  CheckLook(UpgradeLookOf(reply), reply);
}

}  // namespace quillon
