// The web services of the About screen, with the program's own web client and a host that is really there. The window
// runs in the test's process.

#include <QCheckBox>
#include <QClipboard>
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
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "results/web_addresses.h"
#include "shell/screens/http_client.h"
#include "testing/loopback_host.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kShort{500};
constexpr milliseconds kGenerous{20'000};  // never used up, save by a test that fails
constexpr milliseconds kSlack{10'000};  // for a machine that has other things to do

constexpr std::string_view kVersionFile = "/quillon/register/ver.html";
constexpr std::string_view kFeedbackScript = "/quillon/register/benice.php";

constexpr std::string_view kLatest = "You have the latest version of Quillon";
constexpr std::string_view kDownload = "Download latest version of Quillon";

const InputQuestion kAddressQuestion = {"What is your email address?", "Quillon", ""};
const Message kSent = {.title = "Quillon", .text = "Your message has been sent."};

// The program's own client, which finds the product's host on this machine.
class LoopbackClient : public WebClient {
 public:
  std::string Get(std::string_view address) override {
    const std::string productHost = "http://" + std::string(WebHost()) + "/";
    EXPECT_TRUE(address.starts_with(productHost)) << address;
    address.remove_prefix(productHost.size());
    return HttpClient(Limit).Get("http://127.0.0.1:" + std::to_string(Port) + "/" + std::string(address));
  }

  std::uint16_t Port = 0;
  milliseconds Limit = kGenerous;
};

class Stopwatch {
 public:
  [[nodiscard]] milliseconds Spent() const {
    return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - start_);
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

class WebStage : public MainStage {
 public:
  explicit WebStage(StageClock clock = StageClock::kHurried) : MainStage(clock) {
    Web.Behind = &Client;
    Client.Port = Host.Port();
  }

  static bool HourglassShows() { return QGuiApplication::overrideCursor() != nullptr; }

  void ExpectAnOpenEar() {
    ComeToFront();
    Open(kCallNav);
    EXPECT_EQ(Screen(), "Preflop Call");
    Click("picLogo");
    EXPECT_TRUE(Shows("frameAboutContent"));
  }

  QPlainTextEdit& Note() { return Get<QPlainTextEdit>("txtFeedback"); }
  void Paste(const QString& note) {
    QGuiApplication::clipboard()->setText(note);
    Click("txtFeedback");
    Press(Qt::Key_V, Qt::ControlModifier);
  }
  void Send() {
    ComeToFront();
    Click("cmdSendFeedback");
  }

  LoopbackWebHost Host;
  LoopbackClient Client;
};

// The target of the request that brings a note, whose parts are given as they travel.
std::string FeedbackTarget(std::string_view writer, std::string_view note) {
  return std::string(kFeedbackScript) + "?email_name=" + std::string(writer) + "&email_body=" + std::string(note);
}

std::string Repeated(std::string_view text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i)
    result += text;
  return result;
}

class WebJourney : public testing::Test, public WebStage {
 protected:
  explicit WebJourney(StageClock clock = StageClock::kHurried) : WebStage(clock) {}

  void TearDown() override {
    EXPECT_EQ(ActsToCome, 0) << "something was to be done during a wait";
    EXPECT_FALSE(HourglassShows());
    EXPECT_EQ(Ends, 0);
  }

  void ExpectVersion(std::string_view latest, std::string_view link) {
    EXPECT_EQ(Caption("lblCurrentVersion"), latest);
    EXPECT_EQ(Shows("lblLink", 3), !link.empty());
    if (!link.empty()) {
      EXPECT_EQ(Caption("lblLink", 3), link);
    }
  }
};

// What a host may send, and what is read from it, has tests without a window.
TEST_F(WebJourney, AnUpgradeCheckShowsWhatTheHostSays) {
  Host.Put("/quillon/newest.html", {.Body = "1.25"});
  Start();
  struct Case {
    std::optional<WebPage> Page;
    std::string_view Latest;
    std::string_view Link;  // empty: hidden
  };
  for (const Case& c : std::vector<Case>{{std::nullopt, "Error Connecting", ""},
                                         {WebPage{.Body = "0.9\r\n"}, "0.9", kLatest},
                                         {WebPage{404, "404 Not Found", ""}, "404", kDownload},
                                         {WebPage{301, "", "/quillon/newest.html"}, "1.25", kDownload}}) {
    if (c.Page) Host.Put(kVersionFile, *c.Page);
    const Stopwatch watch;
    Click("chkUpgrade");
    EXPECT_LT(watch.Spent(), kGenerous / 2);
    ExpectVersion(c.Latest, c.Link);
    Click("chkUpgrade");
    ExpectVersion("N/A", "");
  }
  EXPECT_EQ(Host.Targets().front(), kVersionFile);
  ExpectAnOpenEar();
}

TEST_F(WebJourney, AStartWithAHostThatDoesNotAnswerTakesTheLimitTwice) {
  const LoopbackHost silent([](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); });
  WriteSettings("[Upgrade]\r\nAuto=1\r\n");
  Client.Port = silent.Port();
  Client.Limit = kShort;
  const Stopwatch watch;
  Start();
  EXPECT_GE(watch.Spent(), 2 * kShort);
  EXPECT_LT(watch.Spent(), 2 * kShort + kSlack);
  ExpectVersion("Error Connecting", "");
  ExpectAnOpenEar();
  RunCall("150", "50", "Pairs");
  EXPECT_FALSE(Form.State().HandInfo.empty()) << "the start went on after it";
}

TEST_F(WebJourney, NothingThatIsDoneDuringARequestIsHeard) {
  std::atomic<bool> answers = false;
  const LoopbackHost slow([&](LoopbackConnection& connection) {
    while (!answers && connection.Pause(milliseconds(1))) {
    }
    connection.Send("HTTP/1.1 200 OK\r\n\r\nsent");
  });
  Client.Port = slow.Port();
  Start();
  Paste(QStringLiteral("abc"));
  Once([&] { return !slow.Requests().empty(); },
       [&] {
         Send();
         Click("chkUpgrade");
         Open(kCallNav);
         Press(Qt::Key_1, Qt::ControlModifier);
         answers = true;
       });
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectMessageBox(kSent);
  Send();
  EXPECT_EQ(slow.Requests().size(), 1U);
  EXPECT_EQ(Screen(), "About");
  EXPECT_FALSE(Get<QCheckBox>("chkUpgrade").isChecked());
  ExpectAnOpenEar();
}

TEST_F(WebJourney, ANoteReachesTheHostByteForByte) {
  Host.Put(kFeedbackScript, {.Body = "sent"});
  Start();
  for (const auto& [note, encoded] :
       std::vector<std::pair<std::string, std::string>>{{Repeated("ä", 1000), Repeated("%E4", 1000)},
                                                        {"a\r\n¡b\n", "%61%0D%0A%A1%62%0D%0A"},
                                                        {"a\tb\f\x01z\u00A0b\u2028b", "%61%9%62%C%1%7A%A0%62%0D%0A%62"},
                                                        {"“5 €” Ω漢\U0001F0A1b", "%93%35%20%80%94%20%3F%3F%3F%62"},
                                                        {"?&=#%/ +", "%3F%26%3D%23%25%2F%20%2B"}}) {
    Paste(ToQt(note));
    ExpectInputBox(kAddressQuestion, "ü@x&y");
    ExpectMessageBox(kSent);
    Send();
    VerifyExpectedBoxes();
    EXPECT_EQ(Host.Targets().back(), FeedbackTarget("%FC%40%78%26%79", encoded));
    EXPECT_EQ(Note().toPlainText(), QString());
    EXPECT_FALSE(HourglassShows());
    ComeToFront();
  }
  ExpectAnOpenEar();
}

class WebJourneyInRealTime : public WebJourney {
 protected:
  WebJourneyInRealTime() : WebJourney(StageClock::kSystem) {}
};

TEST_F(WebJourneyInRealTime, ANoteGoesOutAfterFiveSecondsInWhichTheWindowIsLive) {
  Host.Put(kFeedbackScript, {.Body = "sent"});
  Start();
  Paste(QStringLiteral("abc"));
  DuringWait([this] {
    ExpectAnOpenEar();
    Paste(QStringLiteral("d"));
  });
  milliseconds asked{0};
  const Stopwatch watch;
  Web.WhileAsked = [&] { asked = watch.Spent(); };
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectMessageBox(kSent);
  Send();
  EXPECT_GE(asked, milliseconds(5000));
  EXPECT_LT(asked, milliseconds(5000) + kSlack);
  EXPECT_EQ(Host.Targets(), std::vector<std::string>{FeedbackTarget("%78%40%79", "%61%62%63%64")})
      << "as the note reads by then";
}

// The program in a process of its own, which ends as the real one does, and tells how far it has come.
class ClosedStage : public WebStage {
 public:
  ClosedStage() {
    AtEnd = [this] {
      std::fprintf(stderr, "closed %s, asked %zu times, note \"%s\", version %s\n%s",
                   HourglassShows() ? "under the hourglass" : "without the hourglass", silent_.Requests().size(),
                   FromQt(Note().toPlainText()).c_str(), Caption("lblCurrentVersion").c_str(), Settings().c_str());
      std::error_code ignored;
      std::filesystem::remove_all(Program.Folder().Path, ignored);
      std::_Exit(EXIT_SUCCESS);
    };
    Client.Port = silent_.Port();
  }

  void CloseOnce(std::function<bool()> ready) {
    Once(std::move(ready), [this] { Form.windowHandle()->close(); });
  }
  [[nodiscard]] bool Asks() const { return !silent_.Requests().empty(); }
  void SendNote() {
    Start();
    Paste(QStringLiteral("abc"));
    ExpectInputBox(kAddressQuestion, "x@y");
    Send();
  }

 private:
  LoopbackHost silent_{[](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); }};
};

