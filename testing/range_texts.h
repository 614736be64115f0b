#pragma once

// Range texts for tests, made without the routines under test.

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "hand/hand_classes.h"

namespace quillon {

/// A range text with these weights and all other classes at `others`.
[[nodiscard]] inline std::string RangeWith(std::initializer_list<std::pair<std::string_view, double>> weights,
                                           double others = 0) {
  std::ostringstream text;
  text.precision(15);
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    double weight = others;
    for (const auto& [label, wanted] : weights)
      weight = label == HandLabel(index) ? wanted : weight;
    text << HandLabel(index) << " (" << weight << "), ";
  }
  return text.str();
}

/// A range text with every class at one weight.
[[nodiscard]] inline std::string EveryHandAt(double weight) {
  return RangeWith({}, weight);
}

/// Whether `label` is one of the words of `labels`.
[[nodiscard]] inline bool HasLabel(const std::string& labels, std::string_view label) {
  std::istringstream words(labels);
  for (std::string word; words >> word;) {
    if (word == label) return true;
  }
  return false;
}

/// The range text of two lists of labels separated by spaces: those at 1 and those at 0.5.
[[nodiscard]] inline std::string TextWith(const std::string& full, const std::string& half = {}) {
  std::string text;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string label(HandLabel(index));
    text += label + (HasLabel(full, label) ? " (1), " : HasLabel(half, label) ? " (0.5), " : " (0), ");
  }
  return text;
}

/// All 169 labels separated by spaces.
[[nodiscard]] inline std::string AllLabels() {
  std::string labels;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    labels.append(HandLabel(index)).append(" ");
  return labels;
}

}  // namespace quillon
