#include "toolkit/colors.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Colors, OfARowAreRedGreenBlue) {
  EXPECT_EQ(ToColor(0x336699), QColor(0x33, 0x66, 0x99));
  EXPECT_EQ(ToColor(0), QColor(0, 0, 0));
  EXPECT_EQ(ToColor(0xFFFFFF), QColor(255, 255, 255));
  EXPECT_EQ(ToColor(kNoColor).alpha(), 0);
}

TEST(Colors, OfTheWindowSystemAreLightWithDarkText) {
  EXPECT_EQ(ToColor(kWindowColor), QColor(Qt::white));
  EXPECT_EQ(ToColor(kWindowTextColor), QColor(Qt::black));
}

TEST(Colors, OfTheLogicGoThereAndBack) {
  EXPECT_EQ(ToColor(Rgb{10, 36, 106}), QColor(10, 36, 106));
  EXPECT_EQ(FromColor(QColor(10, 36, 106)), (Rgb{10, 36, 106}));
}

}  // namespace
}  // namespace quillon
