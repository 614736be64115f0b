#pragma once

// A situation as an input screen has it, saved as one line of a batch ("study/batch_line.h"), so that its file is a
// batch of one:
//
//     {"mode":"raise","pot":"1.5","call":"=1-0.5","shove":"9","range":"Everything","calling_range":"Tight"}
//
// Amounts are texts, as typed; ranges are names. What the screen does not ask for is not there, and an empty box or
// list is the empty text. The way back takes any line of a batch, whoever wrote it, as far as the screen has a place
// for it.

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "analysis/entered_situation.h"

namespace quillon {

/// What an input screen holds. Of `Entered` the amounts and the names of ranges count.
struct ScreenSituation {
  AnalysisMode Mode = AnalysisMode::kNone;
  EnteredSituation Entered;
};

/// What is to be written to a situation's file: its line and a line feed. A fault is told where there is one, such as
/// "\"pot\" has more than 1000 bytes": nobody could read that line.
struct SituationText {
  std::string Line;
  std::string Fault;
};

/// The text of a situation, which has a scenario.
[[nodiscard]] SituationText TextOfSituation(const ScreenSituation& situation);

/// A situation that was read, with a sentence on each thing that the screen does not take of it. Sums are worked out,
/// as they are once a user has left the box; one that cannot be is as it is written. What was not taken is the empty
/// text.
struct ReadSituation {
  ScreenSituation Situation;
  std::vector<std::string> NotTaken;
};

/// The situation in the bytes of a file: its first line that is not blank. Otherwise why it holds none: the line is no
/// JSON object, or its mode is missing or unknown. Whether there are ranges of these names is not asked. Never fails.
[[nodiscard]] std::variant<ReadSituation, std::string> SituationOfText(std::string_view bytes);

}  // namespace quillon
