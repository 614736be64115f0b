#include <cstdio>

#include "toolkit/start_failure.h"

namespace quillon {

void TellStartFailure(const std::string& text) {
  std::fputs((text + "\n").c_str(), stderr);
}

}  // namespace quillon
