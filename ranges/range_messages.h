#pragma once

// What the range dialogs say and ask. The words are the product's own, odd ones too.

#include <string_view>

#include "support/message_boxes.h"

namespace quillon {

/// A question for a line of text ("support/input_boxes.h").
struct NameQuestion {
  std::string_view Prompt;
  std::string_view Title;
};

// Intentional: the title of New is that of Rename, as players know it.
inline constexpr NameQuestion kAskNewName = {"What do you want to name the range?", "Rename Range"};
inline constexpr NameQuestion kAskSaveAsName = {"What do you want to call the new range?", "Pick a Name"};
inline constexpr NameQuestion kAskRename = {"What do you want to rename the range to?", "Rename Range"};

/// After a save of the range `name`.
[[nodiscard]] Message RangeSavedMessage(std::string_view name);

/// After a rename.
[[nodiscard]] Message RangeRenamedMessage(std::string_view oldName, std::string_view newName);

/// Before a range is deleted: Yes, No or Cancel.
[[nodiscard]] Message DeleteRangeQuestion(std::string_view name);

/// Before the Range Manager closes over a changed range: Yes, No or Cancel.
[[nodiscard]] Message SaveRangeQuestion(std::string_view name);

}  // namespace quillon
