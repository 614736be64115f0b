#pragma once

// The saving of the grid's image ("shell/grid_image.h") from the grid screen.

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
  /// The boxes and the folder's calls outlive the view, as the form and its controls do.
  GridImageView(QWidget& form, const MainControls& controls, MessageBoxes& messages, ProgramFolder folder);

  /// The click on `imgSave`: makes the folder "Saved Grids" if it is missing, asks for a file name, captures the grid,
  /// writes the file, and offers to open it. The dialog offers the name of the last save; a cancelled one saves
  /// nothing.
  ///
  /// RunTimeError, with the path and the reason, if the folder cannot be made, the file not be written, in which case
  /// an old file of that name is still there, or the picture not be opened.
  void Save();

  /// The same region as the window draws it, with nothing over it, not even the hover panel.
  [[nodiscard]] QPixmap Picture() const;

 private:
  [[nodiscard]] QRect GridArea() const;
  [[nodiscard]] std::string CaptureGrid();

  QWidget& form_;
  const MainControls& controls_;
  MessageBoxes& messages_;
  ProgramFolder folder_;
  std::string lastName_;  // of the file that was saved last
};

}  // namespace quillon
