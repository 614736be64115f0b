#pragma once

// The lists from which the user chooses a range: four combo boxes of the main window, which start with a blank entry
// for "no range", and the list of the Range Manager, which does not. The folder of range files is the only list of
// ranges there is, and these are filled from it anew whenever they are shown.

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ranges/range_files.h"

namespace quillon {

/// What filling needs of a list or combo box. Entries count from 0, and at most one of them is selected.
class ChooserList {
 public:
  virtual ~ChooserList() = default;

  /// The control's name, such as "cmboRanges(0)" or "lstRanges".
  [[nodiscard]] virtual std::string ControlName() const = 0;

  /// The selected entry, the empty text if none is selected.
  [[nodiscard]] virtual std::string CurrentText() const = 0;

  /// Takes all entries out; none is selected then.
  virtual void Clear() = 0;

  /// Adds an entry behind the others.
  virtual void Add(std::string_view text) = 0;

  [[nodiscard]] virtual int Count() const = 0;
  [[nodiscard]] virtual std::string Entry(int index) const = 0;

  /// Selects an entry and raises the list's click event, as a click of the user's on that entry would.
  virtual void Select(int index) = 0;
};

/// The names of all files in the range folder as text (TextOfFileName), whatever their extension, but not of folders
/// in it nor of the program's own scratch files. They are sorted by what they are listed under, without regard to the
/// case of letters of any script (WithoutCase); those that are then equal are in byte order. RunTimeError, with the
/// folder and the reason, if it cannot be read: "Path not found" where it is missing.
[[nodiscard]] std::vector<std::string> RangeFolderEntries(const ProgramFolder& folder);

/// The name that a file is listed under: its own less the last four characters, the length of ".txt". A character is
/// one of UTF-8's, however many bytes it has.
///
///     "Button Shove.txt" -> "Button Shove"      "notes.html" -> "notes."      ".txt" -> ""
///
/// RunTimeError "Invalid procedure call or argument", with the file's name, if it has fewer than four characters.
[[nodiscard]] std::string RangeNameOfFile(std::string_view fileName);

/// Empties a list and fills it from the folder: the blank entry first if the control's name holds "cmbo", then the
/// range of each file. Then it selects the first entry equal to `selection`, or, where `selection` is empty, to what
/// was selected before; if there is no such entry, the first one of all. A list that stays empty selects nothing. Fails
/// as RangeFolderEntries and RangeNameOfFile do, with the list as it was.
void FillRangeList(ChooserList& list, const ProgramFolder& folder, std::string_view selection);

/// Selects the first entry equal to `name`; does nothing if there is none.
void SelectListEntry(ChooserList& list, std::string_view name);

/// Fills each of the lists, in the order given, so that each keeps what it shows where that range still exists: the
/// four combo boxes first, then the Range Manager's list. Fails as FillRangeList does.
void RefreshRangeLists(std::span<ChooserList* const> lists, const ProgramFolder& folder);

}  // namespace quillon
