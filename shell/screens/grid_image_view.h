#pragma once

// Saving the grid's image ("shell/grid_image.h") from the grid screen.

#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <string>

#include "ranges/range_files.h"
#include "shell/screens/main_layout.h"
#include "support/message_boxes.h"

namespace quillon {

class GridImageView {
 public:
  /// All arguments outlive the view.
  GridImageView(QWidget& form, const MainControls& controls, MessageBoxes& messages, ProgramFolder folder);

  /// The click on `imgSave`: creates the folder "Saved Grids" if it is missing, asks for a file name, captures the
  /// grid, writes the file, and offers to open it. The dialog proposes the last name; cancelling saves nothing.
  ///
  /// RunTimeError, with the path and the reason, if the folder cannot be created, the file cannot be written (an old
  /// file of that name is then intact), or the picture cannot be opened.
  void Save();

  /// The same region as the window renders it, with nothing covering it, not even the hover panel.
  [[nodiscard]] QPixmap Picture() const;

 private:
  [[nodiscard]] QRect GridArea() const;
  [[nodiscard]] std::string CaptureGrid();

  QWidget& form_;
  const MainControls& controls_;
  MessageBoxes& messages_;
  ProgramFolder folder_;
  std::string lastName_;  // of the last saved file
};

}  // namespace quillon
