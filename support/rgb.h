#pragma once

// RGB colours with components from 0 to 255.

#include <cstdint>
#include <string>

namespace quillon {

struct Rgb {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;

  bool operator==(const Rgb&) const = default;
};

/// A colour from components of any size, each clamped to 0 to 255.
[[nodiscard]] Rgb MakeRgb(int red, int green, int blue);

/// The blue of headings and frames.
inline constexpr Rgb kBrandBlue = {0x33, 0x66, 0x99};

/// 0xRRGGBB.
[[nodiscard]] constexpr std::int32_t RgbNumber(Rgb color) {
  return color.Red * 0x10000 + color.Green * 0x100 + color.Blue;
}

/// "#rrggbb" in lower-case hexadecimal digits: (200, 255, 200) is "#c8ffc8".
[[nodiscard]] std::string ColorText(Rgb color);

/// How much two colours differ in lightness, from 1 (not at all) to 21 (black and white). Source: the contrast ratio of
/// the Web Content Accessibility Guidelines 2, which want 4.5 for text and 3 for large text.
[[nodiscard]] double ContrastRatio(Rgb one, Rgb other);

/// The text colour for a background: white if its contrast is at least 4.5, otherwise black, which then has more.
[[nodiscard]] Rgb ReadableOn(Rgb ground);

}  // namespace quillon
