#pragma once

// Saved situations: the contents of an input screen, saved under a name with Ctrl+S and restored with Ctrl+O. The
// situation "Button 12" is the file "Situations/Button 12.json" in the program's folder, a batch of one line
// ("study/situation_file.h"); the user may add files. Names follow the rules for ranges. Saving creates the folder.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ranges/range_files.h"
#include "study/situation_file.h"
#include "support/line_question.h"
#include "support/message_boxes.h"

namespace quillon {

/// The folder of saved situations: "Situations" in the program's folder.
[[nodiscard]] std::filesystem::path SituationFolderPath(const ProgramFolder& folder);

/// The file of the situation `name` in it (FileOfName): the name plus ".json".
[[nodiscard]] std::filesystem::path SituationFilePath(const ProgramFolder& folder, std::string_view name);

/// The names of all saved situations, sorted like those of ranges; none if there is no folder. Only files NAME.json are
/// listed. RunTimeError, with the folder and the reason, if it exists and cannot be read.
[[nodiscard]] std::vector<std::string> SituationNames(const ProgramFolder& folder);

/// Asks for a name, proposing `proposed`, saves the situation and tells the user; returns the name. Nothing if the user
/// cancels or does not want to replace one of that name, or was told that the name is invalid or the situation could
/// not be read again. RunTimeError, with file and reason, if it cannot be written; the old file is then whole.
[[nodiscard]] std::optional<std::string> AskAndSaveSituation(const ScreenSituation& situation,
                                                             std::string_view proposed, const ProgramFolder& folder,
                                                             const AskLine& ask, MessageBoxes& messages);

/// A situation for the window to show.
struct OpenedSituation {
  ScreenSituation Situation;
  std::optional<Message> Remarks;  // what could not be taken from the file, to show afterwards
};

/// The situation of that name, with the empty text for a range that does not exist. Nothing if its file cannot be read
/// or has none, and the user has been told why.
[[nodiscard]] std::optional<OpenedSituation> OpenSituation(std::string_view name, const ProgramFolder& folder,
                                                           MessageBoxes& messages);

/// Deletes the file of that name if the user agrees, and returns whether he did. RunTimeError, with file and reason.
[[nodiscard]] bool AskAndDeleteSituation(std::string_view name, const ProgramFolder& folder, MessageBoxes& messages);

/// After a save.
[[nodiscard]] Message SituationSavedMessage(std::string_view name);

/// What a screen reader announces once a situation is shown.
[[nodiscard]] std::string SituationOpenedText(std::string_view name);

/// After Ctrl+S on a screen without inputs, and after Ctrl+O when nothing is saved or a run is going on.
[[nodiscard]] Message NoInputScreenMessage();
[[nodiscard]] Message NoSituationsMessage();
[[nodiscard]] Message RunningMessage();

}  // namespace quillon
