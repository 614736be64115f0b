#pragma once

// The input screens, one for each scenario: which boxes and lists of the main window hold its situation, and what the
// Progress screen says during its run. A row's index is that of its start button.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "analysis/scenarios.h"

namespace quillon {

/// The boxes for amounts, by their index in `txtNumber`.
inline constexpr std::int16_t kCallPotBox = 0;  // "Preflop Call": the pot, including the opponent's bet
inline constexpr std::int16_t kCallCallBox = 1;  // what the user must put in
inline constexpr std::int16_t kRaisePotBox = 2;  // "Preflop Raise": the pot
inline constexpr std::int16_t kRaiseCallBox = 3;  // what the user must put in to stay in, 0 if he is first to act
inline constexpr std::int16_t kRaiseShoveBox = 4;  // what the opponent must put in to call the user's shove

/// The lists from which ranges are chosen, by their index in `cmboRanges`.
inline constexpr std::int16_t kCallRangeList = 0;
inline constexpr std::int16_t kRaiseRangeList = 1;
inline constexpr std::int16_t kRaiseCallingRangeList = 2;
inline constexpr std::int16_t kEquityRangeList = 3;

/// The index of a box or list that a screen does not have.
inline constexpr std::int16_t kNoControl = -1;

struct InputScreen {
  AnalysisMode Mode = AnalysisMode::kNone;
  std::array<std::int16_t, kAmounts.size()> AmountBoxes{};  // pot, call, shove
  std::array<std::int16_t, 2> RangeLists{};  // the opponent's range, his calling range
  std::string_view ProgressMessage;
  bool MessageNamesRange = false;  // the range's name follows the message
};

inline constexpr ScenarioTable<InputScreen> kInputScreens = {{
    {.Mode = AnalysisMode::kPreflopCall,
     .AmountBoxes = {kCallPotBox, kCallCallBox, kNoControl},
     .RangeLists = {kCallRangeList, kNoControl},
     .ProgressMessage = "Please wait while we determine what hands you should go ALL IN with...",
     .MessageNamesRange = false},
    {.Mode = AnalysisMode::kPreflopRaise,
     .AmountBoxes = {kRaisePotBox, kRaiseCallBox, kRaiseShoveBox},
     .RangeLists = {kRaiseRangeList, kRaiseCallingRangeList},
     .ProgressMessage = "Please wait while we determine what hands you should go ALL IN with...",
     .MessageNamesRange = false},
    {.Mode = AnalysisMode::kEquityOnly,
     .AmountBoxes = {kNoControl, kNoControl, kNoControl},
     .RangeLists = {kEquityRangeList, kNoControl},
     // Intentional: "determing" is the established spelling here.
     .ProgressMessage = "Quillon is determing your equity vs the following range: \r\n",
     .MessageNamesRange = true},
}};
static_assert(CoversEveryScenario(kInputScreens));
static_assert(std::ranges::all_of(kInputScreens, [](const InputScreen& screen) {
  const Scenario& scenario = ScenarioOf(screen.Mode);
  for (std::size_t i = 0; i < kAmounts.size(); ++i) {
    if ((screen.AmountBoxes.at(i) != kNoControl) != (i < scenario.AmountCount)) return false;
  }
  return screen.RangeLists[0] != kNoControl && (screen.RangeLists[1] != kNoControl) == scenario.HasCallingRange;
}));

/// The screen of the button `cmdPreflopEV(index)`; any other index gives "Preflop Raise".
[[nodiscard]] constexpr const InputScreen& ScreenOfButton(std::int16_t index) {
  const bool exists = index >= 0 && static_cast<std::size_t>(index) < kInputScreens.size();
  return exists ? kInputScreens.at(static_cast<std::size_t>(index)) : RowOf(kInputScreens, AnalysisMode::kPreflopRaise);
}

}  // namespace quillon
