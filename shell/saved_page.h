#pragma once

// The messages for saving the results as a web page ("results/analysis_page.h") from the window. The page is a file
// under exactly the name that the user gives, by default in the folder of the pictures.

#include <filesystem>
#include <string_view>

#include "support/message_boxes.h"

namespace quillon {

/// The title and the filter of the save dialog ("toolkit/save_dialog.h").
inline constexpr std::string_view kSavePageTitle = "Save as Web Page";
inline constexpr std::string_view kSavePageFilter = "Web page | *.html";

/// After a save: whether to open the page, Yes or No.
[[nodiscard]] Message OpenPageQuestion();

/// The message if nothing opens it.
[[nodiscard]] Message PageNotOpenedMessage(const std::filesystem::path& page);

}  // namespace quillon
