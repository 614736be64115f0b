#include "shell/navigation.h"

#include <optional>

#include "analysis/analysis_driver.h"
#include "results/results_grid.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr Rgb kBlack = {};
constexpr Rgb kDarkGray = {0x40, 0x40, 0x40};
constexpr Rgb kWhite = {0xFF, 0xFF, 0xFF};
constexpr Rgb kPaleYellow = {0xFF, 0xFF, 0xC0};
constexpr Rgb kPaleGreen = {0xCD, 0xFA, 0xED};

constexpr float kBarLeft = -10;
constexpr float kBarHeight = 475;
constexpr float kBarAboveLink = 80;
constexpr float kBarIntoScreen = 20;

std::optional<std::int16_t> FrameOfName(std::string_view name, const NavigationWindow& window) {
  std::optional<std::int16_t> found;
  for (std::int16_t index = 0; index < window.FrameCount(); ++index) {
    if (window.FrameCaption(index) == name) found = index;
  }
  return found;
}

Rgb RestingColor(std::int16_t index, bool selected) {
  const bool leadsToResults = index >= kFirstResultsNav;
  if (selected) return leadsToResults ? kDarkGray : kBlack;
  return leadsToResults ? kPaleYellow : kWhite;
}

}  // namespace

std::int16_t ShowFrame(std::string_view name, NavigationWindow& window) {
  const std::optional<std::int16_t> found = FrameOfName(name, window);
  if (!found) throw RunTimeError(RunTimeFault::kInvalidProcedureCall, "no screen is called " + std::string(name));

  for (std::int16_t index = 0; index < window.FrameCount(); ++index)
    window.SetFrameVisible(index, index == *found);
  window.SetDefaultPointer();

  const TwipRect panel = window.PanelRect();
  const float left = panel.Left + panel.Width;
  window.SetFrameRect(*found,
                      {.Left = left, .Top = 0, .Width = window.WindowSize().Width - left, .Height = kFrameHeight});
  window.SetFrameColor(*found, kWhite);
  window.RemoveFrameBorder(*found);
  window.RaiseFrame(*found);
  return *found;
}

void ClickNav(std::int16_t index, NavigationState& state, NavigationWindow& window) {
  window.RefreshRangeLists();
  const std::int16_t frame = ShowFrame(window.NavCaption(index), window);

  window.SetSelectionBarRect({.Left = kBarLeft,
                              .Top = window.NavTop(index) - kBarAboveLink,
                              .Width = window.FrameRect(frame).Left - kBarLeft + kBarIntoScreen,
                              .Height = kBarHeight});
  window.ShowSelectionBar();
  state.SelectedNav = index;
  ResetLinkForecolors(index, window);

  if (index != kDetailsNav) return;
  window.SelectOutputType(0);
  // Where the entry was selected already, selecting it raises no click that would build the report.
  window.BuildReport();
}

void ResetLinkForecolors(std::int16_t selected, NavigationWindow& window) {
  for (std::int16_t index = 0; index < window.NavCount(); ++index) {
    window.SetNavColor(index, RestingColor(index, index == selected));
    window.SetNavUnderline(index, index == selected);
  }
}

void ResetLinkColors(const NavigationState& state, NavigationWindow& window) {
  for (std::int16_t index = 0; index < window.NavCount(); ++index) {
    if (index == state.SelectedNav || !window.IsNavVisible(index)) continue;
    window.SetNavUnderline(index, false);
    window.SetNavColor(index, kWhite);
  }
}

void HoverNav(std::int16_t index, const NavigationState& state, NavigationWindow& window) {
  window.ShowHandCursor();
  if (index == state.SelectedNav) {
    window.SetNavColor(index, kBlack);
    return;
  }
  if (window.IsNavUnderlined(index)) return;
  window.SetNavColor(index, kPaleGreen);
  window.SetNavUnderline(index, true);
}

void ClickLogo(const NavigationState& state, NavigationWindow& window) {
  window.HidePanelFooter();
  ResetLinkColors(state, window);
  ResetLinkForecolors(-1, window);
  ShowFrame(kAboutScreen, window);
}

void HoverNoResults(std::string_view caption, NavigationWindow& window) {
  if (caption == kWaitCaption) window.ShowHandCursor();
}

}  // namespace quillon
