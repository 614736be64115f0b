#pragma once

// The grid as a picture file: a copy of the screen where the grid is, with its title and footer, and with whatever
// covers it. The picture is a Windows bitmap under exactly the name that the user gives, by default in the folder
// "Saved Grids" of the program's folder.

#include <cstdint>
#include <string_view>

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
};

/// A rectangle by its corner and size, in pixels.
struct PixelRect {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Width = 0;
  std::int32_t Height = 0;

  bool operator==(const PixelRect&) const = default;
};

/// The edges of a control, each rounded to a whole twip, ties to even.
[[nodiscard]] CaptureRect CaptureRectOf(const TwipRect& rect);

/// A rectangle in pixels, with this many twips to the pixel, each of the four numbers rounded on its own, ties to even.
/// The grid's place, 240,180 to 6375,7995, is 16,12 and 409 by 521 pixels at 15 twips to the pixel.
[[nodiscard]] PixelRect PixelsOf(const CaptureRect& rect, double twipsPerPixelX, double twipsPerPixelY);

/// The title and the filter of the save dialog: a caption, " | ", and the file names it lists.
inline constexpr std::string_view kSaveImageTitle = "Save Expected Value Grid";
inline constexpr std::string_view kSaveImageFilter = "24-bit Bitmap | *.bmp";

inline constexpr std::string_view kOpenNowTitle = "Open Now?";

/// After a save: whether to open the picture, Yes or No.
[[nodiscard]] Message OpenImageQuestion();

}  // namespace quillon
