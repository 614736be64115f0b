#pragma once

// The columns of a finished analysis in tables for programs and for readers, one row each. The results table that the
// analysis itself makes has its own form ("analysis/results_table.h").

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "results/hover_panel.h"
#include "results/results_grid.h"

namespace quillon {

/// A cell: a text, a count, or a number.
using ResultValue = std::variant<std::string_view, std::int16_t, double>;

struct ResultColumn {
  std::string_view Key;  // for programs
  ResultValue (*ValueOf)(const ShownHand& hand);
  bool (*IsIn)(const Scenario& scenario);  // whether a scenario has it

  /// For readers, the heading and the text of a hand. Null for the label and the colour, which a page shows otherwise.
  std::string (*Heading)(const Scenario& scenario) = nullptr;
  std::string (*Text)(const HandResult& result, const HoverTexts& texts) = nullptr;
};

/// All columns, in order; the first is the hand's label.
[[nodiscard]] std::span<const ResultColumn> ResultColumns();

}  // namespace quillon
