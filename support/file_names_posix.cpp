#include "support/file_names.h"

namespace quillon {

std::string_view NameFault(std::string_view /*name*/) {
  return {};
}

bool IsSameName(std::string_view first, std::string_view second) {
  return first == second;
}

}  // namespace quillon
