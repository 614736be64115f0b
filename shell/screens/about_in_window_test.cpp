#include <QCheckBox>
#include <QGuiApplication>
#include <QPlainTextEdit>

#include "results/web_addresses.h"
#include "testing/fake_opener.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

class UpgradeInWindow : public testing::Test, public MainStage {
 protected:
  void ExpectOutcome(std::string_view latest, std::string_view link) {
    EXPECT_EQ(Caption("lblVersion"), "0.9");
    EXPECT_EQ(Caption("lblCurrentVersion"), latest);
    EXPECT_EQ(Shows("lblLink", 3), !link.empty());
    if (!link.empty()) {
      EXPECT_EQ(Caption("lblLink", 3), link);
    }
  }
  Qt::CheckState BoxState() { return Get<QCheckBox>("chkUpgrade").checkState(); }
};

constexpr const char* kLatest = "You have the latest version of Quillon";
constexpr const char* kDownload = "Download latest version of Quillon";

TEST_F(UpgradeInWindow, IsOffAtTheStart) {
  Start();
  ExpectOutcome("N/A", "");
  EXPECT_EQ(BoxState(), Qt::Unchecked);
  EXPECT_TRUE(Web.Asked.empty());
  EXPECT_EQ(Settings(), "");
}

TEST_F(UpgradeInWindow, AStartWithTheSettingOnAsksTwice) {
  WriteSettings("[Upgrade]\r\nAuto=1\r\n");
  Web.Replies = {"0.8", "1.0 final"};
  Start();
  EXPECT_EQ(Web.Asked, (std::vector<std::string>{VersionFileAddress(), VersionFileAddress()}));
  ExpectOutcome("1", kDownload);
  EXPECT_EQ(BoxState(), Qt::Checked);
  EXPECT_EQ(Settings(), "[Upgrade]\r\nAuto=1\r\n");
}

TEST_F(UpgradeInWindow, AGreyBoxAsksNothing) {
  WriteSettings("[Upgrade]\r\nAuto=2\r\n");
  Start();
  EXPECT_EQ(BoxState(), Qt::PartiallyChecked);
  EXPECT_TRUE(Web.Asked.empty());
  ExpectOutcome("N/A", "");
  Click("chkUpgrade");
  EXPECT_EQ(BoxState(), Qt::Unchecked) << "a click never leads to grey";
  Click("chkUpgrade");
  EXPECT_EQ(BoxState(), Qt::Checked);
}

TEST_F(UpgradeInWindow, AReplyIsShownAndGoesWithTheTick) {
  Start();
  Web.WhileAsked = [this] {
    EXPECT_EQ(Caption("lblCurrentVersion"), "Checking website...");
    EXPECT_EQ(Settings(), "[Upgrade]\r\nAuto=1\r\n") << "stored at once";
  };
  for (const auto& [reply, latest, link] : std::vector<std::array<std::string, 3>>{
           {"0.9\r\n", "0.9", kLatest}, {"1.0 final", "1", kDownload}, {"", "Error Connecting", ""}}) {
    Web.Replies = {reply};
    Web.Asked.clear();
    Click("chkUpgrade");
    EXPECT_EQ(Web.Asked.size(), 1U);
    ExpectOutcome(latest, link);
    Click("chkUpgrade");
    EXPECT_EQ(Web.Asked.size(), 1U) << "unticking asks nobody";
    ExpectOutcome("N/A", "");
    EXPECT_EQ(Settings(), "[Upgrade]\r\nAuto=0\r\n");
  }
}

TEST_F(UpgradeInWindow, TheLinkLeadsToTheDownloadOrSaysWhyNot) {
  WriteSettings("[Upgrade]\r\nAuto=1\r\n");
  Web.Replies = {"1.0", "1.0", "0.9"};
  Start();
  {
    const FakeOpener opener;
    Click("lblLink", 3);
    EXPECT_EQ(opener.Opened(), DownloadAddress() + "\n");
  }
  const FakeOpener opener(FakeOpener::kNoneFound);
  ExpectMessageBox({.title = "Quillon",
                    .text = "No browser was found on this machine. The address is:\r\n\r\n" + DownloadAddress(),
                    .icon = MessageIcon::kExclamation});
  Click("lblLink", 3);
  EXPECT_EQ(opener.Opened(), DownloadAddress() + "\n");
  VerifyExpectedBoxes();

  ComeToFront();
  Click("chkUpgrade");
  Click("chkUpgrade");
  ExpectMessageBox({.title = "Quillon", .text = "You're good to go!"});
  Click("lblLink", 3);
  EXPECT_EQ(opener.Opened(), DownloadAddress() + "\n") << "nothing more was opened";
}

TEST_F(UpgradeInWindow, ASettingThatCannotBeWrittenBringsTheBoxBack) {
  std::filesystem::create_directory(Program.Folder().Path / "settings.ini");
  Start();
  Click("chkUpgrade");
  EXPECT_EQ(BoxState(), Qt::Unchecked);
  EXPECT_TRUE(Web.Asked.empty());
  ExpectOutcome("N/A", "");
}

TEST_F(UpgradeInWindow, AStateThatNoBoxHasEndsTheProgram) {
  WriteSettings("[Upgrade]\r\nAuto=3\r\n");
  EXPECT_EQ(FaultOf([this] {
              Form.Start();
              return 0;
            }),
            RunTimeFault::kInvalidPropertyValue);
}

