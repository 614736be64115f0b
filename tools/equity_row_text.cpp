#include "tools/equity_row_text.h"

#include <algorithm>

#include "hand/hand_classes.h"
#include "support/number_text.h"

namespace quillon {
namespace {

constexpr std::int64_t kMillion = 1'000'000;
constexpr std::string_view kDiagonalEntry = "0.5";
constexpr std::size_t kEntriesInFirstPiece = 86;

constexpr std::string_view kSourceHead =
    R"(// The equity of every starting-hand class against every other, all in before the flop: 169 rows of 169 numbers in class
// order, each row as two literal pieces. The program equity-table writes this file whole from an exact enumeration
// (`equity-table --format source`); it is never edited by hand.

// clang-format off

#include "hand/equity_rows.h"

namespace quillon {

const std::array<std::array<std::string_view, 2>, 169> kEquityPieces = {{
)";

constexpr std::string_view kSourceTail = R"(}};

}  // namespace quillon
)";

// The nearest double to the entry, so the same as reading its text.
double Counted(std::int64_t points, std::int64_t pairs) {
  return static_cast<double>(Millionths(points, PointsAtStake(pairs))) / static_cast<double>(kMillion);
}

std::string MirrorEntry(double entry) {
  return NumberText(1.0 - entry);
}

// Where the second piece of a row starts.
std::size_t SecondPieceStart(std::string_view row) {
  std::size_t start = 0;
  for (std::size_t entry = 0; entry < kEntriesInFirstPiece; ++entry)
    start = row.find(' ', start) + 1;
  return start;
}

using Entries = std::vector<std::string_view>;

// The texts before each space; what follows the last one is dropped.
Entries SplitRow(std::string_view row) {
  Entries entries;
  for (std::size_t blank = row.find(' '); blank != std::string_view::npos; blank = row.find(' ')) {
    entries.push_back(row.substr(0, blank));
    row.remove_prefix(blank + 1);
  }
  return entries;
}

bool IsEntry(std::string_view text) {
  const double value = LeadingNumber(text);
  return 0.0 < value && value < 1.0 && NumberText(value) == text;
}

bool IsRow(std::string_view line) {
  const Entries entries = SplitRow(line);
  return line.ends_with(' ') && entries.size() == kClassCount && std::all_of(entries.begin(), entries.end(), IsEntry) &&
         std::count(entries.begin(), entries.end(), kDiagonalEntry) == 1;
}

std::size_t ClassOfRow(std::string_view row) {
  const Entries entries = SplitRow(row);
  return static_cast<std::size_t>(std::find(entries.begin(), entries.end(), kDiagonalEntry) - entries.begin());
}

std::string LabelOf(std::size_t handClass) {
  return std::string(HandLabel(static_cast<std::int16_t>(handClass)));
}

// Sorts the file's rows into `rows`; returns the error, if any.
std::string CollectRows(const RowFile& file, std::vector<std::string>& rows) {
  std::string_view rest = file.text;
  for (std::size_t lineNumber = 1; !rest.empty(); ++lineNumber) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    const std::string place = file.name + ", line " + std::to_string(lineNumber) + ": ";
    if (!IsRow(line)) return place + "not a row of the table";
    const std::size_t handClass = ClassOfRow(line);
    if (!rows[handClass].empty()) return place + "a second row of " + LabelOf(handClass);
    rows[handClass] = line;
  }
  return {};
}

std::string FindGap(std::span<const std::string> rows) {
  const auto gap = std::find(rows.begin(), rows.end(), std::string());
  if (gap == rows.end()) return {};
  return "no row of " + LabelOf(static_cast<std::size_t>(gap - rows.begin()));
}

std::string FindMismatch(std::span<const std::string> rows) {
  std::vector<Entries> table;
  for (const std::string& row : rows)
    table.push_back(SplitRow(row));
  for (std::size_t i = 0; i < kClassCount; ++i) {
    for (std::size_t j = i + 1; j < kClassCount; ++j) {
      if (table[j][i] == MirrorEntry(LeadingNumber(table[i][j]))) continue;
      return "the rows of " + LabelOf(i) + " and " + LabelOf(j) + " do not add up to 1";
    }
  }
  return {};
}

}  // namespace

std::int64_t Millionths(std::int64_t points, std::int64_t atStake) {
  const std::int64_t whole = points * kMillion / atStake;
  const std::int64_t twiceRest = 2 * (points * kMillion % atStake);
  const bool roundsUp = twiceRest > atStake || (twiceRest == atStake && whole % 2 != 0);
  return roundsUp ? whole + 1 : whole;
}

std::string EquityRowText(std::size_t row, const std::array<std::int64_t, kClassCount>& points,
                          const std::array<std::int64_t, kClassCount>& pairs) {
  std::string text;
  for (std::size_t column = 0; column < kClassCount; ++column) {
    const std::int64_t mirrorPoints = PointsAtStake(pairs[column]) - points[column];
    if (column < row) text += MirrorEntry(Counted(mirrorPoints, pairs[column]));
    if (column == row) text += kDiagonalEntry;
    if (column > row) text += NumberText(Counted(points[column], pairs[column]));
    text += ' ';
  }
  return text;
}

std::string LinesOf(std::span<const std::string> rows) {
  std::string text;
  for (const std::string& row : rows)
    text += row + '\n';
  return text;
}

std::string SourceTextOf(std::span<const std::string> rows) {
  std::string text(kSourceHead);
  for (const std::string& row : rows) {
    const std::size_t second = SecondPieceStart(row);
    text += "    {\"" + row.substr(0, second) + "\",\n     \"" + row.substr(second) + "\"},\n";
  }
  text += kSourceTail;
  return text;
}

JoinedRows JoinRows(std::span<const RowFile> files) {
  JoinedRows joined;
  joined.rows.resize(kClassCount);
  for (const RowFile& file : files) {
    if (joined.problem.empty()) joined.problem = CollectRows(file, joined.rows);
  }
  if (joined.problem.empty()) joined.problem = FindGap(joined.rows);
  if (joined.problem.empty()) joined.problem = FindMismatch(joined.rows);
  if (!joined.problem.empty()) joined.rows.clear();
  return joined;
}

}  // namespace quillon
