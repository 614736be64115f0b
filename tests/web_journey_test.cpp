// The web services of the About screen, with the program's own web client and a real host. The window runs in the
// test's process.

#include <QCheckBox>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>

#include "results/web_addresses.h"
#include "shell/screens/web_client.h"
#include "testing/loopback_host.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

using std::chrono::milliseconds;

const InputQuestion kAddressQuestion = {"What is your email address?", "Quillon", ""};

bool HourglassShows() {
  return QGuiApplication::overrideCursor() != nullptr;
}

class WebStage : public MainStage {
 public:
  explicit WebStage(LoopbackHost::Serve serve) : Host(std::move(serve)) {
    // The program's own client, redirected to a host on this machine.
    Web.Behind = [this](std::string_view address) {
      const std::string productHost = "http://" + std::string(WebHost());
      EXPECT_TRUE(address.starts_with(productHost + "/")) << address;
      address.remove_prefix(productHost.size());
      return WaitForHttp(Host.Address(address), milliseconds(20'000));  // only reached by a failing test
    };
  }

  [[nodiscard]] QPlainTextEdit& Note() { return Get<QPlainTextEdit>("txtFeedback"); }
  void SendNote() {
    Note().setPlainText(QStringLiteral("abc"));
    Click("cmdSendFeedback");
  }

  LoopbackHost Host;
};

TEST(WebJourney, NothingThatIsDoneDuringARequestIsHeard) {
  std::atomic<bool> answers = false;
  WebStage stage([&](LoopbackConnection& connection) {
    while (!answers && connection.Pause(milliseconds(1))) {
    }
    connection.Send("HTTP/1.1 200 OK\r\n\r\nsent");
  });
  stage.Start();
  stage.Once([&] { return !stage.Host.Requests().empty(); },
             [&] {
               stage.Click("cmdSendFeedback");
               stage.Click("chkUpgrade");
               stage.Open(kCallNav);
               stage.Press(Qt::Key_1, Qt::ControlModifier);
               answers = true;
             });
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectMessageBox({.title = "Quillon", .text = "Your message has been sent."});
  stage.SendNote();
  EXPECT_EQ(stage.ActsToCome, 0);
  EXPECT_EQ(stage.Host.Requests().size(), 1U);
  EXPECT_EQ(stage.Screen(), "About");
  EXPECT_FALSE(stage.Get<QCheckBox>("chkUpgrade").isChecked());
  EXPECT_FALSE(HourglassShows());

  stage.ComeToFront();
  stage.Open(kCallNav);
  EXPECT_EQ(stage.Screen(), "Preflop Call") << "it responds again";
}

// The program in a process of its own, which ends as the real one does, and reports its progress.
class ClosedStage : public WebStage {
 public:
  ClosedStage() : WebStage([](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); }) {
    AtEnd = [this] {
      std::fprintf(stderr, "closed %s, asked %zu times, note \"%s\", version %s\n%s",
                   HourglassShows() ? "under the hourglass" : "without the hourglass", Host.Requests().size(),
                   FromQt(Note().toPlainText()).c_str(), Caption("lblCurrentVersion").c_str(), Settings().c_str());
      std::error_code ignored;
      std::filesystem::remove_all(Program.Folder().Path, ignored);
      std::_Exit(EXIT_SUCCESS);
    };
  }

  void CloseOnce(std::function<bool()> ready) {
    Once(std::move(ready), [this] { Form.windowHandle()->close(); });
  }
  [[nodiscard]] bool Asks() const { return !Host.Requests().empty(); }
};

class ClosingDeathTest : public testing::Test {
 protected:
  // A fork of a multi-threaded process would have broken locks.
  ClosingDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

// The program's last words, and that its settings were written before.
testing::Matcher<const std::string&> Closed(const char* told) {
  return testing::AllOf(testing::HasSubstr(told), testing::HasSubstr("\n[Main]\r\nLeft="),
                        testing::HasSubstr("\n[Values]\r\n0=\r\n1=\r\n2=\r\n3=\r\n4=\r\n"));
}

constexpr const char* kClosedUnsent = "closed under the hourglass, asked 0 times, note \"abc\", version N/A\n";
constexpr const char* kClosedSending = "closed under the hourglass, asked 1 times, note \"abc\", version N/A\n";
constexpr const char* kClosedChecking = "closed without the hourglass, asked 1 times, note \"\", version Checking";

TEST_F(ClosingDeathTest, EndsTheProgramDuringTheWaitBeforeANoteGoesOut) {
  const auto run = [] {
    ClosedStage stage;
    stage.CloseOnce(HourglassShows);
    stage.Start();
    ExpectInputBox(kAddressQuestion, "x@y");
    stage.SendNote();
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(EXIT_SUCCESS), Closed(kClosedUnsent));
}

TEST_F(ClosingDeathTest, EndsTheProgramDuringARequest) {
  const auto run = [](const char* settings, void (*ask)(ClosedStage & stage)) {
    ClosedStage stage;
    stage.CloseOnce([&] { return stage.Asks(); });
    stage.WriteSettings(settings);
    stage.Start();
    ask(stage);
  };
  const auto send = [](ClosedStage& stage) {
    ExpectInputBox(kAddressQuestion, "x@y");
    stage.SendNote();
  };
  EXPECT_EXIT(run("", send), testing::ExitedWithCode(EXIT_SUCCESS), Closed(kClosedSending));
  EXPECT_EXIT(run("", [](ClosedStage& stage) { stage.Click("chkUpgrade"); }), testing::ExitedWithCode(EXIT_SUCCESS),
              Closed(kClosedChecking));
  EXPECT_EXIT(run("[Upgrade]\r\nAuto=1\r\n", [](ClosedStage& /*stage*/) {}), testing::ExitedWithCode(EXIT_SUCCESS),
              Closed(kClosedChecking));
}

}  // namespace
}  // namespace quillon
