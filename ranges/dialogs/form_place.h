#pragma once

// Where a form stands on the screen.

#include <QWidget>

#include "shell/window_place.h"

namespace quillon {

class FormPlace : public PlacedWindow {
 public:
  explicit FormPlace(QWidget& form) : form_(form) {}

  [[nodiscard]] TwipSize WindowSize() const override;
  [[nodiscard]] TwipSize ScreenSize() const override;
  [[nodiscard]] float WindowLeft() const override;
  [[nodiscard]] float WindowTop() const override;
  void MoveWindow(float left, float top) override;

 private:
  QWidget& form_;
};

}  // namespace quillon
