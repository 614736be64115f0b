#pragma once

// The upgrade check of the About screen: whether the product's web host announces a newer version. It is off until the
// user checks `chkUpgrade`, and runs when the program starts and whenever that box changes. The setting is the key
// "Auto" in the section "Upgrade" of the settings file, "1" for on and "0" or nothing for off.
//
// A version is a decimal number: 0.10 is 0.1 and older than 0.9.
//
//     state                 lblCurrentVersion       lblLink(3)
//     off                   "N/A"                   hidden
//     request on its way    "Checking website..."   as it was
//     request failed        "Error Connecting"      hidden
//     up to date            the number              "You have the latest version of Quillon"
//     newer one exists      the number              "Download latest version of Quillon"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ranges/range_files.h"
#include "support/message_boxes.h"

namespace quillon {

/// The states of a check box, under their customary numbers.
enum class CheckBoxState : std::int16_t { kUnchecked = 0, kChecked = 1, kGrayed = 2 };

inline constexpr std::string_view kUpgradeOffCaption = "N/A";
inline constexpr std::string_view kUpgradeAskedCaption = "Checking website...";

/// The outcome of a request, for the About screen.
struct UpgradeLook {
  std::string CurrentVersion;  // lblCurrentVersion
  std::string_view Link;  // lblLink(3); empty hides the link

  bool operator==(const UpgradeLook&) const = default;
};

/// The state of `chkUpgrade` from the setting, whose leading number is rounded to an integer. Other than 0, 1 and 2
/// (the greyed box, which does not check), the box cannot show it: RunTimeError "Invalid property value".
[[nodiscard]] CheckBoxState StoredUpgradeBox(const ProgramFolder& folder);

/// Stores the state as a digit. Never fails ("shell/settings_file.h").
void StoreUpgradeBox(CheckBoxState state, const ProgramFolder& folder);

/// The outcome for a reply of the web host. The empty text is a failed request; a reply without a number is version 0.
[[nodiscard]] UpgradeLook UpgradeLookOf(std::string_view reply);

/// The effect of a click on a link: a message, or an address for the browser. The empty address opens nothing.
struct LinkTarget {
  std::optional<Message> Told;
  std::string Address;
};

/// The target of `lblLink`, by the link's exact caption: "Download Upgrade" and "Download latest version of
/// Quillon" open the download page, "You have the latest version of Quillon" shows a message, and any other, such as
/// the tutorials' link on the grid screen, opens the empty address.
[[nodiscard]] LinkTarget TargetOfLink(std::string_view caption);

/// The message if no browser opens an address.
[[nodiscard]] Message NoBrowserMessage(std::string_view address);

}  // namespace quillon
