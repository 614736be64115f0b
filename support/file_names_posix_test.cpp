#include <gtest/gtest.h>

#include "support/file_names.h"

namespace quillon {
namespace {

TEST(IsSameName, HeedsLetterCase) {
  EXPECT_TRUE(IsSameName("Tight.txt", "Tight.txt"));
  EXPECT_FALSE(IsSameName("Tight.txt", "tight.txt"));
}

TEST(NameFault, IsThatOfNoName) {
  EXPECT_EQ(NameFault("CON. "), "");
}

}  // namespace
}  // namespace quillon
