#include "ranges/range_notation.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "ranges/class_lines.h"
#include "support/ascii_text.h"
#include "support/number_text.h"
#include "support/utf8.h"

namespace quillon {
namespace {

constexpr std::string_view kSeparators = ",; \t\r\n";

constexpr std::string_view kHalfAHand = "a hand is two cards, such as AKs, AK or 88";
constexpr std::string_view kBadRun =
    "a run goes from pair to pair, keeps its high card, or falls with both cards, all suited or all offsuit";
constexpr std::string_view kSpacedRun = "a run has no space before or after its dash, as in JJ-88";
constexpr std::string_view kBadShare = "a share is from 0% to 100%";
constexpr std::string_view kBadWeight = "a weight is from 0 to 1, or from 0% to 100%";
constexpr std::string_view kNoGridWeight = "the grid knows the weights 0, 0.5 and 1 only";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

// The first character of a text, in words.
std::string Named(std::string_view text) {
  if (IsControl(text.front())) return "character " + std::to_string(static_cast<int>(text.front()));
  constexpr std::size_t kLongestCharacter = 4;
  std::size_t size = 1;
  while (size < std::min(text.size(), kLongestCharacter) && !StartsUtf8Character(text[size]))
    ++size;
  return Joined({"\"", text.substr(0, size), "\""});
}

// The length of the number at the start of a text: digits, a fraction, an exponent.
std::size_t NumberLength(std::string_view text) {
  if (text.empty() || !(IsDigit(text[0]) || text[0] == '.')) return 0;  // the library would take a sign, and "inf"
  double number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  return fault == std::errc::invalid_argument ? 0 : static_cast<std::size_t>(end - text.data());
}

enum class Suits { kPair, kBoth, kSuited, kOffsuit };

// A hand as written. Ranks are positions in kRankLetters, so the high card has the smaller one.
struct WrittenHand {
  int High = 0;
  int Low = 0;
  Suits Kind = Suits::kBoth;
};

int Gap(const WrittenHand& hand) {
  return hand.Low - hand.High;
}

class NotationReader {
 public:
  NotationReader(std::string_view text, std::span<const std::int16_t, kHandClassCount> bestFirst,
                 NotationWeights allowed)
      : text_(text), bestFirst_(bestFirst), allowed_(allowed) {}

  NotationReading Read() {
    if (text_.size() > kLongestNotation) {
      return NotationError{0, "a notation has at most " + std::to_string(kLongestNotation) + " bytes"};
    }
    if (text_.starts_with(kUtf8Mark)) place_ = kUtf8Mark.size();
    bool empty = true;
    for (Skip(kSeparators); place_ < text_.size(); Skip(kSeparators)) {
      const std::size_t item = place_;
      const bool mark = TakeMark();
      if (!mark && reason_.empty()) ReadItem();
      if (!reason_.empty()) return NotationError{item, std::move(reason_)};
      empty = empty && mark;
    }
    if (empty) return NotationError{0, "there is no hand here; write \"none\" for an empty range"};
    return weights_;
  }

 private:
  [[nodiscard]] std::string_view Rest() const { return text_.substr(place_); }

  void Skip(std::string_view characters) {
    place_ = std::min(text_.find_first_not_of(characters, place_), text_.size());
  }

  // `word` is lower-case.
  bool TakeWord(std::string_view word) {
    if (!EqualButForCase(Rest().substr(0, word.size()), word)) return false;
    place_ += word.size();
    return true;
  }

  // Always false, so that a caller can return it. The first reason counts.
  bool Fail(std::string_view reason) {
    if (reason_.empty()) reason_ = reason;
    return false;
  }

  // "Full:" and "Half:", and the separator of the two.
  bool TakeMark() {
    const bool bar = TakeWord("|");
    if (bar) Skip(kSeparators);
    if (TakeWord("full:")) {
      usualWeight_ = 1;
    } else if (TakeWord("half:")) {
      usualWeight_ = 0.5;
    } else {
      if (bar) Fail("after \"|\" comes Full: or Half:");
      return false;
    }
    return true;
  }

  // After hands and spaces, without another separator between them.
  [[nodiscard]] bool SpacedDashIsNext() const {
    return !named_.empty() && Rest().starts_with('-') &&
           kSeparators.find(text_[text_.find_last_not_of(kSpaceAndTab, place_ - 1)]) == std::string_view::npos;
  }

  void ReadItem() {
    if (SpacedDashIsNext()) {
      Fail(kSpacedRun);
      return;
    }
    named_.clear();
    if (!ReadClasses()) return;
    const std::optional<double> weight = ReadWeight();
    if (!weight) return;
    if (place_ < text_.size() && text_[place_] != '|' && kSeparators.find(text_[place_]) == std::string_view::npos) {
      Fail(Named(Rest()) + " does not belong here");
      return;
    }
    for (const int index : named_)
      weights_[static_cast<std::size_t>(index)] = *weight;
  }

