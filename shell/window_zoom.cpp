#include "shell/window_zoom.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "shell/settings_file.h"

namespace quillon {
namespace {

constexpr std::string_view kSection = "View";
constexpr std::string_view kKey = "Zoom";

// The window manager's decoration, which is unknown before the window is shown; most title bars are lower.
constexpr float kTitleBar = 40 * kTwipsPerPixel;
constexpr float kSideBorders = 4 * kTwipsPerPixel;

bool Fits(int percent, TwipSize window, TwipSize screen) {
  const float scale = static_cast<float>(percent) / kDesignZoom;
  return window.Width * scale + kSideBorders <= screen.Width && window.Height * scale + kTitleBar <= screen.Height;
}

}  // namespace

int LargerZoom(int percent) {
  const auto* const larger = std::ranges::upper_bound(kZoomSteps, percent);
  return larger == kZoomSteps.end() ? kZoomSteps.back() : *larger;
}

int SmallerZoom(int percent) {
  const auto* const same = std::ranges::lower_bound(kZoomSteps, percent);
  return same == kZoomSteps.begin() ? kZoomSteps.front() : *std::prev(same);
}

int FittingZoom(TwipSize window, TwipSize screen) {
  int percent = kDesignZoom;
  while (percent > kZoomSteps.front() && !Fits(percent, window, screen))
    percent = SmallerZoom(percent);
  return percent;
}

std::optional<int> StoredZoom(const ProgramFolder& folder) {
  const std::string text = ReadIniValue(kSection, kKey, folder);
  const auto* const step = std::ranges::find(kZoomSteps, text, [](int percent) { return std::to_string(percent); });
  if (step == kZoomSteps.end()) return std::nullopt;
  return *step;
}

void StoreZoom(int percent, const ProgramFolder& folder) {
  WriteIniValue(kSection, kKey, std::to_string(percent), folder);
}

}  // namespace quillon
