// The upgrade check with any reply of the web host and any settings file: it always ends with a caption, and the link
// says what the caption says.

#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "fuzz/fuzz_target.h"
#include "shell/settings_file.h"
#include "shell/upgrade_check.h"
#include "shell/version.h"
#include "support/number_text.h"
#include "support/run_time_error.h"
#include "testing/memory_files.h"

namespace quillon {
namespace {

class OneReply final : public WebClient {
 public:
  explicit OneReply(std::string reply) : Reply(std::move(reply)) {}

  std::string Get(std::string_view /*address*/) override {
    ++Requests;
    return Reply;
  }

  std::string Reply;
  int Requests = 0;
};

// The About screen. Its box runs the click when its state changes, as a real one does.
class About final : public UpgradeWindow {
 public:
  About(WebClient& web, ProgramFolder folder) : Web(web), Folder(std::move(folder)) {}

  void SetVersionCaption(std::string_view caption) override { Version = caption; }
  void SetCurrentVersionCaption(std::string_view caption) override { Current = caption; }
  [[nodiscard]] CheckBoxState UpgradeBox() const override { return Box; }
  void SetUpgradeBox(CheckBoxState state) override {
    if (Box == state) return;
    Box = state;
    ClickUpgrade(*this, Web, Folder);
  }
  void SetUpgradeLinkVisible(bool visible) override { LinkVisible = visible; }
  void SetUpgradeLinkCaption(std::string_view caption) override { Link = caption; }

  std::string Version;
  std::string Current;
  std::string Link;
  bool LinkVisible = false;
  CheckBoxState Box = CheckBoxState::kUnchecked;
  WebClient& Web;
  ProgramFolder Folder;
};

void CheckOutcome(const About& about, const std::string& reply, int requests) {
  Require(about.Version == VersionText(), "this version is always told");
  if (about.Box != CheckBoxState::kChecked) {
    Require(requests == 0, "nothing is asked where the check is off");
    Require(about.Current == "N/A" && !about.LinkVisible, "a check that is off shows nothing");
    return;
  }
  Require(requests == 2, "the setting and its click ask once each");
  if (reply.empty()) {
    Require(about.Current == "Error Connecting" && !about.LinkVisible, "no reply is an error");
    return;
  }
  Require(about.LinkVisible && IsNumericText(about.Current), "any reply is a number");
  const bool isNewer = LeadingNumber(reply) > LeadingNumber(VersionText());
  const bool tellsNewer = about.Link == "Download latest version of Quillon";
  Require(tellsNewer || about.Link == "You have the latest version of Quillon", "the link tells one of two things");
  // Between neighbours the caption's 15 digits decide, and nobody could follow more.
  const bool isClose = std::abs(LeadingNumber(reply) - LeadingNumber(VersionText())) < 1e-12;
  Require(isClose || tellsNewer == isNewer, "the link goes by the number");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  MemoryFiles files;
  const ProgramFolder folder{"/quillon-fuzz", &files};
  const bool on = input.TakeBelow(4) != 0;
  const std::string setting = on ? "1" : std::string(input.TakeText(input.TakeBelow(24)));
  files.Contents[SettingsFilePath(folder).string()] = "[Upgrade]\r\nAuto=" + setting + "\r\n";

  const std::string reply(input.Rest());
  OneReply web(reply);
  About about(web, folder);
  try {
    CheckForUpgrade(about, web, folder);
    CheckOutcome(about, reply, web.Requests);
  } catch (const RunTimeError& error) {
    const bool ofSetting =
        error.Fault() == RunTimeFault::kInvalidPropertyValue || error.Fault() == RunTimeFault::kOverflow;
    Require(!on && ofSetting, "only a setting that no box can show fails");
  }
  return 0;
}
