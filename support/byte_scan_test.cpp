#include "support/byte_scan.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "testing/guarded_page.h"
#include "testing/oracle/searches.h"

namespace quillon {
namespace {

constexpr std::size_t kLongest = 480;  // at least two whole blocks of every search, and a rest
constexpr std::size_t kNowhere = std::string_view::npos;

class RandomTexts {
 public:
  explicit RandomTexts(std::string_view letters) : letters_(letters) {}

  std::string Make(std::size_t length) {
    std::uniform_int_distribution<std::size_t> pick(0, letters_.size() - 1);
    std::string text;
    while (text.size() < length)
      text += letters_[pick(source_)];
    return text;
  }

 private:
  std::string letters_;
  std::mt19937 source_{20040229};
};

// Places next to which a block of some search begins or ends: 224 or 112 bytes where they are counted, 128 or 64 where
// a text is looked for.
const std::vector<std::size_t> kBlockEdges = {0,   1,   63,  64,  65,  111, 112, 113, 127, 128, 129, 191,
                                              192, 223, 224, 225, 256, 335, 336, 337, 384, 447, 448, 449};

// The searches that the program chose when it started, and those for a processor without AVX2.
struct SearchPair {
  const char* Name;
  std::size_t (*NthByte)(std::string_view text, char byte, std::size_t n);
  std::size_t (*Text)(std::string_view text, std::string_view wanted);
};

class Searches : public testing::TestWithParam<SearchPair> {};
class NthByteSearch : public Searches {};
class TextSearch : public Searches {};

constexpr auto kName = [](const auto& searches) { return std::string(searches.param.Name); };
const auto kSearches = testing::Values(SearchPair{"Chosen", FindNthByte, FindText},
                                       SearchPair{"Baseline", FindNthByteInBaseline, FindTextInBaseline});
INSTANTIATE_TEST_SUITE_P(Of, Searches, kSearches, kName);
INSTANTIATE_TEST_SUITE_P(Of, NthByteSearch, kSearches, kName);
INSTANTIATE_TEST_SUITE_P(Of, TextSearch, kSearches, kName);

TEST_P(Searches, ReadNoByteBesideTheText) {
  const GuardedPage page;
  for (std::size_t length = 0; length <= kLongest; ++length) {
    for (const std::string_view text : {page.FirstBytes(length), page.LastBytes(length)}) {
      ASSERT_EQ(GetParam().NthByte(text, ' ', 0), kNowhere) << "length " << length;
      for (const std::string_view wanted : {"y", "xy", "xxy", "xyx", "xxxy"})
        ASSERT_EQ(GetParam().Text(text, wanted), kNowhere) << wanted << ", length " << length;
    }
  }
}

TEST_P(NthByteSearch, EqualsAPlainLoopAtEveryLength) {
  RandomTexts texts("ab ");
  for (std::size_t length = 0; length <= kLongest; ++length) {
    const std::string text = texts.Make(length);
    for (std::size_t n = 0; n <= length + 1; ++n) {
      ASSERT_EQ(GetParam().NthByte(text, ' ', n), plain::NthByte(text, ' ', n)) << "length " << length << ", n " << n;
    }
  }
}

TEST_P(NthByteSearch, EqualsAPlainLoopForEveryByte) {
  std::string text;
  for (int i = 0; i < 3 * 256; ++i)
    text += static_cast<char>(i % 256);
  for (int i = 0; i < 256; ++i) {
    const char byte = static_cast<char>(i);
    for (std::size_t n = 0; n < 3; ++n)
      ASSERT_EQ(GetParam().NthByte(text, byte, n), static_cast<std::size_t>(i) + n * 256) << "byte " << i;
    ASSERT_EQ(GetParam().NthByte(text, byte, 3), kNowhere) << "byte " << i;
  }
}

TEST_P(NthByteSearch, LoneByteIsFoundAtEveryPlaceOfEveryLength) {
  for (std::size_t length = 1; length <= kLongest; ++length) {
    std::string text(length, 'x');
    for (std::size_t place = 0; place < length; ++place) {
      text[place] = ' ';
      ASSERT_EQ(GetParam().NthByte(text, ' ', 0), place) << "length " << length;
      ASSERT_EQ(GetParam().NthByte(text, ' ', 1), kNowhere) << "length " << length << ", place " << place;
      text[place] = 'x';
    }
  }
}

TEST_P(NthByteSearch, TextOfNothingElseHasOccurrenceNAtN) {
  for (const std::size_t length : kBlockEdges) {
    const std::string text(length, ' ');
    for (std::size_t n = 0; n < length; ++n)
      ASSERT_EQ(GetParam().NthByte(text, ' ', n), n) << "length " << length;
    EXPECT_EQ(GetParam().NthByte(text, ' ', length), kNowhere) << "length " << length;
    EXPECT_EQ(GetParam().NthByte(text, ' ', std::numeric_limits<std::size_t>::max()), kNowhere) << "length " << length;
  }
}

TEST_P(NthByteSearch, NothingBesideTheTextIsLookedAt) {
  const std::string around(kLongest, ' ');
  for (const std::size_t length : kBlockEdges) {
    const std::string_view text = std::string_view(around).substr(1, length);
    EXPECT_EQ(GetParam().NthByte(text, ' ', length), kNowhere) << "length " << length;
  }
}

TEST_P(TextSearch, EqualsTheLibrarySearchAtEveryLength) {
  RandomTexts texts("aab");  // few letters: many near misses and overlaps
  RandomTexts wantedTexts("ab");
  for (std::size_t length = 0; length <= kLongest; ++length) {
    const std::string text = texts.Make(length);
    for (std::size_t wantedLength = 0; wantedLength <= 12; ++wantedLength) {
      const std::string wanted = wantedTexts.Make(wantedLength);
      ASSERT_EQ(GetParam().Text(text, wanted), std::string_view(text).find(wanted)) << text << " / " << wanted;
    }
  }
}

TEST_P(TextSearch, LoneOccurrenceIsFoundAtEveryPlaceOfEveryLength) {
  for (const std::string_view wanted : {"a", "ab", "abc", "aab"}) {
    for (std::size_t length = wanted.size(); length <= kLongest; ++length) {
      std::string text(length, 'x');
      for (std::size_t place = 0; place + wanted.size() <= length; ++place) {
        text.replace(place, wanted.size(), wanted);
        ASSERT_EQ(GetParam().Text(text, wanted), place) << wanted << ", length " << length;
        text.replace(place, wanted.size(), wanted.size(), 'x');
      }
    }
  }
}

std::string Xs(std::size_t count) {
  return std::string(count, 'x');
}

TEST_P(TextSearch, IsFoundAtItsPlace) {
  struct Case {
    const char* rule;
    std::string text;
    std::string wanted;
    std::size_t place;
  };
  for (const Case& c :
       std::vector<Case>{{"nothing is found at the start of nothing", "", "", 0},
                         {"nothing is found at the start of a long text", Xs(300), "", 0},
                         {"a text longer than the place searched is not there", "ab", "abc", kNowhere},
                         {"a start of the wanted text at the end is no match", Xs(126) + "AK", "AKs", kNowhere},
                         {"the first of two occurrences counts", "AKo AKs AKs", "AKs", 4},
                         {"a near miss across the block edge is passed", Xs(127) + "AKo" + Xs(9) + "AKs", "AKs", 139},
                         {"an occurrence overlaps a near miss of itself", Xs(125) + "aaaab", "aab", 127},
                         {"a wanted text longer than a block", "x" + std::string(150, 'a') + "b" + Xs(150),
                          std::string(149, 'a') + "b", 2},
                         {"case counts", "aks AKS", "AKs", kNowhere},
                         {"a zero byte is a byte", std::string("a\0b", 3), std::string("\0b", 2), 1},
                         {"bytes above 127 are bytes", Xs(130) + "\xFF\xFE\xFF\xFD", "\xFF\xFD", 132}})
    EXPECT_EQ(GetParam().Text(c.text, c.wanted), c.place) << c.rule;
}

TEST_P(TextSearch, NothingBesideTheTextIsLookedAt) {
  const std::string around = std::string(kLongest, 'x') + "AKs";
  for (std::size_t cut = 1; cut <= 3; ++cut) {
    for (std::size_t start = 0; start < kLongest; ++start) {
      const std::string_view text = std::string_view(around).substr(start, around.size() - start - cut);
      ASSERT_EQ(GetParam().Text(text, "AKs"), kNowhere) << "start " << start << ", cut " << cut;
    }
  }
}

}  // namespace
}  // namespace quillon
