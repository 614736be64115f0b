#include <CLI/CLI.hpp>
#include <memory>

#include "tools/commands.h"
#include "tools/saved_range.h"

namespace quillon {

RunCommand OfferSave(CLI::App& options) {
  struct Request {
    std::string name;
    RangeOption range;
    bool replace = false;
    std::string folder;
  };
  const auto request = std::make_shared<Request>();
  options.add_option("name", request->name, "The name to save it under")->required()->type_name("NAME");
  OfferRange(options, "--range", "--hands", request->range, "The range");
  options.add_flag("--replace", request->replace, "Replaces a range of that name");
  OfferFolder(options, request->folder);
  return [request](const Surroundings& surroundings) {
    CommandInputs inputs(surroundings, request->folder);
    const auto range = inputs.Range(request->range);
    if (!range) return inputs.Status();
    if (!MaySave(inputs, request->name, request->replace, surroundings)) return inputs.Status();
    SaveRangeText(inputs.Folder(), request->name, range->Text);
    return kDone;
  };
}

}  // namespace quillon
