#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <chrono>
#include <thread>

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

TEST_F(UpgradeInWindow, AStartAsksTwiceOnlyWhereTheSettingIsOn) {
  struct Row {
    std::string_view Settings;
    std::size_t Asked;
    Qt::CheckState State;
    std::string_view Latest;
    std::string_view Link;
  };
  for (const Row& row :
       {Row{"", 0, Qt::Unchecked, "N/A", ""}, Row{"[Upgrade]\r\nAuto=1\r\n", 2, Qt::Checked, "1", kDownload},
        Row{"[Upgrade]\r\nAuto=2\r\n", 0, Qt::PartiallyChecked, "N/A", ""}}) {
    SCOPED_TRACE(row.Settings);
    if (!row.Settings.empty()) WriteSettings(row.Settings);
    Web.Replies = {"0.8", "1.0 final"};
    Web.Asked.clear();
    Start();
    EXPECT_EQ(Web.Asked, std::vector<std::string>(row.Asked, VersionFileAddress()));
    ExpectOutcome(row.Latest, row.Link);
    EXPECT_EQ(BoxState(), row.State);
    EXPECT_EQ(Settings(), row.Settings);
  }
  for (const Qt::CheckState next : {Qt::Unchecked, Qt::Checked}) {
    Click("chkUpgrade");
    EXPECT_EQ(BoxState(), next) << "a click never leads to grey";
  }
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
    EXPECT_EQ(Web.Asked.size(), 1U) << "unchecking asks nobody";
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

const InputQuestion kAddressQuestion = {"What is your email address?", "Quillon", ""};
const Message kSent = {.title = "Quillon", .text = "Your message has been sent."};
const Message kNotSent = {
    .title = "Error", .text = "There was a problem sending your message.", .icon = MessageIcon::kStop};

// "nobody@q.test", encoded.
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

TEST(SystemMilliseconds, AreThoseThatPass) {
  const std::int32_t start = SystemMilliseconds();
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  EXPECT_GE(SystemMilliseconds() - start, 20);
  EXPECT_LT(SystemMilliseconds() - start, 10'000);
}

// Pasted characters keep their codes, and all line ends become CR LF.
TEST_F(FeedbackInWindow, ANoteGoesOutCharacterByCharacter) {
  for (const auto& [note, encoded] :
       std::vector<std::pair<const char*, std::string>>{{"a\r\n¡b\n", "%61%0D%0A%A1%62%0D%0A"},
                                                        {"a\tb\f\x01z\u00A0b\u2028b", "%61%9%62%C%1%7A%A0%62%0D%0A%62"},
                                                        {"“5 €” Ω漢\U0001F0A1b", "%93%35%20%80%94%20%3F%3F%3F%62"}}) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(note));
    Click("txtFeedback");
    Press(Qt::Key_V, Qt::ControlModifier);
    Web.Replies = {"sent"};
    ExpectInputBox(kAddressQuestion, "ü@x&y");
    ExpectMessageBox(kSent);
    Send();
    VerifyExpectedBoxes();
    ComeToFront();
    EXPECT_EQ(Web.Asked.back(), Request("%FC%40%78%26%79", encoded));
  }
}

TEST_F(FeedbackInWindow, AFailureKeepsTheText) {
  Fill(QStringLiteral("abc"));
  Web.Replies = {"error"};
  ExpectInputBoxCancelled(kAddressQuestion);
  ExpectMessageBox(kNotSent);
  Send();
  EXPECT_EQ(Web.Asked, std::vector<std::string>{Request(kAnonymousCode, "%61%62%63")}) << "without a sender";
  EXPECT_EQ(Note().toPlainText(), QStringLiteral("abc"));
}

TEST_F(FeedbackInWindow, AComplaintKeepsTheNote) {
  Fill(QString(1001, QLatin1Char('a')));
  Get("cmdSendFeedback").setFocus(Qt::TabFocusReason);
  ExpectMessageBox({.title = "Quillon",
                    .text = "Too much feedback. Please consider sending an email.",
                    .icon = MessageIcon::kExclamation});
  Press(Qt::Key_Return);
  EXPECT_TRUE(Web.Asked.empty());
  EXPECT_EQ(Note().toPlainText().size(), 1001);
}

TEST_F(FeedbackInWindow, TheWindowIsLiveDuringTheWait) {
  Fill(QStringLiteral("abc"));
  Web.Replies = {"sent"};
  DuringWait([this] {
    Open(kCallNav);
    EXPECT_EQ(Screen(), "Preflop Call");
    Fill(QStringLiteral("x"));
  });
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectMessageBox(kSent);
  Send();
  EXPECT_EQ(Web.Asked, std::vector<std::string>{Request("%78%40%79", "%78")}) << "as the note then reads";
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
  DuringWait([this] { Send(); });
  std::vector<bool> hourglass;
  Web.WhileAsked = [&] { hourglass.push_back(QGuiApplication::overrideCursor() != nullptr); };
  ExpectInputBox(kAddressQuestion, "x@y");
  ExpectInputBox(kAddressQuestion, "a@b");
  ExpectMessageBox(kNotSent);
  ExpectMessageBox(kSent);
  Send();
  EXPECT_EQ(Web.Asked,
            (std::vector<std::string>{Request("%61%40%62", "%61%62%63"), Request("%78%40%79", "%61%62%63")}));
  EXPECT_EQ(hourglass, (std::vector<bool>{true, false})) << "the end of one removes the other's too";
}

}  // namespace
}  // namespace quillon
