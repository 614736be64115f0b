#pragma once

// The upgrade check of the About screen: whether the product's web host announces a version above this one's. It is off
// until the user checks `chkUpgrade`, and is made when the program starts and whenever that box changes. The setting is
// the key "Auto" in the section "Upgrade" of the settings file, "1" for on and "0" or nothing for off.
//
// A version is a decimal number, not a row of numbers: 0.10 is 0.1 and older than 0.9.
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

/// The outcome of a request, as the About screen shows it.
struct UpgradeLook {
  std::string CurrentVersion;  // lblCurrentVersion
  std::string_view Link;  // lblLink(3); the link is hidden where this is empty

  bool operator==(const UpgradeLook&) const = default;
};

/// The state of `chkUpgrade` by the setting, whose leading number is rounded to a whole one. Where that is neither 0, 1
/// nor 2, which is the greyed box and asks for nothing, the box cannot show it: RunTimeError "Invalid property value".
[[nodiscard]] CheckBoxState StoredUpgradeBox(const ProgramFolder& folder);

/// Stores the state as a digit. It never fails ("shell/settings_file.h").
void StoreUpgradeBox(CheckBoxState state, const ProgramFolder& folder);

/// What a reply of the web host says. The empty text is a request that failed, and one without a number counts as
/// version 0.
[[nodiscard]] UpgradeLook UpgradeLookOf(std::string_view reply);

/// What a click on a link does: a message to show, or an address to open in the browser. The empty one opens nothing.
struct LinkTarget {
  std::optional<Message> Told;
  std::string Address;
};

/// The target of `lblLink`, by the link's caption, compared exactly: "Download Upgrade" and "Download latest version of
/// Quillon" open the download page, "You have the latest version of Quillon" shows a message, and any other opens the
/// empty address. The tutorials' link on the grid screen is another such; it leads nowhere yet.
[[nodiscard]] LinkTarget TargetOfLink(std::string_view caption);

/// What the user is told where no browser opens an address.
[[nodiscard]] Message NoBrowserMessage(std::string_view address);

}  // namespace quillon