class ClosingDeathTest : public testing::Test {
 protected:
  // A fork of a process that has threads would be a process with broken locks.
  ClosingDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

// What the program told at its end, and that it wrote its settings before.
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
    stage.CloseOnce([] { return ClosedStage::HourglassShows(); });
    stage.SendNote();
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(EXIT_SUCCESS), Closed(kClosedUnsent));
}

TEST_F(ClosingDeathTest, EndsTheProgramDuringARequest) {
  const auto run = [](void (*ask)(ClosedStage & stage)) {
    ClosedStage stage;
    stage.CloseOnce([&] { return stage.Asks(); });
    ask(stage);
  };
  EXPECT_EXIT(run([](ClosedStage& stage) { stage.SendNote(); }), testing::ExitedWithCode(EXIT_SUCCESS),
              Closed(kClosedSending));
  EXPECT_EXIT(run([](ClosedStage& stage) {
                stage.Start();
                stage.Click("chkUpgrade");
              }),
              testing::ExitedWithCode(EXIT_SUCCESS), Closed(kClosedChecking));
  EXPECT_EXIT(run([](ClosedStage& stage) {
                stage.WriteSettings("[Upgrade]\r\nAuto=1\r\n");
                stage.Start();
              }),
              testing::ExitedWithCode(EXIT_SUCCESS), Closed(kClosedChecking));
}

}  // namespace
}  // namespace quillon
