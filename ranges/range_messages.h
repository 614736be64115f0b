#pragma once

// The messages and questions of the range dialogs. The texts are verbatim, odd ones too.

#include <span>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"
#include "ranges/range_notation.h"
#include "support/line_question.h"
#include "support/message_boxes.h"

namespace quillon {

// Intentional: the title of New is that of Rename, as players know it.
inline constexpr LineQuestion kAskNewName = {"What do you want to name the range?", "Rename Range"};
inline constexpr LineQuestion kAskSaveAsName = {"What do you want to call the new range?", "Pick a Name"};
inline constexpr LineQuestion kAskRename = {"What do you want to rename the range to?", "Rename Range"};
inline constexpr LineQuestion kAskTopShare = {"What percentage of all hands, the best first?", "Top x%"};

/// After a save of the range `name`.
[[nodiscard]] Message RangeSavedMessage(std::string_view name);

/// After a rename.
[[nodiscard]] Message RangeRenamedMessage(std::string_view oldName, std::string_view newName);

/// Before a range is deleted: Yes, No or Cancel.
[[nodiscard]] Message DeleteRangeQuestion(std::string_view name);

/// Before the Range Manager closes over a changed range: Yes, No or Cancel.
[[nodiscard]] Message SaveRangeQuestion(std::string_view name);

/// The text to paint is not a notation, or not one that a grid can show: its place, with the reason.
[[nodiscard]] Message NotARangeMessage(std::string_view notation, const NotationError& error);

/// The answer to kAskTopShare is not a share.
[[nodiscard]] Message NotAShareMessage();

/// Tells a player that a range's file has weights that a grid cannot show; the empty text if all weights are 0, 0.5 or
/// 1. A long list is cut. Two lines, separated by CR LF.
///
///     The range "Loose" has weights that the grid cannot show, and saving drops them:
///     QQ:0.25,AJs+:0.7
[[nodiscard]] std::string LostWeightsNote(std::string_view name, std::span<const double, kHandClassCount> weights);

}  // namespace quillon
