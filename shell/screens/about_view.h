#pragma once

// The About screen: this version and the newest one, the links of the program, and the feedback box.

#include <cstdint>
#include <functional>

#include "shell/feedback.h"
#include "shell/upgrade_check.h"
#include "toolkit/form_builder.h"

namespace quillon {

class AboutView : public UpgradeWindow, public LinkWindow, public FeedbackWindow {
 public:
  /// `clock` gives the milliseconds that a wait is measured by; by default those of the system.
  AboutView(FormControls& controls, MessageBoxes& messages, InputBoxes& inputs,
            std::function<std::int32_t()> clock = {});

  void SetVersionCaption(std::string_view caption) override;
  void SetCurrentVersionCaption(std::string_view caption) override;
  [[nodiscard]] CheckBoxState UpgradeBox() const override;
  void SetUpgradeBox(CheckBoxState state) override;
  void SetUpgradeLinkVisible(bool visible) override;
  void SetUpgradeLinkCaption(std::string_view caption) override;

  void OpenAddress(std::string_view address) override;
  [[nodiscard]] MessageBoxes& Messages() override { return messages_; }
  [[nodiscard]] InputBoxes& Inputs() override { return inputs_; }

  [[nodiscard]] std::string FeedbackText() const override;
  void SetFeedbackText(std::string_view text) override;
  void SetHourglass(bool shown) override;
  std::int32_t TickCount() override { return clock_(); }
  void Yield() override;

 private:
  FormControls& controls_;
  MessageBoxes& messages_;
  InputBoxes& inputs_;
  std::function<std::int32_t()> clock_;
};

}  // namespace quillon
