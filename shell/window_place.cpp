#include "shell/window_place.h"

#include <algorithm>
#include <string>

#include "support/number_text.h"

namespace quillon {
namespace {

constexpr std::string_view kLeftKey = "Left";
constexpr std::string_view kTopKey = "Top";
constexpr std::string_view kWidthKey = "Width";
constexpr std::string_view kHeightKey = "Height";

float WithinScreen(std::string_view text, float screenLength) {
  const double position = LeadingNumber(text);
  const bool outside = position > static_cast<double>(screenLength) || position < 0;
  return outside ? 0 : static_cast<float>(position);
}

float LengthOf(std::string_view text, float least) {
  const double length = LeadingNumber(text);
  return static_cast<float>(std::clamp(length, static_cast<double>(least), static_cast<double>(kMostWindowLength)));
}

}  // namespace

TwipPoint CenteredCorner(TwipSize window, TwipSize screen) {
  return {.Left = (screen.Width - window.Width) / 2, .Top = (screen.Height - window.Height) / 2};
}

TwipPoint StoredCorner(std::string_view section, TwipSize window, TwipSize screen, const ProgramFolder& folder) {
  const std::string left = ReadIniValue(section, kLeftKey, folder);
  const std::string top = ReadIniValue(section, kTopKey, folder);
  if (left.empty() || top.empty()) return CenteredCorner(window, screen);
  return {.Left = WithinScreen(left, screen.Width), .Top = WithinScreen(top, screen.Height)};
}

std::vector<IniSetting> PlaceSettings(std::string_view section, TwipPoint corner) {
  const std::string name(section);
  return {{name, std::string(kLeftKey), FloatNumberText(corner.Left)},
          {name, std::string(kTopKey), FloatNumberText(corner.Top)}};
}

TwipSize StoredSize(std::string_view section, TwipSize least, TwipSize otherwise, const ProgramFolder& folder) {
  const std::string width = ReadIniValue(section, kWidthKey, folder);
  const std::string height = ReadIniValue(section, kHeightKey, folder);
  if (width.empty() || height.empty()) return otherwise;
  return {.Width = LengthOf(width, least.Width), .Height = LengthOf(height, least.Height)};
}

std::vector<IniSetting> SizeSettings(std::string_view section, TwipSize size) {
  const std::string name(section);
  return {{name, std::string(kWidthKey), FloatNumberText(size.Width)},
          {name, std::string(kHeightKey), FloatNumberText(size.Height)}};
}

}  // namespace quillon
