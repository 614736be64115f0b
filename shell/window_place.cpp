#include "shell/window_place.h"

#include <string>

#include "support/number_text.h"

namespace quillon {
namespace {

constexpr std::string_view kLeftKey = "Left";
constexpr std::string_view kTopKey = "Top";

float WithinScreen(std::string_view text, float screenLength) {
  const double position = LeadingNumber(text);
  const bool outside = position > static_cast<double>(screenLength) || position < 0;
  return outside ? 0 : static_cast<float>(position);
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

}  // namespace quillon
