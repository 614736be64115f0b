#include "support/rgb.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace quillon {
namespace {

std::uint8_t Component(int value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

double LinearLight(std::uint8_t component) {
  const double share = component / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(Rgb color) {
  return 0.2126 * LinearLight(color.Red) + 0.7152 * LinearLight(color.Green) + 0.0722 * LinearLight(color.Blue);
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

double ContrastRatio(Rgb one, Rgb other) {
  constexpr double kFlare = 0.05;
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + kFlare) / (darker + kFlare);
}

Rgb ReadableOn(Rgb ground) {
  constexpr Rgb kBlack = {0, 0, 0};
  constexpr Rgb kWhite = {255, 255, 255};
  constexpr double kEnough = 4.5;
  return ContrastRatio(ground, kWhite) >= kEnough ? kWhite : kBlack;
}

}  // namespace quillon
