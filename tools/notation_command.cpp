#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "ranges/range_notation.h"
#include "tools/commands.h"

namespace quillon {

RunCommand OfferNotation(CLI::App& options) {
  struct Request {
    RangeOption range;
    std::string folder;
  };
  const auto request = std::make_shared<Request>();
  OfferRange(options, "--range", "--hands", request->range, "The range");
  OfferFolder(options, request->folder);
  return [request](const Surroundings& surroundings) {
    CommandInputs inputs(surroundings, request->folder);
    const auto range = inputs.Range(request->range);
    if (!range) return inputs.Status();
    surroundings.Output << RangeNotation(range->Text) << '\n';
    return kDone;
  };
}

}  // namespace quillon
