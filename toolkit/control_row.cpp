#include "toolkit/control_row.h"

namespace quillon {

std::string ObjectName(std::string_view name, std::int16_t index) {
  if (index == kNoIndex) return std::string(name);
  return std::string(name) + "(" + std::to_string(index) + ")";
}

}  // namespace quillon
