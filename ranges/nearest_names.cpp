#include "ranges/nearest_names.h"

#include <algorithm>
#include <numeric>

#include "support/ascii_text.h"

namespace quillon {

std::size_t EditDistance(std::string_view from, std::string_view to) {
  // distances[i] is the distance from the part of `from` read so far to the first i bytes of `to`.
  std::vector<std::size_t> distances(to.size() + 1);
  std::iota(distances.begin(), distances.end(), std::size_t{0});
  for (const char read : from) {
    std::size_t diagonal = distances[0]++;
    for (std::size_t i = 1; i < distances.size(); ++i) {
      const std::size_t changed = diagonal + (AsciiLower(read) == AsciiLower(to[i - 1]) ? 0 : 1);
      diagonal = distances[i];
      distances[i] = std::min({changed, distances[i] + 1, distances[i - 1] + 1});
    }
  }
  return distances.back();
}

std::vector<std::string> NearestNames(std::string_view wanted, std::vector<std::string> names, std::size_t count) {
  std::ranges::stable_sort(names, {}, [wanted](const std::string& name) { return EditDistance(wanted, name); });
  names.resize(std::min(count, names.size()));
  return names;
}

}  // namespace quillon
