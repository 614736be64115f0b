#include "results/web_addresses.h"

namespace quillon {

std::string_view WebHost() {
  return QUILLON_WEB_HOST;
}

std::string HomeAddress() {
  return "http://" + std::string(WebHost()) + "/quillon/";
}

}  // namespace quillon
