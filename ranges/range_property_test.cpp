// Random ranges on their way through file, weights and notation, against slow code that shares nothing with the
// program's: its own order of classes, its own search, its own reading of numbers, and its own reader of the summary.

#include <algorithm>
#include <array>
#include <charconv>
#include <gtest/gtest.h>
#include <map>
#include <numeric>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "ranges/range_files.h"
#include "ranges/range_fixtures.h"
#include "ranges/range_notation.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

using Random = std::mt19937;

int Below(Random& random, int limit) {
  return static_cast<int>(random() % static_cast<unsigned>(limit));
}

template <typename Values>
auto AnyOf(Random& random, const Values& values) {
  return values[static_cast<std::size_t>(Below(random, static_cast<int>(values.size())))];
}

void Shuffle(Random& random, std::vector<std::string>& values) {
  for (int last = static_cast<int>(values.size()) - 1; last > 0; --last) {
    std::swap(values[static_cast<std::size_t>(last)], values[static_cast<std::size_t>(Below(random, last + 1))]);
  }
}

// The 25 lines of the notation: the pairs, then twelve rows of suited and twelve of offsuit hands, best class first.
using Line = std::vector<std::string>;

std::vector<Line> AllLines() {
  const std::string ranks = "AKQJT98765432";
  std::vector<Line> lines(1);
  for (const char rank : ranks)
    lines[0].emplace_back(2, rank);
  for (const std::string kind : {"s", "o"}) {
    for (std::size_t high = 0; high + 1 < ranks.size(); ++high) {
      lines.emplace_back();
      for (std::size_t low = high + 1; low < ranks.size(); ++low)
        lines.back().push_back(std::string() + ranks[high] + ranks[low] + kind);
    }
  }
  return lines;
}

// The weight by the rule of reading, nothing where it cannot be read.
std::optional<double> SlowWeight(const std::string& text, const std::string& label) {
  const std::size_t labelPlace = text.find(label);
  const std::size_t p = labelPlace == std::string::npos ? 0 : labelPlace + 1;
  const std::size_t bracketPlace = text.find(')', p);
  const std::size_t q = bracketPlace == std::string::npos ? 0 : bracketPlace + 1;
  const std::size_t start = p + label.size() + 2;
  if (q < start) return std::nullopt;
  std::string number = text.substr(start - 1, q - start);
  number.erase(std::remove(number.begin(), number.end(), ' '), number.end());
  if (number.starts_with('+')) number.erase(0, 1);
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return value;
}

using WeightMap = std::map<std::string, double>;

// Nothing if a single class cannot be read.
std::optional<WeightMap> SlowWeights(const std::string& text) {
  WeightMap weights;
  for (const Line& line : AllLines()) {
    for (const std::string& label : line) {
      const std::optional<double> weight = SlowWeight(text, label);
      if (!weight) return std::nullopt;
      weights[label] = *weight;
    }
  }
  return weights;
}

