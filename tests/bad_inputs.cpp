#include "tests/bad_inputs.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <vector>

#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

using namespace std::string_view_literals;

// What is inserted into a text to damage it. Pieces are separated by a character that has no meaning in any format.
constexpr char kBetweenPieces = '|';

constexpr std::string_view kRangePieces =
    ")|(| (|), |AA|AKs|22|72o|aa (1)|1|0.5|0.25|1e999|-1|(-1)|1e-400|1e308|-1e308|0.225|AA (1)|22 (.5)|NaN|inf|0x1|"
    ".|e|,|+|AA (1|AA 1)|\0|\r\n|\n|\r|\t| |\xBD|\xC2\xBD|\xE9|\xFF|\x80|AA\xBD(1)|KK\xE9\xE9"
    "1)|\xEF\xBB\xBF"sv;

constexpr std::string_view kSettingsPieces =
    "[Values]|[values]\n|[Main]\n|[Upgrade]\r\n|[|]|=|==|;|\"|'|\0|\n|\r\n|\r|\n\r|\t| "
    "|\xEF\xBB\xBF|\xBD|\x80|\xFF\xFE|"
    "0=|\n0=9\n|4=-50|Left=|Left=-5|Top=1e999|\nAuto=1|\nAuto=7\n|1e308|-1|12001|0.5|\n;| = |\nLEFT\t=\t30 |=1+2|$"sv;

constexpr std::string_view kBoxPieces =
    "=|==|+|-|--|.|..|,|,,|$|$$|e|E5|1e308|1e-400|e999|0x10| |  |abc|NaN|inf|%|(|)|*2|/0|\"|'|[|]|{}|\\|\t|\n|\r|\0|"
    "\u00BD|\u20AC|\u0663|\uFF15|\u2212|\u00A0|\xFF|\xC3|0|-0|00|1,000|999999999999999999999|0.000000000000000001|"
    "2147483648"sv;

std::vector<std::string_view> PiecesOf(std::string_view joined) {
  std::vector<std::string_view> pieces;
  for (std::size_t begin = 0; begin <= joined.size();) {
    const std::size_t end = std::min(joined.find(kBetweenPieces, begin), joined.size());
    pieces.push_back(joined.substr(begin, end - begin));
    begin = end + 1;
  }
  return pieces;
}

void Replace(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
}

}  // namespace

int RandomInputs(int share) {
  constexpr int kEveryDay = 300;
  const char* const wanted = std::getenv("QUILLON_BAD_INPUTS");
  const int all = wanted == nullptr ? kEveryDay : std::max(std::atoi(wanted), 1);
  return std::max(all / 100 * share, 1);
}

std::size_t BadInputs::Below(std::size_t count) {
  return static_cast<std::size_t>(random_() % count);
}

std::string_view BadInputs::Any(std::string_view joined) {
  const std::vector<std::string_view> pieces = PiecesOf(joined);
  return pieces[Below(pieces.size())];
}

std::string BadInputs::RandomBytes(std::size_t count) {
  std::string bytes;
  for (std::size_t i = 0; i < count; ++i)
    bytes += static_cast<char>(Below(256));
  return bytes;
}

std::string BadInputs::Amount() {
  std::string amount = std::to_string(Below(OneIn(4) ? 1000000 : 500));
  if (OneIn(3)) amount += "." + std::to_string(Below(100));
  if (OneIn(8)) amount.insert(0, "$");
  return amount;
}

std::string BadInputs::Sum() {
  std::string sum = "=";
  for (std::size_t left = 1 + Below(5); left > 0; --left)
    sum += std::to_string(Below(1000)) + (OneIn(3) ? ".5" : "") + (OneIn(4) ? "-" : "+");
  if (!OneIn(4)) sum.pop_back();
  return sum;
}

std::string BadInputs::GoodRangeFile() {
  constexpr std::string_view kWeights = "0|0|1|1|0.5";
  constexpr std::string_view kOddWeights = "0.25|1.0|2|-1|1e3|.5|0.50|x";
  const bool odd = OneIn(4);
  std::vector<std::string> labels = plain::Labels();
  if (OneIn(4)) std::shuffle(labels.begin(), labels.end(), random_);
  if (OneIn(4)) labels.resize(1 + Below(labels.size()));
  std::string text;
  for (const std::string& label : labels)
    text.append(label).append(" (").append(odd ? Any(kOddWeights) : Any(kWeights)).append("), ");
  return text + (OneIn(4) ? "" : "\r\n");
}

