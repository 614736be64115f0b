#pragma once

// The names of ranges. A range is named after its file without the extension, so a new name must be a valid file name
// that no other range has. Other things that the user saves follow the same rules.

#include <filesystem>
#include <optional>
#include <string_view>

#include "ranges/range_files.h"
#include "support/message_boxes.h"

namespace quillon {

/// The program's scratch range: the only name under which a save may silently replace an existing range. Otherwise it
/// is a range like any other.
inline constexpr std::string_view kScratchRangeName = "Temp Range1";

/// The title of a complaint about what the user saves.
inline constexpr std::string_view kErrorTitle = "Error";

/// Whether a new range may have this name. If not, the first rule that it breaks is shown in one message box: it must
/// not be empty; it must not contain any of the eight characters / \ : * ? " < > (the message names "|" as a ninth,
/// which is accepted); no range of that name may exist, unless it is the scratch range; its file name must not be
/// longer than the file system allows, usually 255 bytes, nor one that this system cannot store (NameFault). With
/// `mayReplace` an existing range of that name is allowed.
[[nodiscard]] bool ValidateRangeName(const ProgramFolder& folder, std::string_view name, MessageBoxes& messages,
                                     bool mayReplace = false);

/// The same for renaming an existing range. A name that differs from its own only in case is not taken if the system
/// treats them as one (IsSameName).
[[nodiscard]] bool ValidateNewName(const ProgramFolder& folder, std::string_view oldName, std::string_view newName,
                                   MessageBoxes& messages);

/// The message for a name that no file can have, or nothing: it must not be empty or contain any of the eight
/// characters. `thing` is what is saved under the name, such as "range".
[[nodiscard]] std::optional<Message> NameComplaint(std::string_view thing, std::string_view name);

/// The same for a name whose file name is longer than the file system allows, or one that this system cannot store.
[[nodiscard]] std::optional<Message> SystemComplaint(std::string_view thing, const ProgramFolder& folder,
                                                     std::string_view name, const std::filesystem::path& file);

}  // namespace quillon
