#include "shell/upgrade_check.h"

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

// The caption that the link has before it is first set; the others are set below.
constexpr std::string_view kFirstLinkCaption = "Download Upgrade";
constexpr std::string_view kDownloadCaption = "Download latest version of Quillon";
constexpr std::string_view kLatestCaption = "You have the latest version of Quillon";

}  // namespace

CheckBoxState StoredUpgradeBox(const ProgramFolder& folder) {
  const std::string value = ReadIniValue(kSection, kKey, folder);
  const std::int16_t state = RoundToInt16(LeadingNumber(value));
  if (state < 0 || state > static_cast<std::int16_t>(CheckBoxState::kGrayed)) {
    throw RunTimeError(RunTimeFault::kInvalidPropertyValue,
                       SettingsFilePath(folder).string() + ": Upgrade, Auto=" + value);
  }
  return static_cast<CheckBoxState>(state);
}

void StoreUpgradeBox(CheckBoxState state, const ProgramFolder& folder) {
  WriteIniValue(kSection, kKey, std::to_string(static_cast<std::int16_t>(state)), folder);
}

UpgradeLook UpgradeLookOf(std::string_view reply) {
  if (reply.empty()) return {.CurrentVersion = "Error Connecting", .Link = {}};
  const std::string latest = NumberText(LeadingNumber(reply));
  // Compared as displayed, so that the user can follow the outcome.
  const bool upToDate = LeadingNumber(kVersionText) >= LeadingNumber(latest);
  return {.CurrentVersion = latest, .Link = upToDate ? kLatestCaption : kDownloadCaption};
}

LinkTarget TargetOfLink(std::string_view caption) {
  if (caption == kLatestCaption) {
    return {.Told = Message{.text = "You're good to go!"}, .Address = {}};
  }
  const bool leadsToDownload = caption == kFirstLinkCaption || caption == kDownloadCaption;
  return {.Told = {}, .Address = leadsToDownload ? DownloadAddress() : std::string()};
}

Message NoBrowserMessage(std::string_view address) {
  return {.text = "No browser was found on this machine. The address is:\r\n\r\n" + std::string(address),
          .icon = MessageIcon::kExclamation};
}

}  // namespace quillon
