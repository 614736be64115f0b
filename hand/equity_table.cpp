#include "hand/equity_table.h"

#include <algorithm>

#include "hand/equity_rows.h"
#include "support/byte_scan.h"
#include "support/number_text.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

static_assert(std::tuple_size_v<decltype(kEquityPieces)> == kHandClassCount);

// The only state here; LoadEquityTable writes it, and it is read-only afterwards.
std::array<std::string, kHandClassCount>& Rows() {
  static std::array<std::string, kHandClassCount> rows;
  return rows;
}

// Where field `column` of a row starts: after the space that ends the previous one.
std::size_t FieldStart(std::string_view row, std::size_t column) {
  if (column == 0) return 0;
  const std::size_t blank = FindNthByte(row, ' ', column - 1);
  if (blank == std::string_view::npos) throw RunTimeError(RunTimeFault::kSubscriptOutOfRange);
  return blank + 1;
}

}  // namespace

void LoadEquityTable() {
  if (!Rows().front().empty()) return;
  std::transform(kEquityPieces.begin(), kEquityPieces.end(), Rows().begin(), [](const auto& pieces) {
    std::string row;
    row.reserve(pieces[0].size() + pieces[1].size());
    return row.append(pieces[0]).append(pieces[1]);
  });
}

const std::array<std::string, kHandClassCount>& EquityRows() {
  return Rows();
}

double HandEquity(std::string_view hand, std::string_view opponentHand) {
  const std::string_view row = Rows()[static_cast<std::size_t>(HandIndex(hand))];
  const std::size_t start = FieldStart(row, static_cast<std::size_t>(HandIndex(opponentHand)));
  if (start >= row.size()) throw RunTimeError(RunTimeFault::kSubscriptOutOfRange);
  return LeadingNumberBefore(row.substr(start), ' ');
}

}  // namespace quillon