  bool ReadClasses() {
    if (TakeWord("any") || TakeWord("[everything]")) {
      named_.assign(bestFirst_.begin(), bestFirst_.end());
      return true;
    }
    if (TakeWord("none") || TakeWord("[none]")) return true;
    if (TakeWord("top")) {
      Skip(kSpaceAndTab);
      return ShareIsNext() ? ReadShare() : Fail("after top comes a share, such as 15%");
    }
    return ShareIsNext() ? ReadShare() : ReadHands();
  }

  // "10%" is a share, "10" the start of a hand with a ten.
  [[nodiscard]] bool ShareIsNext() const {
    const std::size_t length = NumberLength(Rest());
    return length > 0 && Rest().substr(length).starts_with('%');
  }

  bool ReadShare() {
    const double share = TakeNumber();
    ++place_;  // the percent sign
    if (share > 100) return Fail(kBadShare);
    // In percent times hands: integers whenever two shares are equally near, so that ties are exact.
    const double wanted = share * kConcreteHandCount;
    double nearest = wanted;
    double combos = 0;
    std::size_t count = 0;
    for (std::size_t place = 0; place < bestFirst_.size(); ++place) {
      combos += ComboCount(HandLabel(bestFirst_[place]));
      const double distance = std::abs(combos * 100 - wanted);
      if (distance >= nearest) continue;
      nearest = distance;
      count = place + 1;
    }
    named_.assign(bestFirst_.begin(), bestFirst_.begin() + static_cast<std::ptrdiff_t>(count));
    return true;
  }

  double TakeNumber() {
    const std::size_t length = NumberLength(Rest());
    const double number = LeadingNumber(Rest().substr(0, length));
    place_ += length;
    return number;
  }

  bool ReadHands() {
    const std::optional<WrittenHand> first = TakeHand();
    if (!first) return false;
    if (TakeWord("+")) {
      const WrittenHand best = first->Kind == Suits::kPair ? WrittenHand{0, 0, first->Kind}
                                                           : WrittenHand{first->High, first->High + 1, first->Kind};
      return NameRun(best, *first);
    }
    if (!TakeWord("-")) {
      Name(*first);
      return true;
    }
    if (!Rest().empty() && kSpaceAndTab.find(Rest().front()) != std::string_view::npos) return Fail(kSpacedRun);
    const std::optional<WrittenHand> second = TakeHand();
    return second && NameRun(*first, *second);
  }

  bool NameRun(WrittenHand from, WrittenHand to) {
    const bool keepsHigh = from.High == to.High;
    if (from.Kind != to.Kind || (!keepsHigh && Gap(from) != Gap(to))) return Fail(kBadRun);
    if (from.Low > to.Low) std::swap(from, to);
    for (WrittenHand hand = from; hand.Low <= to.Low; ++hand.Low, hand.High += keepsHigh ? 0 : 1)
      Name(hand);
    return true;
  }

  void Name(const WrittenHand& hand) {
    if (hand.Kind != Suits::kOffsuit) named_.push_back(kRankCount * hand.High + hand.Low);
    if (hand.Kind == Suits::kOffsuit || hand.Kind == Suits::kBoth) named_.push_back(kRankCount * hand.Low + hand.High);
  }

  std::optional<WrittenHand> TakeHand() {
    const std::optional<int> first = TakeRank();
    if (!first) return std::nullopt;
    const std::optional<int> second = TakeRank();
    if (!second) return std::nullopt;
    WrittenHand hand{std::min(*first, *second), std::max(*first, *second), Suits::kBoth};
    if (TakeWord("s")) hand.Kind = Suits::kSuited;
    if (hand.Kind == Suits::kBoth && TakeWord("o")) hand.Kind = Suits::kOffsuit;
    if (hand.High != hand.Low) return hand;
    if (hand.Kind != Suits::kBoth) {
      Fail("a pair is neither suited nor offsuit");
      return std::nullopt;
    }
    hand.Kind = Suits::kPair;
    return hand;
  }

  std::optional<int> TakeRank() {
    constexpr std::string_view kLowerLetters = "akqjt98765432";
    constexpr std::string_view kAfterHalfAHand = "+-:(|%";
    constexpr int kTen = 4;
    if (TakeWord("10")) return kTen;
    if (Rest().empty() || (kSeparators.find(text_[place_]) != std::string_view::npos) ||
        kAfterHalfAHand.find(text_[place_]) != std::string_view::npos) {
      Fail(kHalfAHand);
      return std::nullopt;
    }
    const std::size_t rank = kLowerLetters.find(AsciiLower(text_[place_]));
    if (rank == std::string_view::npos) {
      Fail(Named(Rest()) + " is not a rank");
      return std::nullopt;
    }
    ++place_;
    return static_cast<int>(rank);
  }

