#pragma once

// Colours as the program uses them: red, green and blue from 0 to 255.

#include <cstdint>
#include <string>

namespace quillon {

struct Rgb {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;

  bool operator==(const Rgb&) const = default;
};

/// A colour from components of any size: above 255 counts as 255, below 0 as 0.
[[nodiscard]] Rgb MakeRgb(int red, int green, int blue);

/// "#rrggbb" in lower-case hexadecimal digits: (200, 255, 200) is "#c8ffc8".
[[nodiscard]] std::string ColorText(Rgb color);

}  // namespace quillon
