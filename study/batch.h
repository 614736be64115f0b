#pragma once

// Many situations, as a filter: the text of a line in, the text of a line out. A line is one JSON object with what a
// command line of the companion would say:
//
//     {"id": 7, "mode": "raise", "pot": 1.5, "call": "=1-0.5", "shove": 9, "hands": "any", "calling_range": "Tight"}
//
// Amounts are numbers or texts as in an amount box. A range is "range", the name of a file, or "hands", a notation;
// "calling_range" and "calling_hands" likewise. "id" is a text or an integer of any size, and comes first in the
// answer. A key whose value is null counts as missing; unknown and repeated keys are refused, and so is what the mode
// does not ask for. A byte-order mark before a line is skipped.
//
// The equity table and the saved ranges are read once and kept as numbers, which changes no digit of a result
// ("analysis/range_sources.h").

#include <array>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "analysis/analysis.h"
#include "analysis/range_sources.h"
#include "ranges/range_files.h"
#include "study/batch_line.h"
#include "study/given_range.h"

namespace quillon {

/// A valid line.
struct BatchQuestion {
  std::string Id;  // as JSON; "null" if there is none
  quillon::Situation Situation;
  ClassWeights Range{};
  ClassWeights CallingRange{};
  std::string Warning;  // about amounts that a comma cuts short; usually empty
};

/// A refused line.
struct BatchRefusal {
  std::string Id;  // as far as the line could be read
  std::string Reason;
};

/// The answer to a line.
struct BatchAnswer {
  std::string Line;  // JSON, without a line end
  bool Refused = false;
  std::string Warning;
};

/// Answers lines; thread-safe.
class Batch {
 public:
  /// Saved ranges are those of `folder`. A result has its id and the named fields, which are among AnalysisFieldNames,
  /// or all fields if none are named; the name "id" selects the id alone. The equity table must be loaded.
  explicit Batch(ProgramFolder folder, std::vector<std::string> fields = {});

  /// The situation of a line. Never fails: an error that would end a single run, such as an overflow, is a refusal.
  [[nodiscard]] std::variant<BatchQuestion, BatchRefusal> Read(std::string_view text) const;

  /// The answer to a line, given its number: the object of AnalysisJson on one line, with the id before its other
  /// fields, or the error. Never fails.
  ///
  ///     {"id":7,"mode":"raise",...}      {"id":null,"line":3,"error":"\"pot\" is missing"}
  [[nodiscard]] BatchAnswer Answer(std::string_view line, std::int64_t number) const;

 private:
  class Reader;

  [[nodiscard]] RangeFinding Saved(const std::string& name) const;

  ProgramFolder folder_;
  std::vector<std::string> fields_;
  HandNumbers hands_;
  std::array<std::int16_t, kHandClassCount> bestFirst_;
  mutable std::mutex savedAccess_;
  mutable std::map<std::string, GivenRange> saved_;  // found so far: at most as many as there are files
};

}  // namespace quillon
