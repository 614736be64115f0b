#include "toolkit/browser.h"

#include <gtest/gtest.h>

#include "testing/fake_opener.h"

namespace quillon {
namespace {

TEST(Browser, IsGivenTheAddressAsItIsWritten) {
  const FakeOpener opener;
  int missed = 0;
  OpenInBrowser(QUrl(QStringLiteral("http://www.quillon.example/a b?c=%2B&d")), [&missed] { ++missed; });
  EXPECT_EQ(opener.Opened(), "http://www.quillon.example/a%20b?c=%2B&d\n");
  EXPECT_EQ(missed, 0);
}

TEST(Browser, ThatIsNotThereIsMissedOnce) {
  const FakeOpener opener(FakeOpener::kNoneFound);
  int missed = 0;
  OpenInBrowser(QUrl(QStringLiteral("http://www.quillon.example/")), [&missed] { ++missed; });
  EXPECT_EQ(missed, 0) << "not before the click is over";
  EXPECT_EQ(opener.Opened(), "http://www.quillon.example/\n");
  EXPECT_EQ(missed, 1);
}

TEST(Browser, IsMissedWhereNothingOpensAddresses) {
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", "/nowhere");
  int missed = 0;
  OpenInBrowser(QUrl(QStringLiteral("http://www.quillon.example/")), [&missed] { ++missed; });
  EXPECT_EQ(missed, 0) << "not before the click is over";
  EXPECT_TRUE(QTest::qWaitFor([&missed] { return missed > 0; }));
  EXPECT_EQ(missed, 1);
  qputenv("PATH", path);
}

}  // namespace
}  // namespace quillon