std::string BadInputs::GoodSettingsFile() {
  std::string text;
  if (!OneIn(4)) {
    text += "[Main]\r\nLeft=" + std::to_string(Below(15000)) + "\r\nTop=" + std::to_string(Below(15000)) + "\r\n";
  }
  text += "[Values]\r\n";
  for (int box = 0; box < 5; ++box)
    text += std::to_string(box) + "=" + (OneIn(5) ? "" : OneIn(3) ? Sum() : Amount()) + "\r\n";
  if (OneIn(2)) text.append("[Upgrade]\r\nAuto=").append(Any("0|0|0|1|1|1|2|2|2|3|-1|1.5|1e9|yes")).append("\r\n");
  if (OneIn(4)) text += "; by hand\r\n[Manager]\r\nLeft=150\r\nTop=150\r\n";
  return text;
}

BadInputs::Stretch BadInputs::StretchOf(std::string_view text) {
  const std::size_t begin = Below(text.size() + 1);
  const std::size_t most = OneIn(3) ? text.size() : 12;
  return {begin, Below(std::min(text.size() - begin, most) + 1)};
}

void BadInputs::Spoil(std::string& text, std::string_view pieces) {
  const Stretch one = StretchOf(text);
  switch (Below(14)) {
    case 0:
      text.resize(one.begin);
      break;
    case 1:
      text.erase(one.begin, one.length);
      break;
    case 2:
      text.insert(one.begin, text.substr(one.begin, one.length));
      break;
    case 3:
      if (!text.empty()) std::swap(text.front(), text[Below(text.size())]);
      break;
    case 4:
      text.replace(one.begin, one.length, RandomBytes(1 + Below(12)));
      break;
    case 5:
      if (OneIn(2)) text.insert(one.begin, 300 + Below(3000), OneIn(2) ? '9' : "0. (,a"[Below(6)]);
      break;
    case 6:
      if (OneIn(4)) text = InWideCharacters(text);
      break;
    case 7:
      Replace(text, "\r\n", OneIn(2) ? "\n" : "\r");
      break;
    case 8:
      if (OneIn(4)) text = RandomBytes(Below(2000));
      break;
    case 9:
      std::reverse(text.begin() + static_cast<std::ptrdiff_t>(one.begin),
                   text.begin() + static_cast<std::ptrdiff_t>(one.begin + one.length));
      break;
    default:
      text.insert(one.begin, Any(pieces));
  }
}

std::string BadInputs::RangeFile() {
  std::string text = GoodRangeFile();
  for (std::size_t left = 1 + Below(5); left > 0; --left)
    Spoil(text, kRangePieces);
  if (OneIn(200)) text.append(100000 + Below(1000000), OneIn(2) ? ')' : 'A');
  return text;
}

std::string BadInputs::SettingsFile() {
  std::string text = GoodSettingsFile();
  for (std::size_t left = 1 + Below(6); left > 0; --left)
    Spoil(text, kSettingsPieces);
  return text;
}

std::string BadInputs::BoxText() {
  std::string text = OneIn(2) ? Sum() : Amount();
  if (OneIn(2)) return text;
  for (std::size_t left = 1 + Below(3); left > 0; --left)
    Spoil(text, kBoxPieces);
  return text;
}

std::string InWideCharacters(std::string_view text) {
  std::string wide = "\xFF\xFE";
  for (const char c : text)
    wide.append(1, c).append(1, '\0');
  return wide;
}

Tally::~Tally() {
  int all = 0;
  std::string text;
  for (const auto& [fate, count] : fates_) {
    all += count;
    text.append(text.empty() ? "" : ", ").append(std::to_string(count)).append(" ").append(fate);
  }
  std::cout << all << " " << kind_ << ": " << text << '\n';
}

void ExpectFigures(const std::string& csv, const plain::Result& result, plain::Mode mode) {
  const std::vector<std::string> lines = Lines(csv);
  ASSERT_EQ(lines.size(), plain::Labels().size() + 1);
  for (std::size_t i = 0; i < plain::Labels().size(); ++i) {
    const std::vector<std::string> cells = Split(lines[i + 1], ",");
    ASSERT_EQ(cells.size(), 6U);
    EXPECT_EQ(cells[0], plain::Labels()[i]);
    EXPECT_EQ(cells[2], mode == plain::Mode::kEquity ? "" : plain::NumberText(result.ExpectedValues[i])) << cells[0];
    EXPECT_EQ(cells[3], plain::NumberText(result.Equities[i])) << cells[0];
    EXPECT_EQ(cells[4], mode == plain::Mode::kRaise ? plain::NumberText(result.FoldShares[i]) : "") << cells[0];
  }
}

std::string Shown(std::string_view input) {
  constexpr std::size_t kMost = 1000;
  std::string text;
  for (const char c : input.substr(0, kMost)) {
    constexpr std::string_view kHexadecimal = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    const std::string number = {'\\', 'x', kHexadecimal[byte / 16U], kHexadecimal[byte % 16U]};
    text += c >= ' ' && c < '\x7F' && c != '\\' ? std::string(1, c) : number;
  }
  return text + (input.size() > kMost ? " and so on" : "") + " (" + std::to_string(input.size()) + " bytes)";
}

}  // namespace quillon
