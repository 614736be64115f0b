#include "support/rgb.h"

#include <algorithm>
#include <string_view>

namespace quillon {
namespace {

std::uint8_t Component(int value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

}  // namespace

Rgb MakeRgb(int red, int green, int blue) {
  return {Component(red), Component(green), Component(blue)};
}

std::string ColorText(Rgb color) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "#";
  for (const std::uint8_t component : {color.Red, color.Green, color.Blue}) {
    text += kDigits[component / 16];
    text += kDigits[component % 16];
  }
  return text;
}

}  // namespace quillon
