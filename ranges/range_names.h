#pragma once

// The names of ranges. A range's name is the name of its file less the extension, so a new name must be one that a file
// can have and that no other range has yet. Whatever else the user saves under a name keeps to the same rules.

#include <filesystem>
#include <optional>
#include <string_view>

#include "ranges/range_files.h"
#include "support/message_boxes.h"

namespace quillon {

/// The scratch range of the program's own: the one name under which a save may replace an existing range without a
/// word. In everything else it is a range like any other.
inline constexpr std::string_view kScratchRangeName = "Temp Range1";

/// Whether a new range may take this name. The first of these that the name fails is told to the user in one message
/// box, and the answer is false: it must not be empty; it must hold none of the eight characters / \ : * ? " < > (the
/// message names "|" as a ninth, which is let through); no range of that name may exist, unless it is the scratch
/// range; its file's name must not be longer than the file system takes, 255 bytes as a rule, nor one that this system
/// stores no file under (NameFault). With `mayReplace` an existing range of that name is allowed.
[[nodiscard]] bool ValidateRangeName(const ProgramFolder& folder, std::string_view name, MessageBoxes& messages,
                                     bool mayReplace = false);

/// The same for a range that is there and gets another name. A name that only spells its own in other letters is no
/// other range's where the system does not tell the two apart (IsSameName).
[[nodiscard]] bool ValidateNewName(const ProgramFolder& folder, std::string_view oldName, std::string_view newName,
                                   MessageBoxes& messages);

/// What the user is told of a name that no file can have, and nothing of any other: it must not be empty, and must hold
/// none of the eight characters. `thing` is what is saved under the name, such as "range".
[[nodiscard]] std::optional<Message> NameComplaint(std::string_view thing, std::string_view name);

/// The same of a name that makes its file's longer than the file system takes, and then of one that this system stores
/// no file under.
[[nodiscard]] std::optional<Message> SystemComplaint(std::string_view thing, const ProgramFolder& folder,
                                                     std::string_view name, const std::filesystem::path& file);

}  // namespace quillon
