#pragma once

// The zoom of the main window and its dialogs ("shell/window_zoom.h"), with its keys: Ctrl+Plus, Ctrl+Minus and, for
// the original size, Ctrl+0. They work in every window unless a box is waiting for an answer.

#include <QWidget>

#include "ranges/range_files.h"
#include "shell/window_zoom.h"

namespace quillon {

class ZoomView {
 public:
  /// `form` is the main window, at its layout size.
  ZoomView(QWidget& form, ProgramFolder folder);

  /// Applies the stored zoom, or the one that fits the screen. Call before any window is shown.
  void Start();

  [[nodiscard]] int Percent() const { return percent_; }

 private:
  void Choose(int percent);
  void Show(int percent);

  QWidget& form_;
  ProgramFolder folder_;
  int percent_ = kDesignZoom;
};

}  // namespace quillon
