#include "testing/oracle/ranges.h"

#include <algorithm>
#include <cstddef>

#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"

namespace quillon::plain {
namespace {

std::vector<std::vector<std::size_t>> LinesOfIndexes() {
  std::vector<std::vector<std::size_t>> lines;
  for (const std::vector<std::string>& line : Lines()) {
    lines.emplace_back();
    for (const std::string& label : line)
      lines.back().push_back(IndexOf(label));
  }
  return lines;
}

}  // namespace

std::optional<double> WeightOf(std::string_view text, std::string_view label) {
  // Positions count from 1; 0 means missing.
  const std::size_t p = text.find(label) + 1;
  const std::size_t q = text.find(')', p) + 1;
  const std::size_t start = p + label.size() + 2;
  if (q < start) return std::nullopt;
  return LeadingNumber(text.substr(start - 1, q - start));
}

std::optional<Weights> WeightsOf(std::string_view text) {
  Weights weights;
  for (const std::string& label : Labels()) {
    const std::optional<double> weight = WeightOf(text, label);
    if (!weight) return std::nullopt;
    weights.push_back(*weight);
  }
  return weights;
}

double SelectedCombos(const Weights& weights) {
  double combos = 0;
  for (std::size_t i = 0; i < kClasses; ++i) {
    if (weights[i] == 1 || weights[i] == 0.5) combos += weights[i] * ComboCount(Labels()[i]);
  }
  return combos;
}

std::string RunsAt(const Weights& weights, double target) {
  static const std::vector<std::vector<std::size_t>> lines = LinesOfIndexes();
  std::string text;
  for (const std::vector<std::size_t>& line : lines) {
    for (std::size_t first = 0; first < line.size();) {
      std::size_t end = first;
      while (end < line.size() && weights[line[end]] == target)
        ++end;
      // A run followed by a class of more weight is left out.
      const bool shown = end > first && (end == line.size() || weights[line[end]] < target);
      if (shown && !text.empty()) text += ",";
      if (shown && end > first + 1 && first > 0) text += Labels()[line[first]] + "-";
      if (shown) text += Labels()[line[end - 1]];
      if (shown && end > first + 1 && first == 0) text += "+";
      first = end + 1;
    }
  }
  return text;
}

std::string Summary(const Weights& weights) {
  const std::string half = RunsAt(weights, 0.5);
  const std::string full = RunsAt(weights, 1);
  if (!half.empty()) return "Full: " + full + " | Half: " + half;
  if (std::all_of(weights.begin(), weights.end(), [](double weight) { return weight == 1; })) return "[Everything]";
  return full.empty() ? "[None]" : full;
}

std::string_view TextOfFile(std::string_view file) {
  return file.ends_with("\r\n") ? file.substr(0, file.size() - 2) : file;
}

std::optional<std::string> ListingOf(std::string_view file) {
  const std::optional<Weights> weights = WeightsOf(TextOfFile(file));
  const bool anyEntry = std::any_of(Labels().begin(), Labels().end(), [file](const std::string& label) {
    return file.find(label + " (") != std::string_view::npos;
  });
  if (!weights || !anyEntry) return std::nullopt;
  const double percent = RoundTo(SelectedCombos(*weights) / static_cast<double>(Hands().size()) * 100, 1);
  return NumberText(percent) + "% selected\t" + Summary(*weights);
}

}  // namespace quillon::plain
