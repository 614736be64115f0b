#include "support/byte_scan.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "testing/guarded_page.h"
#include "testing/oracle/searches.h"

namespace quillon {
namespace {

constexpr std::size_t kLongest = 480;  // at least two whole blocks of every search, plus a remainder
constexpr std::size_t kNowhere = std::string_view::npos;

std::string RandomText(std::string_view letters, std::size_t length) {
  static std::mt19937 source{20040229};
  std::string text;
  while (text.size() < length)
    text += letters[source() % letters.size()];
  return text;
}

// Positions near block edges: blocks are 224 or 112 bytes when counting, 128 or 64 when searching for a text.
const std::vector<std::size_t> kBlockEdges = {0,   1,   63,  64,  65,  111, 112, 113, 127, 128, 129, 191,
                                              192, 223, 224, 225, 256, 335, 336, 337, 384, 447, 448, 449};

TEST(Searches, ReadNoByteBesideTheText) {
  const GuardedPage page;
  for (std::size_t length = 0; length <= kLongest; ++length) {
    for (const std::string_view text : {page.FirstBytes(length), page.LastBytes(length)}) {
      ASSERT_EQ(FindNthByte(text, ' ', 0), kNowhere) << "length " << length;
      for (const std::string_view wanted : {"y", "xy", "xxy", "xyx", "xxxy"})
        ASSERT_EQ(FindText(text, wanted), kNowhere) << wanted << ", length " << length;
    }
  }
}

TEST(FindNthByte, EqualsAPlainLoopAtEveryLength) {
  for (std::size_t length = 0; length <= kLongest; ++length) {
    const std::string text = RandomText("ab ", length);
    for (std::size_t n = 0; n <= length + 1; ++n) {
      ASSERT_EQ(FindNthByte(text, ' ', n), plain::NthByte(text, ' ', n)) << "length " << length << ", n " << n;
    }
  }
}

TEST(FindNthByte, EqualsAPlainLoopForEveryByte) {
  std::string text;
  for (int i = 0; i < 3 * 256; ++i)
    text += static_cast<char>(i % 256);
  for (int i = 0; i < 256; ++i) {
    const char byte = static_cast<char>(i);
    for (std::size_t n = 0; n < 3; ++n)
      ASSERT_EQ(FindNthByte(text, byte, n), static_cast<std::size_t>(i) + n * 256) << "byte " << i;
    ASSERT_EQ(FindNthByte(text, byte, 3), kNowhere) << "byte " << i;
  }
}

TEST(FindNthByte, TextOfNothingElseHasOccurrenceNAtN) {
  for (const std::size_t length : kBlockEdges) {
    const std::string text(length, ' ');
    for (std::size_t n = 0; n < length; ++n)
      ASSERT_EQ(FindNthByte(text, ' ', n), n) << "length " << length;
    EXPECT_EQ(FindNthByte(text, ' ', length), kNowhere) << "length " << length;
    EXPECT_EQ(FindNthByte(text, ' ', std::numeric_limits<std::size_t>::max()), kNowhere) << "length " << length;
  }
}

TEST(FindText, EqualsTheLibrarySearchAtEveryLength) {
  for (std::size_t length = 0; length <= kLongest; ++length) {
    const std::string text = RandomText("aab", length);  // few letters: many near misses and overlaps
    for (std::size_t wantedLength = 0; wantedLength <= 12; ++wantedLength) {
      const std::string wanted = RandomText("ab", wantedLength);
      ASSERT_EQ(FindText(text, wanted), std::string_view(text).find(wanted)) << text << " / " << wanted;
    }
  }
}

TEST(FindText, LoneOccurrenceIsFoundAtEveryPlaceOfEveryLength) {
  for (const std::string_view wanted : {"a", "ab", "abc", "aab"}) {
    for (std::size_t length = wanted.size(); length <= kLongest; ++length) {
      std::string text(length, 'x');
      for (std::size_t place = 0; place + wanted.size() <= length; ++place) {
        text.replace(place, wanted.size(), wanted);
        ASSERT_EQ(FindText(text, wanted), place) << wanted << ", length " << length;
        text.replace(place, wanted.size(), wanted.size(), 'x');
      }
    }
  }
}

std::string Xs(std::size_t count) {
  return std::string(count, 'x');
}

TEST(FindText, IsFoundAtItsPlace) {
  struct Case {
    const char* rule;
    std::string text;
    std::string wanted;
    std::size_t place;
  };
  for (const Case& c :
       std::vector<Case>{{"nothing is found at the start of a long text", Xs(300), "", 0},
                         {"a text longer than the place searched is not there", "ab", "abc", kNowhere},
                         {"a start of the wanted text at the end is no match", Xs(126) + "AK", "AKs", kNowhere},
                         {"the first of two occurrences counts", "AKo AKs AKs", "AKs", 4},
                         {"a near miss across the block edge is passed", Xs(127) + "AKo" + Xs(9) + "AKs", "AKs", 139},
                         {"an occurrence overlaps a near miss of itself", Xs(125) + "aaaab", "aab", 127},
                         {"a wanted text longer than a block", "x" + std::string(150, 'a') + "b" + Xs(150),
                          std::string(149, 'a') + "b", 2},
                         {"a zero byte is a byte", std::string("a\0b", 3), std::string("\0b", 2), 1},
                         {"bytes above 127 are bytes", Xs(130) + "\xFF\xFE\xFF\xFD", "\xFF\xFD", 132}})
    EXPECT_EQ(FindText(c.text, c.wanted), c.place) << c.rule;
}

}  // namespace
}  // namespace quillon
