#pragma once

// Range texts as bytes, a character of their code page each, read and summed up in the plainest way.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::plain {

/// The weight that a range text has for a label; nothing if it cannot be read.
[[nodiscard]] std::optional<double> WeightOf(std::string_view text, std::string_view label);

using Weights = std::vector<double>;  // 169 of them, in class index order

/// All weights of a range text; nothing if one of them cannot be read.
[[nodiscard]] std::optional<Weights> WeightsOf(std::string_view text);

/// The hands that a card grid would show: those of full classes, and half of those of half classes.
[[nodiscard]] double SelectedCombos(const Weights& weights);

/// The runs of classes at a weight, as a summary writes them: "TT+,AKs".
[[nodiscard]] std::string RunsAt(const Weights& weights, double target);

/// The summary of a whole range.
[[nodiscard]] std::string Summary(const Weights& weights);

/// A range file's bytes without the line end that it was saved with.
[[nodiscard]] std::string_view TextOfFile(std::string_view file);

/// How a range file is listed after its name, "0.5% selected", a tab, "AA"; nothing if it is not a range file.
[[nodiscard]] std::optional<std::string> ListingOf(std::string_view file);

}  // namespace quillon::plain
