#pragma once

// The zoom of the main window and of the dialogs beside it ("shell/window_zoom.h"), with its keys: Ctrl+Plus,
// Ctrl+Minus and, for the size of the design, Ctrl+0. They are heard in every window but while a box wants an answer.

#include <QWidget>

#include "ranges/range_files.h"
#include "shell/window_zoom.h"

namespace quillon {

class ZoomView {
 public:
  /// `form` is the main window, in its place in the layout.
  ZoomView(QWidget& form, ProgramFolder folder);

  /// Takes the zoom that is kept, or the one that fits the screen. Before any window shows.
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
