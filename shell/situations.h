#pragma once

// Situations that a player keeps: what an input screen holds, saved under a name with Ctrl+S and brought back with
// Ctrl+O. The situation called "Button 12" is the file "Situations/Button 12.json" in the program's folder, a batch of
// one line ("study/situation_file.h"), and may as well be one that the user has put there. Names keep to the rules of
// ranges. The folder is made by the first save.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ranges/range_files.h"
#include "study/situation_file.h"
#include "support/input_boxes.h"
#include "support/message_boxes.h"

namespace quillon {

/// The folder of saved situations: "Situations" in the program's folder.
[[nodiscard]] std::filesystem::path SituationFolderPath(const ProgramFolder& folder);

/// The file of the situation called `name` in it (FileOfName): the name, ".json".
[[nodiscard]] std::filesystem::path SituationFilePath(const ProgramFolder& folder, std::string_view name);

/// The names of all saved situations, sorted as those of ranges are; none where there is no folder. Other files than
/// NAME.json are not listed. RunTimeError, with the folder and the reason, if it is there and cannot be read.
[[nodiscard]] std::vector<std::string> SituationNames(const ProgramFolder& folder);

/// Asks for a name, with `proposed` in the line, and saves the situation under it: the name, once the user has been
/// told. Nothing where the box was cancelled, where the user was told that the name is none that a file can have or
/// that the situation is one that could not be read, or where he does not want another of that name replaced.
/// RunTimeError, with the file and the reason, if it cannot be written; what was there before is then whole.
[[nodiscard]] std::optional<std::string> AskAndSaveSituation(const ScreenSituation& situation,
                                                             std::string_view proposed, const ProgramFolder& folder,
                                                             InputBoxes& inputs, MessageBoxes& messages);

/// A situation for the window to show.
struct OpenedSituation {
  ScreenSituation Situation;
  std::optional<Message> Remarks;  // what could not be taken of the file, to be told once the rest shows
};

/// The situation of that name, with the empty text for a range that is not there. Nothing, and the user has been told
/// why, where its file cannot be read or holds none.
[[nodiscard]] std::optional<OpenedSituation> OpenSituation(std::string_view name, const ProgramFolder& folder,
                                                           MessageBoxes& messages);

/// Deletes the file of that name if the user agrees. Returns whether he did. RunTimeError, with the file and the
/// reason, if that fails.
[[nodiscard]] bool AskAndDeleteSituation(std::string_view name, const ProgramFolder& folder, MessageBoxes& messages);

/// After a save.
[[nodiscard]] Message SituationSavedMessage(std::string_view name);

/// What a screen reader hears once a situation shows.
[[nodiscard]] std::string SituationOpenedText(std::string_view name);

/// After Ctrl+S where no input screen shows, and after Ctrl+O where nothing is saved or a run goes on.
[[nodiscard]] Message NoInputScreenMessage();
[[nodiscard]] Message NoSituationsMessage();
[[nodiscard]] Message RunningMessage();

}  // namespace quillon
