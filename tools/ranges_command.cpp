#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>
#include <string>

#include "ranges/range_lists.h"
#include "ranges/range_lookup.h"
#include "ranges/range_summary.h"
#include "tools/commands.h"

namespace quillon {
namespace {

std::string ListingLine(const std::string& file, const ProgramFolder& folder) {
  const std::string name = RangeNameOfFile(file);
  const std::string text = LoadRangeText(folder, name);
  return name + '\t' + SelectionCaption(SelectedCombos(text)) + '\t' + RangeSummary(text) + '\n';
}

// One bad file must not hide the others.
int ListRanges(const ProgramFolder& folder, const Surroundings& surroundings) {
  int status = kDone;
  for (const std::string& file : RangeFolderEntries(folder)) {
    const auto line = Attempt([&] { return ListingLine(file, folder); });
    if (line && IsReadable(RangeNameOfFile(file), folder)) {
      surroundings.Output << *line;
      continue;
    }
    surroundings.Errors << (RangeFolderPath(folder) / file).string() << " cannot be read, is empty or no range file.\n";
    status = kFailed;
  }
  return status;
}

}  // namespace

RunCommand OfferRanges(CLI::App& options) {
  const auto folder = std::make_shared<std::string>();
  OfferFolder(options, *folder);
  return [folder](const Surroundings& surroundings) {
    return ListRanges(CommandInputs(surroundings, *folder).Folder(), surroundings);
  };
}

}  // namespace quillon
