#pragma once

// An input screen's situation, saved as one line of a batch ("study/batch_line.h"), so that its file is a batch of one:
//
//     {"mode":"raise","pot":"1.5","call":"=1-0.5","shove":"9","range":"Everything","calling_range":"Tight"}
//
// Amounts are texts, as typed; ranges are names. What the screen does not ask for is left out, and an empty box or list
// is the empty text. Reading accepts any line of a batch, whoever wrote it, and takes what the screen has a place for.

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "analysis/entered_situation.h"

namespace quillon {

/// The contents of an input screen. Only the amounts and range names of `Entered` count.
struct ScreenSituation {
  AnalysisMode Mode = AnalysisMode::kNone;
  EnteredSituation Entered;
};

/// The text of a situation's file: its line and a line feed. Or a fault, such as "\"pot\" has more than 1000 bytes",
/// because of which the line could not be read again.
struct SituationText {
  std::string Line;
  std::string Fault;
};

/// The text of a situation, which must have a scenario.
[[nodiscard]] SituationText TextOfSituation(const ScreenSituation& situation);

/// A situation that was read, with a sentence on each thing that the screen cannot take. Sums are evaluated, as when a
/// user leaves a box; an invalid one stays as written. What was not taken is the empty text.
struct ReadSituation {
  ScreenSituation Situation;
  std::vector<std::string> NotTaken;
};

/// The situation in the bytes of a file: its first non-blank line. Or the error: the line is not a JSON object, or its
/// mode is missing or unknown. Does not check whether the ranges exist. Never fails.
[[nodiscard]] std::variant<ReadSituation, std::string> SituationOfText(std::string_view bytes);

}  // namespace quillon
