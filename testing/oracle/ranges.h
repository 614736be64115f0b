#pragma once

// Range texts as bytes, one per character of their code page, read and summarised in the plainest way.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::plain {

/// The weight of a label in a range text; nothing if it cannot be read.
[[nodiscard]] std::optional<double> WeightOf(std::string_view text, std::string_view label);

using Weights = std::vector<double>;  // 169 of them, in class index order

/// All weights of a range text; nothing if one of them cannot be read.
[[nodiscard]] std::optional<Weights> WeightsOf(std::string_view text);

/// The hands that a card grid would show: those of full classes, and half of those of half classes.
[[nodiscard]] double SelectedCombos(const Weights& weights);

/// The runs of classes at a weight, as in a summary: "TT+,AKs".
[[nodiscard]] std::string RunsAt(const Weights& weights, double target);

/// The summary of a whole range.
[[nodiscard]] std::string Summary(const Weights& weights);

/// A range file's bytes without the line end from saving.
[[nodiscard]] std::string_view TextOfFile(std::string_view file);

/// A range file's line in the list, after its name: "0.5% selected", a tab, "AA"; nothing if it is not a range file.
[[nodiscard]] std::optional<std::string> ListingOf(std::string_view file);

}  // namespace quillon::plain
