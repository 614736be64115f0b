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
#include <string_view>

#include "ranges/range_files.h"
#include "shell/web_client.h"
#include "support/message_boxes.h"

namespace quillon {

/// The states of a check box, under their customary numbers.
enum class CheckBoxState : std::int16_t { kUnchecked = 0, kChecked = 1, kGrayed = 2 };

/// What the check needs of the About screen.
class UpgradeWindow {
 public:
  virtual ~UpgradeWindow() = default;

  virtual void SetVersionCaption(std::string_view caption) = 0;  // lblVersion

  /// `lblCurrentVersion`. The caption must be on the screen when this comes back: a request may block what follows.
  virtual void SetCurrentVersionCaption(std::string_view caption) = 0;

  /// `chkUpgrade`. Setting a state that it has not got counts as a click: ClickUpgrade runs to its end inside.
  [[nodiscard]] virtual CheckBoxState UpgradeBox() const = 0;
  virtual void SetUpgradeBox(CheckBoxState state) = 0;

  /// `lblLink(3)`.
  virtual void SetUpgradeLinkVisible(bool visible) = 0;
  virtual void SetUpgradeLinkCaption(std::string_view caption) = 0;
};

/// What a link of the program's needs to be followed.
class LinkWindow {
 public:
  virtual ~LinkWindow() = default;

  /// Opens an address in the user's browser, or says that there is none. The empty address opens nothing.
  virtual void OpenAddress(std::string_view address) = 0;

  [[nodiscard]] virtual MessageBoxes& Messages() = 0;
};

/// Shows this version, brings `chkUpgrade` to the state of the setting, and, if that is on, asks the web host for the
/// newest version and shows the outcome. Blocks for as long as the request takes. A request that fails is told in the
/// caption alone, and a reply without a number counts as version 0.
///
/// Where the box was in another state, as at a start with the setting on, ClickUpgrade runs inside and a second request
/// follows the first. That is meant; the second result stays.
///
/// The setting's leading number is rounded to a whole one. Where it is neither 0, 1 nor 2, which is the greyed box and
/// asks for nothing, the box cannot show it: RunTimeError "Invalid property value".
void CheckForUpgrade(UpgradeWindow& window, WebClient& web, const ProgramFolder& folder);

/// The click on `chkUpgrade`: stores the state that the box has now as a digit, at once, and runs CheckForUpgrade. A
/// setting that cannot be written therefore brings the box back to its old state.
void ClickUpgrade(UpgradeWindow& window, WebClient& web, const ProgramFolder& folder);

/// The click on `lblLink(index)`, which goes by the link's caption, compared exactly: "Download Upgrade" and "Download
/// latest version of Quillon" open the download page, "You have the latest version of Quillon" shows a message, and any
/// other opens the empty address. The tutorials' link on the grid screen is such another; it leads nowhere so far.
void ClickLink(std::string_view caption, LinkWindow& window);

}  // namespace quillon