const InputQuestion kAddressQuestion = {"What is your email address?", "Quillon", ""};
const Message kSent = {.title = "Quillon", .text = "Your message has been sent."};
const Message kNotSent = {
    .title = "Error", .text = "There was a problem sending your message.", .icon = MessageIcon::kStop};

// "nobody@q.test", each character as its code.
constexpr std::string_view kAnonymousCode = "%6E%6F%62%6F%64%79%40%71%2E%74%65%73%74";

class FeedbackInWindow : public MainFormTest {
 protected:
  QPlainTextEdit& Note() { return Get<QPlainTextEdit>("txtFeedback"); }
  void Fill(const QString& text) { Note().setPlainText(text); }
  void Send() { Click("cmdSendFeedback"); }
  static std::string Request(std::string_view writer, std::string_view note) {
    return FeedbackScriptAddress() + "?email_name=" + std::string(writer) + "&email_body=" + std::string(note);
  }
};

TEST_F(FeedbackInWindow, GoesOutAfterFiveSecondsUnderTheHourglass) {
  Click("txtFeedback");
  TypeKeys("Hi!");
  Web.Replies = {"message sent"};
  const std::int32_t start = Now;
  Web.WhileAsked = [&] {
    EXPECT_GT(Now - start, 5000);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  };
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectMessageBox(kSent);
  Send();
  EXPECT_EQ(Web.Asked, std::vector<std::string>{Request("%78%40%79", "%48%69%21")});
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(Note().toPlainText(), QString());
}

TEST_F(FeedbackInWindow, WithoutAnAddressItIsNobodys) {
  for (const bool cancelled : {false, true}) {
    Fill(QStringLiteral("abc"));
    Web.Replies = {"sent"};
    Web.Asked.clear();
    if (cancelled) {
      ExpectInputBoxCancelled(kAddressQuestion);
    } else {
      ExpectInputBox(kAddressQuestion, "somebody");
    }
    ExpectMessageBox(kSent);
    Send();
    VerifyExpectedBoxes();
    EXPECT_EQ(Web.Asked, std::vector<std::string>{Request(kAnonymousCode, "%61%62%63")});
    ComeToFront();
  }
}

TEST_F(FeedbackInWindow, AFailureKeepsTheText) {
  for (const char* reply : {"", "Sent", "error"}) {
    Fill(QStringLiteral("abc"));
    Web.Replies = {reply};
    ExpectInputBox(kAddressQuestion, "x@y");
    ExpectMessageBox(kNotSent);
    Send();
    VerifyExpectedBoxes();
    EXPECT_EQ(Note().toPlainText(), QStringLiteral("abc"));
    ComeToFront();
  }
}

TEST_F(FeedbackInWindow, AComplaintKeepsTheNote) {
  Fill(QString(1001, QLatin1Char('a')));
  ExpectMessageBox({.title = "Quillon",
                    .text = "Too much feedback. Please consider sending an email.",
                    .icon = MessageIcon::kExclamation});
  Send();
  EXPECT_TRUE(Web.Asked.empty());
  EXPECT_EQ(Note().toPlainText().size(), 1001);
}

TEST_F(FeedbackInWindow, TheWindowIsLiveDuringTheWait) {
  Fill(QStringLiteral("abc"));
  Web.Replies = {"sent"};
  bool wandered = false;
  QTimer wander;
  QObject::connect(&wander, &QTimer::timeout, &Form, [&] {
    if (wandered || QGuiApplication::overrideCursor() == nullptr) return;
    wandered = true;
    Open(kCallNav);
    EXPECT_EQ(Screen(), "Preflop Call");
    Fill(QStringLiteral("x"));
  });
  wander.start(0);
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectMessageBox(kSent);
  Send();
  EXPECT_EQ(Web.Asked, std::vector<std::string>{Request("%78%40%79", "%78")}) << "as the note reads by then";
}

TEST_F(FeedbackInWindow, TheAnswerIsTheMainWindowsWhateverIsInFrontByThen) {
  Fill(QStringLiteral("abc"));
  Web.Replies = {"sent"};
  Web.WhileAsked = [this] {
    Dialogs.ShowManager();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialogs.LoadedManager()));
  };
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectDialog([this](QDialog& answer) {
    EXPECT_EQ(answer.parentWidget(), &Form);
    answer.accept();
  });
  Send();
}

TEST_F(FeedbackInWindow, ASecondClickDuringTheWaitSendsTwice) {
  Fill(QStringLiteral("abc"));
  Web.Replies = {"", "sent"};
  bool clicked = false;
  QTimer again;
  QObject::connect(&again, &QTimer::timeout, &Form, [&] {
    if (clicked || QGuiApplication::overrideCursor() == nullptr) return;
    clicked = true;
    Send();
  });
  again.start(0);
  std::vector<bool> hourglass;
  Web.WhileAsked = [&] { hourglass.push_back(QGuiApplication::overrideCursor() != nullptr); };
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectInputBox(kAddressQuestion, "a@b");
  ExpectMessageBox(kNotSent);
  ExpectMessageBox(kSent);
  Send();
  EXPECT_EQ(Web.Asked,
            (std::vector<std::string>{Request("%61%40%62", "%61%62%63"), Request("%78%40%79", "%61%62%63")}));
  EXPECT_EQ(hourglass, (std::vector<bool>{true, false})) << "the end of the one takes it from the other";
}

}  // namespace
}  // namespace quillon