  // The weight of the item: the one written after it, or the default.
  std::optional<double> ReadWeight() {
    if (TakeWord(":")) {
      const std::string_view written = WeightAtFront(Rest());
      place_ += written.size();
      return WeightOf(written);
    }
    const std::size_t itemEnd = place_;
    Skip(kSpaceAndTab);
    if (TakeWord("(")) return TakeWeightInBrackets();
    place_ = itemEnd;
    return usualWeight_;
  }

  // A range file may have a space between two digits of a weight, which readers skip.
  std::optional<double> TakeWeightInBrackets() {
    std::string inside(Rest().substr(0, Rest().find(')')));
    place_ += inside.size();
    std::erase_if(inside, [](char c) { return kSpaceAndTab.find(c) != std::string_view::npos; });
    const std::string_view written = WeightAtFront(inside);
    const std::optional<double> weight = WeightOf(written);
    if (written.size() < inside.size() || !TakeWord(")")) Fail("\")\" is missing after the weight");
    return weight;
  }

  static std::string_view WeightAtFront(std::string_view text) {
    const std::size_t length = NumberLength(text);
    return text.substr(0, length > 0 && text.substr(length).starts_with('%') ? length + 1 : length);
  }

  std::optional<double> WeightOf(std::string_view written) {
    constexpr double kPercent = 100;
    const double weight = LeadingNumber(written) / (written.ends_with('%') ? kPercent : 1);
    if (written.empty() || weight > 1) {
      Fail(kBadWeight);
    } else if (allowed_ == NotationWeights::kOfGrid && weight != 0 && weight != 0.5 && weight != 1) {
      Fail(kNoGridWeight);
    } else {
      return weight;
    }
    return std::nullopt;
  }

  std::string_view text_;
  std::span<const std::int16_t, kHandClassCount> bestFirst_;
  NotationWeights allowed_;
  std::size_t place_ = 0;
  double usualWeight_ = 1;
  std::vector<int> named_;  // the classes of the current item
  std::string reason_;
  ClassWeights weights_{};
};

// Weights as text: equal texts are equal weights.
using WeightTexts = std::array<std::string, kHandClassCount>;

// Classes of one line at the same weight, each run followed by a comma.
std::string LineNotation(const ClassLine& line, const WeightTexts& weights) {
  const auto weightAt = [&](int place) { return weights[static_cast<std::size_t>(line.Index(place))]; };
  std::string items;
  for (int start = 0, next = 0; start < line.Count; start = next) {
    const std::string weight = weightAt(start);
    while (next < line.Count && weightAt(next) == weight)
      ++next;
    if (weight == "0") continue;
    items += line.Run(start, next - 1);
    if (weight != "1") items.append(":").append(weight);
    items += ',';
  }
  return items;
}

// The text with each character one column wide on a terminal.
std::string Printable(std::string_view text) {
  std::string printable;
  for (const char c : text)
    printable += c == '\t' ? ' ' : IsControl(c) ? '?' : c;
  return printable;
}

}  // namespace

NotationReading ReadRangeNotation(std::string_view notation, std::span<const std::int16_t, kHandClassCount> bestFirst,
                                  NotationWeights allowed) {
  return NotationReader(notation, bestFirst, allowed).Read();
}

std::string MarkedPlace(std::string_view notation, const NotationError& error, std::size_t around) {
  constexpr std::string_view kLineEnds = "\r\n";
  std::size_t start = notation.substr(0, error.Place).find_last_of(kLineEnds) + 1;  // 0 if there is none
  if (start == 0 && notation.starts_with(kUtf8Mark)) start = std::min(kUtf8Mark.size(), error.Place);
  std::size_t end = std::min(notation.find_first_of(kLineEnds, error.Place), notation.size());
  if (error.Place - start > around) start = error.Place - around;
  if (end - error.Place > around) end = error.Place + around;
  while (start < error.Place && !StartsUtf8Character(notation[start]))
    ++start;
  const std::string_view before = notation.substr(start, error.Place - start);
  const auto columns = static_cast<std::size_t>(std::count_if(before.begin(), before.end(), StartsUtf8Character));
  return Joined({Printable(WholeCharacters(notation.substr(start), end - start)), "\n", std::string(columns, ' '), "^ ",
                 error.Reason});
}

std::string RangeNotation(std::span<const double, kHandClassCount> weights) {
  WeightTexts texts;
  std::ranges::transform(weights, texts.begin(), NumberText);
  if (std::ranges::count(texts, "1") == kHandClassCount) return "any";
  std::string notation;
  for (const ClassLine& line : kClassLines)
    notation += LineNotation(line, texts);
  if (notation.empty()) return "none";
  notation.pop_back();
  return notation;
}

std::string RangeNotation(std::string_view rangeText) {
  const std::optional<ClassWeights> written = WrittenWeightsOf(rangeText);
  return RangeNotation(written ? *written : RangeWeightsOf(rangeText));
}

}  // namespace quillon
