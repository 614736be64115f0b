#pragma once

// The About screen: this version and the newest one ("shell/upgrade_check.h"), the program's links, and the feedback
// box ("shell/feedback.h").

#include <cstdint>
#include <functional>
#include <string>

#include "ranges/range_files.h"
#include "shell/screens/main_layout.h"
#include "shell/screens/web_client.h"
#include "shell/upgrade_check.h"
#include "support/line_question.h"
#include "support/message_boxes.h"

namespace quillon {

/// The milliseconds of the system's clock, from an arbitrary start.
[[nodiscard]] std::int32_t SystemMilliseconds();

class AboutView {
 public:
  /// What the screen uses from outside. All of it outlives the screen.
  struct Surroundings {
    ProgramFolder Folder;
    MessageBoxes& Messages;
    AskLine Ask;
    WebClient Web;
    std::function<std::int32_t()> Clock;  // the millisecond counter for waits
  };

  AboutView(const MainControls& controls, Surroundings surroundings);

  /// Shows this version, sets `chkUpgrade` to the stored state and, if that is on, asks the web host for the newest
  /// version and shows the outcome. Blocks during the request.
  ///
  /// Intentional: if the box had another state, as at a start with the setting on, setting it is a click, so the same
  /// check runs inside and a second request follows the first. The second result stays.
  ///
  /// RunTimeError as of StoredUpgradeBox.
  void CheckForUpgrade();

  /// The click on `chkUpgrade`: stores its state at once and checks. If it cannot be stored, the box changes back.
  void ClickUpgrade();

  /// The click on a link, whose caption decides its target.
  void ClickLink(const Label& link);

  /// The click on `cmdSendFeedback`. A note too long or too short is refused with a message. Otherwise the user is
  /// asked for an address. Five seconds later, under the hourglass, the note is sent as it then reads, whatever its
  /// length. A reply of success clears the box; any other keeps the text for another attempt. A message reports either.
  ///
  /// A second click during the five seconds runs to its end inside the first, which then continues: both send.
  /// RunTimeError as of IsTimeToSend.
  void SendFeedback();

 private:
  void ShowCurrentVersion(std::string_view caption);
  [[nodiscard]] std::string FeedbackText() const;
  void WaitToSend() const;

  const MainControls& controls_;
  Surroundings around_;
};

}  // namespace quillon
