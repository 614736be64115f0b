#include <array>
#include <gtest/gtest.h>

#include "testing/fake_opener.h"
#include "toolkit/application.h"
#include "toolkit/browser.h"
#include "toolkit/label.h"

namespace quillon {
namespace {

TEST(Browser, IsGivenTheAddressAsItIsWritten) {
  const FakeOpener opener;
  int missed = 0;
  OpenInBrowser(QUrl(QStringLiteral("http://www.quillon.example/a b?c=%2B&d")), [&missed] { ++missed; });
  EXPECT_EQ(opener.Opened(), "http://www.quillon.example/a%20b?c=%2B&d\n");
  EXPECT_EQ(missed, 0);
}

TEST(Browser, FindsAFileByTheBytesOfItsName) {
  struct Row {
    const char* File;
    const char* Address;
  };
  constexpr std::array kRows = {
      Row{"/home/ann/My Quillon/guide.html", "file:///home/ann/My%20Quillon/guide.html"},
      Row{"/K\xC3\xA4se/guide.html", "file:///K%C3%A4se/guide.html"},
      Row{"/K\xE4se/guide.html", "file:///K%E4se/guide.html"},
      Row{"/100% #1?/it's (a) guide.html", "file:///100%25%20%231%3F/it's%20(a)%20guide.html"},
      Row{"/%E4/guide.html", "file:///%25E4/guide.html"},
  };
  for (const Row& row : kRows)
    EXPECT_EQ(AddressOfFile(row.File).toEncoded().toStdString(), row.Address);
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

TEST(Browser, IsMissedByTheWindowThatAskedForIt) {
  const FakeOpener opener(FakeOpener::kNoneFound);
  QWidget asker;
  Label link(&asker);
  link.SetUse(ControlUse::kLink);
  QWidget other;
  asker.show();
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  const QWidget* missedBy = nullptr;
  QObject::connect(&link, &Control::Clicked, &asker, [&missedBy] {
    OpenInBrowser(QUrl(QStringLiteral("http://www.quillon.example/")), [&missedBy] { missedBy = AskingWindow(); });
  });
  QTest::keyClick(&link, Qt::Key_Return);
  EXPECT_NE(opener.Opened(), "");
  EXPECT_EQ(missedBy, &asker);
}

}  // namespace
}  // namespace quillon
