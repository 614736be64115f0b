#pragma once

// The grid as a picture file: what the screen shows where the grid stands, with its title and its footer, and with
// whatever lies over it. The picture is a Windows bitmap under the very name that the user gives, in the folder "Saved
// Grids" of the program's folder where he chooses no other.

#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>

#include "ranges/range_files.h"
#include "support/message_boxes.h"
#include "support/twips.h"

namespace quillon {

/// A rectangle by its edges, in whole twips.
struct CaptureRect {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;

  bool operator==(const CaptureRect&) const = default;
  friend std::ostream& operator<<(std::ostream& stream, const CaptureRect& rect) {
    return stream << rect.Left << "," << rect.Top << " to " << rect.Right << "," << rect.Bottom;
  }
};

/// A rectangle by its corner and size, in pixels.
struct PixelRect {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Width = 0;
  std::int32_t Height = 0;

  bool operator==(const PixelRect&) const = default;
  friend std::ostream& operator<<(std::ostream& stream, const PixelRect& rect) {
    return stream << rect.Left << "," << rect.Top << " " << rect.Width << " by " << rect.Height;
  }
};

/// The edges of a control, each rounded to a whole twip, ties to even.
[[nodiscard]] CaptureRect CaptureRectOf(const TwipRect& rect);

/// The pixels of a rectangle on a screen with so many twips to the pixel, each of the four numbers rounded on its own,
/// ties to even. The grid's place, 240,180 to 6375,7995, is 16,12 and 409 by 521 pixels at 15 twips to the pixel.
[[nodiscard]] PixelRect PixelsOf(const CaptureRect& rect, double twipsPerPixelX, double twipsPerPixelY);

/// A save dialog, before it is shown.
struct SaveDialog {
  std::string Filter;  // what it says, " | ", the file names it lists
  std::string Title;
  std::filesystem::path StartFolder;
  std::string FileName;  // stands in its line; empty at the first time

  bool operator==(const SaveDialog&) const = default;
};

/// What saving needs of the screen "ALL IN Grid".
class GridImageWindow {
 public:
  virtual ~GridImageWindow() = default;

  /// The place of the shape `GridContainer` on `frameContent(1)`.
  [[nodiscard]] virtual TwipRect GridContainer() const = 0;

  /// Shows the dialog and returns the path of the file chosen, the empty text if it is cancelled. The name is taken as
  /// it was typed: no extension is added, quotes are part of it, and a file that is there is no reason to ask.
  virtual std::string AskSaveName(const SaveDialog& dialog) = 0;

  /// What the screen shows in that part of `frameContent(1)`, as the bytes of a bitmap file.
  [[nodiscard]] virtual std::string CaptureRegion(const CaptureRect& rect) = 0;

  [[nodiscard]] virtual MessageBoxes& Messages() = 0;

  /// Opens a picture file in the image program of the desktop. RunTimeError if that cannot be started.
  virtual void OpenImage(const std::string& fileName) = 0;
};

/// The click on `imgSave`: makes the folder "Saved Grids" if it is missing, asks for a file name, captures the grid,
/// writes the file, and offers to open it. Returns the name that the next dialog offers, to be handed over as
/// `earlierName` at the next click: that of the last save, empty before the first. A cancelled dialog saves nothing.
///
/// RunTimeError, with the path and the reason, if the folder cannot be made or the file not be written, in which case
/// an old file of that name is still there.
[[nodiscard]] std::string SaveGridImage(const std::string& earlierName, GridImageWindow& window,
                                        const ProgramFolder& folder);

}  // namespace quillon
