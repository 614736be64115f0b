#pragma once

// The grid screen as the saving of its image sees it.

#include "shell/grid_image.h"
#include "toolkit/form_builder.h"

namespace quillon {

class GridImageView : public GridImageWindow {
 public:
  GridImageView(QWidget& form, FormControls& controls, MessageBoxes& messages)
      : form_(form), controls_(controls), messages_(messages) {}

  [[nodiscard]] TwipRect GridContainer() const override;
  std::string AskSaveName(const SaveDialog& dialog) override;

  /// The pixels of the screen itself, whatever lies over the window there. A screen that does not let itself be copied
  /// gives the window's own drawing instead. At a higher scale these are the screen's own, finer pixels.
  [[nodiscard]] std::string CaptureRegion(const CaptureRect& rect) override;

  [[nodiscard]] MessageBoxes& Messages() override { return messages_; }
  void OpenImage(const std::string& fileName) override;

 private:
  QWidget& form_;
  FormControls& controls_;
  MessageBoxes& messages_;
};

}  // namespace quillon
