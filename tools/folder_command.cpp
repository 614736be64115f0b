#include <ostream>

#include "tools/commands.h"

namespace quillon {

RunCommand OfferFolderPath(CLI::App& /*options*/) {
  return [](const Surroundings& surroundings) {
    surroundings.Output << surroundings.ProgramFolder().string() << '\n';
    return kDone;
  };
}

}  // namespace quillon