struct Notation {
  std::set<std::string> classes;
  int items = 0;
  int openRuns = 0;
  bool operator==(const Notation&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Notation& notation) {
  stream << notation.items << " items, " << notation.openRuns << " open:";
  for (const std::string& label : notation.classes)
    stream << " " << label;
  return stream;
}

// Reads one item of the notation back into classes.
std::set<std::string> ClassesOfItem(const std::string& item) {
  const bool open = item.ends_with('+');
  const std::size_t dash = item.find('-');
  const std::string last =
      open ? item.substr(0, item.size() - 1) : item.substr(dash == std::string::npos ? 0 : dash + 1);
  for (const Line& line : AllLines()) {
    const auto end = std::find(line.begin(), line.end(), last);
    if (end == line.end()) continue;
    const auto start = open ? line.begin() : std::find(line.begin(), line.end(), item.substr(0, dash));
    if (start > end) break;
    return {start, end + 1};
  }
  ADD_FAILURE() << "no item of the notation: " << item;
  return {};
}

// Reads a list of items back. Each class may be named only once.
Notation ReadNotation(const std::string& text) {
  Notation notation;
  std::istringstream items(text);
  for (std::string item; std::getline(items, item, ',');) {
    const std::set<std::string> classes = ClassesOfItem(item);
    for (const std::string& label : classes)
      EXPECT_TRUE(notation.classes.insert(label).second) << label << " twice in " << text;
    notation.openRuns += item.ends_with('+') ? 1 : 0;
    EXPECT_EQ(item.find_first_of("+-") == std::string::npos, classes.size() == 1) << item;
    ++notation.items;
  }
  return notation;
}

// What the notation must name: every unbroken run of classes at the target, less those that the next class down tops.
Notation SlowNotation(const WeightMap& weights, double target) {
  Notation notation;
  for (const Line& line : AllLines()) {
    for (auto start = line.begin(); start != line.end();) {
      const auto differs = [&](const std::string& label) { return weights.at(label) != target; };
      const auto end = std::find_if(start, line.end(), differs);
      const bool topped = end != line.end() && weights.at(*end) > target;
      if (start != end && !topped) {
        notation.classes.insert(start, end);
        ++notation.items;
        notation.openRuns += start == line.begin() && end - start > 1 ? 1 : 0;
      }
      start = end == line.end() ? end : end + 1;
    }
  }
  return notation;
}

// Takes the two parts of a summary apart again and compares each with what it must name.
void ExpectSummaryOf(const std::string& text, const WeightMap& weights) {
  const Notation full = SlowNotation(weights, 1);
  const Notation half = SlowNotation(weights, 0.5);
  EXPECT_EQ(ReadNotation(SummarizeWeight(text, 1)), full);
  EXPECT_EQ(ReadNotation(SummarizeWeight(text, 0.5)), half);

  const std::string fullMark = "Full: ";
  const std::string halfMark = " | Half: ";
  std::string summary = RangeSummary(text);
  if (half.items > 0) {
    const std::size_t place = summary.find(halfMark);
    ASSERT_TRUE(summary.starts_with(fullMark) && place != std::string::npos) << summary;
    EXPECT_EQ(ReadNotation(summary.substr(place + halfMark.size())), half) << summary;
    summary = summary.substr(fullMark.size(), place - fullMark.size());
  } else if (full.items == 0) {
    EXPECT_EQ(summary, "[None]");
    return;
  } else if (full.classes.size() == weights.size()) {
    EXPECT_EQ(summary, "[Everything]");
    return;
  }
  EXPECT_EQ(ReadNotation(summary), full) << summary;
}

double SlowCombos(const WeightMap& weights) {
  double combos = 0;
  for (const auto& [label, weight] : weights) {
    const double hands = label[0] == label[1] ? 6 : label[2] == 's' ? 4 : 12;
    if (weight == 1) combos += hands;
    if (weight == 0.5) combos += hands / 2;
  }
  return combos;
}

constexpr std::array kUsualWeights = {0.0, 0.5, 1.0};
// No two equal digits side by side: a weight such as 0.99 would be taken for the label of a pair.
constexpr std::array kAnyWeights = {0.0, 0.5, 1.0, 0.25, 0.75, 2.0, -1.0, 0.015625, 0.98, 1e-20, 1e20};

// Ranges of players have runs, so a weight is kept along a line more often than it changes; `keep` is in percent.
template <typename Palette>
WeightMap RandomWeights(Random& random, const Palette& palette, int keep) {
  WeightMap weights;
  for (const Line& line : AllLines()) {
    double weight = AnyOf(random, palette);
    for (const std::string& label : line) {
      if (Below(random, 100) >= keep) weight = AnyOf(random, palette);
      weights[label] = weight;
    }
  }
  return weights;
}

class RandomRange : public ::testing::TestWithParam<unsigned> {
 protected:
  // Saves a text and gives back what is read.
  std::string ThroughItsFile(const std::string& text) {
    SaveRangeText(program_.Folder(), "Random", text);
    EXPECT_TRUE(RangeExists(program_.Folder(), "Random"));
    EXPECT_EQ(program_.Read("Random.txt"), text + "\r\n");
    return LoadRangeText(program_.Folder(), "Random");
  }

  [[nodiscard]] Random& Source() { return random_; }

