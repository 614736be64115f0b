#include "shell/navigation.h"

namespace quillon {
namespace {

constexpr Rgb kBlack = {};
constexpr Rgb kDarkGray = {0x40, 0x40, 0x40};
constexpr Rgb kWhite = {0xFF, 0xFF, 0xFF};
constexpr Rgb kPaleGreen = {0xCD, 0xFA, 0xED};

constexpr float kBarLeft = -10;
constexpr float kBarHeight = 475;
constexpr float kBarAboveLink = 80;
constexpr float kBarIntoScreen = 20;

}  // namespace

LinkLook RestingLink(std::int16_t index, bool selected) {
  const bool leadsToResults = index >= kGridNav;
  if (selected) return {.Color = leadsToResults ? kDarkGray : kBlack, .Underlined = true};
  return {.Color = leadsToResults ? kPaleYellow : kWhite};
}

LinkLook HoveredLink(LinkLook before, bool selected) {
  if (selected) return {.Color = kBlack, .Underlined = before.Underlined};
  return before.Underlined ? before : LinkLook{.Color = kPaleGreen, .Underlined = true};
}

TwipRect ScreenPlace(const TwipRect& panel, float windowWidth) {
  const float left = panel.Left + panel.Width;
  return {.Left = left, .Top = 0, .Width = windowWidth - left, .Height = kScreenHeight};
}

TwipRect SelectionBarPlace(float linkTop, float screenLeft) {
  return {.Left = kBarLeft,
          .Top = linkTop - kBarAboveLink,
          .Width = screenLeft - kBarLeft + kBarIntoScreen,
          .Height = kBarHeight};
}

}  // namespace quillon
