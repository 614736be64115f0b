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

void CenterWindow(PlacedWindow& window) {
  const TwipSize screen = window.ScreenSize();
  const TwipSize size = window.WindowSize();
  window.MoveWindow((screen.Width - size.Width) / 2, (screen.Height - size.Height) / 2);
}

void RestoreWindowPosition(PlacedWindow& window, std::string_view section, const ProgramFolder& folder) {
  const std::string left = ReadIniValue(section, kLeftKey, folder);
  const std::string top = ReadIniValue(section, kTopKey, folder);
  if (left.empty() || top.empty()) {
    CenterWindow(window);
    return;
  }
  const TwipSize screen = window.ScreenSize();
  window.MoveWindow(WithinScreen(left, screen.Width), WithinScreen(top, screen.Height));
}

std::vector<IniSetting> PlaceSettings(const PlacedWindow& window, std::string_view section) {
  const std::string name(section);
  return {{name, std::string(kLeftKey), FloatNumberText(window.WindowLeft())},
          {name, std::string(kTopKey), FloatNumberText(window.WindowTop())}};
}

void SaveWindowPosition(const PlacedWindow& window, std::string_view section, const ProgramFolder& folder) {
  WriteIniValues(PlaceSettings(window, section), folder);
}

}  // namespace quillon