 private:
  TemporaryProgram program_;
  Random random_{GetParam()};
};

TEST_P(RandomRange, KeepsItsWeightsThroughItsFile) {
  for (int round = 0; round < 40; ++round) {
    const int keep = Below(Source(), 100);
    const WeightMap weights =
        round % 2 == 0 ? RandomWeights(Source(), kUsualWeights, keep) : RandomWeights(Source(), kAnyWeights, keep);
    std::array<double, kHandClassCount> ordered{};
    for (std::int16_t index = 0; index < kHandClassCount; ++index)
      ordered[static_cast<std::size_t>(index)] = weights.at(std::string(HandLabel(index)));

    const std::string written = RangeTextOf(ordered);
    const std::string text = ThroughItsFile(written);
    ASSERT_EQ(text, written);
    for (const auto& [label, weight] : weights)
      ASSERT_EQ(RangeWeightOf(text, label), weight) << label << " in " << text;
    ASSERT_EQ(SlowWeights(text), weights) << text;
    ASSERT_EQ(SelectedCombos(text), SlowCombos(weights)) << text;
    ExpectSummaryOf(text, weights);
    ASSERT_FALSE(HasFailure()) << text;
  }
}

constexpr std::array kWrittenWeights = {"0",    "0.5", "1",   "1",  "0",     ".5",   "0.50", "1.0", "0.25", "2",
                                        "-0.5", "+1",  " 1 ", "1x", "5e-01", "0. 5", "x",    "",    "22.5", "9 9"};
constexpr std::array kRemarks = {"", "my notes: ", "(loose) ", "AK? ", "T9 ", "\r\n", ") ", "22 "};

// A text as somebody might leave it who edits range files by hand.
std::string HandEditedText(Random& random) {
  const int missing = AnyOf(random, std::array{0, 0, 3, 50});  // percent
  const int doubled = AnyOf(random, std::array{0, 10});
  std::vector<std::string> entries;
  for (const Line& line : AllLines()) {
    const char* weight = AnyOf(random, kWrittenWeights);
    for (const std::string& label : line) {
      if (Below(random, 100) < 30) weight = AnyOf(random, kWrittenWeights);
      if (Below(random, 100) < missing) continue;
      entries.push_back(label + " (" + weight + "), ");
      if (Below(random, 100) < doubled) entries.push_back(label + " (" + AnyOf(random, kWrittenWeights) + "), ");
    }
  }
  if (Below(random, 4) > 0) Shuffle(random, entries);
  std::string text = AnyOf(random, kRemarks);
  for (const std::string& entry : entries) {
    text += entry;
    if (Below(random, 100) == 0) text += AnyOf(random, kRemarks);
  }
  return text;
}

TEST_P(RandomRange, ReadsByTheSearchRuleHoweverItIsWritten) {
  for (int round = 0; round < 40; ++round) {
    const std::string written = HandEditedText(Source());
    const std::string text = ThroughItsFile(written);
    ASSERT_EQ(text, written);
    for (const Line& line : AllLines()) {
      for (const std::string& label : line) {
        const std::optional<double> expected = SlowWeight(text, label);
        if (expected) {
          ASSERT_EQ(RangeWeightOf(text, label), *expected) << label << " in " << text;
        } else {
          ASSERT_EQ(FaultOf([&] { return RangeWeightOf(text, label); }), RunTimeFault::kInvalidProcedureCall)
              << label << " in " << text;
        }
      }
    }
    if (const std::optional<WeightMap> weights = SlowWeights(text)) {
      ASSERT_EQ(SelectedCombos(text), SlowCombos(*weights)) << text;
      ExpectSummaryOf(text, *weights);
    } else {
      ASSERT_EQ(FaultOf([&] { return SelectedCombos(text); }), RunTimeFault::kInvalidProcedureCall) << text;
    }
    ASSERT_FALSE(HasFailure()) << text;
  }
}

std::array<std::int16_t, kHandClassCount> ByIndex() {
  std::array<std::int16_t, kHandClassCount> order{};
  std::iota(order.begin(), order.end(), std::int16_t{0});
  return order;
}

// The weights of a notation that must be readable.
ClassWeights WeightsOfNotation(const std::string& notation) {
  const NotationReading reading = ReadRangeNotation(notation, ByIndex());
  if (const auto* const error = std::get_if<NotationError>(&reading)) ADD_FAILURE() << MarkedPlace(notation, *error);
  const auto* const weights = std::get_if<ClassWeights>(&reading);
  return weights == nullptr ? ClassWeights{} : *weights;
}

constexpr std::array kNotationWeights = {0.0, 0.5, 1.0, 1.0, 0.25, 0.99, 0.2222, 1.0 / 3, 1e-22, 4.94e-324};

TEST_P(RandomRange, ReadsTheNotationThatItWrote) {
  for (int round = 0; round < 200; ++round) {
    const WeightMap weights = RandomWeights(Source(), kNotationWeights, Below(Source(), 100));
    ClassWeights ordered{};
    for (std::int16_t index = 0; index < kHandClassCount; ++index)
      ordered[static_cast<std::size_t>(index)] = weights.at(std::string(HandLabel(index)));
    if (round % 10 == 0)
      ordered[static_cast<std::size_t>(Below(Source(), 169))] = static_cast<double>(Source()()) / 4294967296.0;

    const std::string text = RangeTextOf(ordered);
    const std::string notation = RangeNotation(text);
    const ClassWeights read = WeightsOfNotation(notation);
    ASSERT_EQ(RangeTextOf(read), text) << notation;
    ASSERT_EQ(RangeNotation(read), notation);
    ASSERT_EQ(RangeNotation(SearchableRangeText(ordered)), notation);
    ASSERT_EQ(RangeTextOf(RangeWeightsOf(SearchableRangeText(ordered))), text) << notation;
  }
}

// An item as somebody might type it, and the classes that it names.
struct TypedItem {
  std::string text;
  std::vector<std::string> classes;
};

std::string TypedLabel(Random& random, std::string label) {
  if (Below(random, 3) == 0) std::swap(label[0], label[1]);
  std::string typed;
  for (const char c : label)
    typed += c == 'T' && Below(random, 2) == 0 ? std::string("10") : std::string(1, c);
  if (Below(random, 3) == 0) std::transform(typed.begin(), typed.end(), typed.begin(), ::tolower);
  return typed;
}

TypedItem RandomItem(Random& random) {
  const Line line = AnyOf(random, AllLines());
  const int first = Below(random, static_cast<int>(line.size()));
  const int last = first + Below(random, static_cast<int>(line.size()) - first);
  const auto label = [&](int place) { return line[static_cast<std::size_t>(place)]; };
  if (Below(random, 3) == 0) return {TypedLabel(random, label(last)) + "+", {line.begin(), line.begin() + last + 1}};
  std::string top = TypedLabel(random, label(first));
  std::string bottom = TypedLabel(random, label(last));
  if (first == last && Below(random, 2) == 0) return {top, {label(first)}};
  if (Below(random, 2) == 0) std::swap(top, bottom);
  return {top + "-" + bottom, {line.begin() + first, line.begin() + last + 1}};
}

TEST_P(RandomRange, ReadsItemsThatPeopleType) {
  struct TypedWeight {
    const char* text;
    double weight;
  };
  constexpr std::array<TypedWeight, 6> kTyped = {
      {{"", 1}, {":0.25", 0.25}, {" (0.5)", 0.5}, {":75%", 0.75}, {"(1)", 1}, {":0", 0}}};
  constexpr std::array kBetween = {",", ", ", ";", " ", "\n", "\r\n", " , "};
  for (int round = 0; round < 200; ++round) {
    std::string notation;
    WeightMap expected;
    for (int items = 1 + Below(Source(), 12); items > 0; --items) {
      const TypedItem item = RandomItem(Source());
      const TypedWeight weight = AnyOf(Source(), kTyped);
      notation += item.text + weight.text + AnyOf(Source(), kBetween);
      for (const std::string& label : item.classes)
        expected[label] = weight.weight;
    }
    const ClassWeights read = WeightsOfNotation(notation);
    for (std::int16_t index = 0; index < kHandClassCount; ++index) {
      const std::string label(HandLabel(index));
      ASSERT_EQ(read[static_cast<std::size_t>(index)], expected[label]) << label << " in " << notation;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(FixedSeeds, RandomRange, ::testing::Values(1U, 20U, 300U, 4000U, 50000U));

}  // namespace
}  // namespace quillon
