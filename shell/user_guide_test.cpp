#include "shell/user_guide.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(UserGuide, LiesBesideTheProgramAndIsNamedWhereNothingOpensIt) {
  const std::filesystem::path guide = UserGuidePath("/home/ann/My Quillon");
  EXPECT_EQ(guide, "/home/ann/My Quillon/Guide/user-guide.html");

  const Message told = NoUserGuideMessage(guide);
  EXPECT_EQ(told.title, "Quillon");
  EXPECT_EQ(told.text, "The user guide could not be opened. It is the file:\r\n\r\n" + guide.string());
  EXPECT_EQ(told.icon, MessageIcon::kExclamation);
}

}  // namespace
}  // namespace quillon
