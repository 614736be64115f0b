#pragma once

// The files that "tests/saving_loop.cpp" writes, so that "tests/saving_journey_test.cpp" can check that they are whole.
// Each consists of one number repeated, so parts of two never make a valid third.

#include <array>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"
#include "ranges/range_text.h"
#include "study/situation_file.h"
#include "support/number_text.h"

namespace quillon {

/// The settings that each of several loops has for itself.
inline constexpr int kKeysOfALoop = 5;

/// The range and the situation that all loops save, besides one of their own under the loop's name, which is renamed
/// back and forth between that and the name with this ending.
inline constexpr std::string_view kSharedRange = "Shared";
inline constexpr std::string_view kMovedEnd = " moved";

/// A range with the same weight for every class.
inline std::string EvenRangeText(double weight) {
  ClassWeights weights{};
  weights.fill(weight);
  return RangeTextOf(weights);
}

/// A setting of some length.
inline std::string LongSetting(int round) {
  std::string text = std::to_string(round);
  for (int repeat = 0; repeat < 100; ++repeat)
    text += ":" + std::to_string(round);
  return text;
}

/// A situation whose texts are such settings.
inline ScreenSituation LongSituation(int round) {
  const std::string text = LongSetting(round);
  return {AnalysisMode::kPreflopRaise, {text, text, text, text, text}};
}

/// The settings' key of a loop.
inline std::string LoopKey(std::string_view loop, int index) {
  return std::string(loop) + std::to_string(index);
}

}  // namespace quillon
