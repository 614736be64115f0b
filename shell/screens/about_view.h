#pragma once

// The About screen: this version and the newest one ("shell/upgrade_check.h"), the links of the program, and the
// feedback box ("shell/feedback.h").

#include <cstdint>
#include <functional>
#include <string>

#include "ranges/range_files.h"
#include "shell/screens/main_layout.h"
#include "shell/upgrade_check.h"
#include "shell/web_client.h"
#include "support/input_boxes.h"
#include "support/message_boxes.h"

namespace quillon {

/// Milliseconds since some moment, by the system's clock.
[[nodiscard]] std::int32_t SystemMilliseconds();

class AboutView {
 public:
  /// What the screen finds round it. All of it outlives the screen.
  struct Surroundings {
    ProgramFolder Folder;
    MessageBoxes& Messages;
    InputBoxes& Inputs;
    WebClient& Web;
    std::function<std::int32_t()> Clock;  // the milliseconds that a wait is measured by
  };

  AboutView(const MainControls& controls, Surroundings surroundings);

  /// Shows this version, brings `chkUpgrade` to the state of the setting, and, if that is on, asks the web host for the
  /// newest version and shows the outcome. Blocks for as long as the request takes.
  ///
  /// Intentional: where the box was in another state, as at a start with the setting on, that is a click, so the same
  /// runs inside and a second request follows the first. The second result stays.
  ///
  /// RunTimeError as told at StoredUpgradeBox.
  void CheckForUpgrade();

  /// The click on `chkUpgrade`: stores its state at once and checks. A setting that cannot be written therefore brings
  /// the box back to its old state.
  void ClickUpgrade();

  /// The click on a link, which goes by its caption.
  void ClickLink(const Label& link);

  /// The click on `cmdSendFeedback`. A note too long or too short is refused with a message. Then the user is asked for
  /// an address. Five seconds later, under the hourglass, the note is sent as it reads by then, whatever its length. A
  /// reply that tells so empties the box; any other leaves the text for a second attempt. Either is told in a message.
  ///
  /// A second click during the five seconds runs to its end inside the first, which then goes on: both send.
  /// RunTimeError as told at IsTimeToSend.
  void SendFeedback();

 private:
  void ShowCurrentVersion(std::string_view caption);
  [[nodiscard]] std::string FeedbackText() const;
  void WaitToSend() const;

  const MainControls& controls_;
  Surroundings around_;
};

}  // namespace quillon
