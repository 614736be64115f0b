#pragma once

// Situations by the hundred, as a filter has them: the text of a line in, the text of a line out. A line is one JSON
// object that says what a command line of the companion would:
//
//     {"id": 7, "mode": "raise", "pot": 1.5, "call": "=1-0.5", "shove": 9, "hands": "any", "calling_range": "Tight"}
//
// Amounts are numbers or texts as an amount box takes them. A range is "range", the name of a file, or "hands", a
// notation; "calling_range" and "calling_hands" likewise. "id" is a text or a whole number of any size, and comes first
// in the answer. A key whose value is null is one that is not there; any other key, and one that is there twice, is
// refused, and so is what the mode does not ask for. A byte-order mark before a line is skipped.
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

/// A line that was read.
struct BatchQuestion {
  std::string Id;  // as JSON; "null" where there is none
  quillon::Situation Situation;
  ClassWeights Range{};
  ClassWeights CallingRange{};
  std::string Warning;  // of amounts that a comma cuts short; empty as a rule
};

/// A line that is refused.
struct BatchRefusal {
  std::string Id;  // as far as the line could be read
  std::string Reason;
};

/// A line's answer.
struct BatchAnswer {
  std::string Line;  // JSON, without a line end
  bool Refused = false;
  std::string Warning;
};

/// What answers lines. Several threads may ask at once.
class Batch {
 public:
  /// Saved ranges are those of `folder`. A result has its id, and the fields of these names, which are among
  /// AnalysisFieldNames, or all of them. The name "id" is for its id alone. The equity table must have been loaded.
  explicit Batch(ProgramFolder folder, std::vector<std::string> fields = {});

  /// The situation of the line with that text. Never fails: what would end a single run, such as a sum beyond all
  /// numbers, is a refusal.
  [[nodiscard]] std::variant<BatchQuestion, BatchRefusal> Read(std::string_view text) const;

  /// The answer to the line of that number: the object of AnalysisJson on one line, with the id before its other
  /// fields, or what is wrong. Never fails.
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
  mutable std::map<std::string, GivenRange> saved_;  // what was found: at most as many as there are files
};

}  // namespace quillon
