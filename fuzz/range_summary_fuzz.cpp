// The summary of any range, against the oracle.

#include <array>
#include <optional>
#include <string>

#include "fuzz/fuzz_target.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"
#include "testing/oracle/ranges.h"

namespace quillon {
namespace {

// Whole ranges, of which there is a text and a summary whatever their weights: one for each class from two bits of the
// input each.
void CheckRange(std::string_view bytes) {
  constexpr std::array<double, 4> kWeights = {0, 0.5, 1, 0.25};
  std::array<double, kHandClassCount> weights{};
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const unsigned byte = i / 4 < bytes.size() ? static_cast<unsigned char>(bytes[i / 4]) : 0;
    weights[i] = kWeights[(byte >> (2 * (i % 4))) & 3U];
  }
  Require(RangeSummary(RangeTextOf(weights)) == plain::Summary({weights.begin(), weights.end()}),
          "a summary equals the plain one");
}

// Broken texts, of which some weights cannot be read. In a file each character is one byte.
void CheckText(std::string_view text) {
  const std::optional<plain::Weights> weights = plain::WeightsOf(text);
  try {
    const std::string summary = RangeSummary(Utf8FromWindows1252(text));
    Require(weights.has_value(), "a summary needs every weight");
    Require(summary == plain::Summary(*weights), "a summary of any text equals the plain one");
  } catch (const RunTimeError&) {
    Require(!weights, "a summary fails only where a weight does");
  }
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  if (input.TakeBelow(2) == 1)
    CheckText(input.Rest());
  else
    CheckRange(input.Rest());
  return 0;
}
