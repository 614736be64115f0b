#include "shell/upgrade_check.h"

#include <string>

#include "results/web_addresses.h"
#include "shell/settings_file.h"
#include "shell/version.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr std::string_view kSection = "Upgrade";
constexpr std::string_view kKey = "Auto";

// The one caption that the link has before it is set; the others are set below.
constexpr std::string_view kFirstLinkCaption = "Download Upgrade";
constexpr std::string_view kDownloadCaption = "Download latest version of Quillon";
constexpr std::string_view kLatestCaption = "You have the latest version of Quillon";

CheckBoxState StoredState(const ProgramFolder& folder) {
  const std::string value = ReadIniValue(kSection, kKey, folder);
  const std::int16_t state = RoundToInt16(LeadingNumber(value));
  if (state < 0 || state > static_cast<std::int16_t>(CheckBoxState::kGrayed)) {
    throw RunTimeError(RunTimeFault::kInvalidPropertyValue,
                       SettingsFilePath(folder).string() + ": Upgrade, Auto=" + value);
  }
  return static_cast<CheckBoxState>(state);
}

}  // namespace

void CheckForUpgrade(UpgradeWindow& window, WebClient& web, const ProgramFolder& folder) {
  const std::string version = VersionText();
  window.SetVersionCaption(version);
  window.SetCurrentVersionCaption("N/A");

  const CheckBoxState state = StoredState(folder);
  window.SetUpgradeBox(state);
  if (state != CheckBoxState::kChecked) {
    window.SetUpgradeLinkVisible(false);
    return;
  }

  window.SetCurrentVersionCaption("Checking website...");
  const std::string reply = web.Get(VersionFileAddress());
  if (reply.empty()) {
    window.SetUpgradeLinkVisible(false);
    window.SetCurrentVersionCaption("Error Connecting");
    return;
  }

  const std::string latest = NumberText(LeadingNumber(reply));
  window.SetUpgradeLinkVisible(true);
  window.SetCurrentVersionCaption(latest);
  // The user must be able to follow the outcome, so the captions are what is compared, digit for digit.
  const bool upToDate = LeadingNumber(version) >= LeadingNumber(latest);
  window.SetUpgradeLinkCaption(upToDate ? kLatestCaption : kDownloadCaption);
}

void ClickUpgrade(UpgradeWindow& window, WebClient& web, const ProgramFolder& folder) {
  const auto state = static_cast<std::int16_t>(window.UpgradeBox());
  WriteIniValue(kSection, kKey, std::to_string(state), folder);
  CheckForUpgrade(window, web, folder);
}

void ClickLink(std::string_view caption, LinkWindow& window) {
  if (caption == kLatestCaption) {
    window.Messages().Show(
        {std::string(kApplicationTitle), "You're good to go!", MessageIcon::kInformation, MessageButtons::kOk});
    return;
  }
  const bool leadsToDownload = caption == kFirstLinkCaption || caption == kDownloadCaption;
  window.OpenAddress(leadsToDownload ? DownloadAddress() : std::string());
}

}  // namespace quillon
