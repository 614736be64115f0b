#pragma once

#include <array>
#include <string_view>

#include "ranges/range_text.h"

namespace quillon {

/// A weight for each class from two bits each, the lowest first; 0 after the last bit.
inline ClassWeights AnyWeights(std::string_view bits) {
  constexpr std::array<double, 4> kWeights = {0, 0.5, 1, 0.25};
  ClassWeights weights{};
  for (std::size_t i = 0; i < weights.size() && i / 4 < bits.size(); ++i)
    weights[i] = kWeights[(static_cast<unsigned char>(bits[i / 4]) >> (2 * (i % 4))) & 3U];
  return weights;
}

}  // namespace quillon
