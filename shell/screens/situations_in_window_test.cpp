#include <QContextMenuEvent>
#include <QListWidget>
#include <QPushButton>
#include <gmock/gmock.h>

#include "testing/heard_announcements.h"
#include "testing/main_stage.h"
#include "testing/opened_menu.h"

namespace quillon {
namespace {

using testing::Contains;
using testing::ElementsAre;

const InputQuestion kAskName = {"What do you want to call this situation?", "Save Situation", ""};

Message Told(const std::string& text) {
  return {"Quillon", text, MessageIcon::kInformation, MessageButtons::kOk};
}

class SituationsInWindow : public MainFormTest {
 protected:
  [[nodiscard]] std::filesystem::path FileOf(const std::string& name) const {
    return SituationFilePath(Program.Folder(), name);
  }
  void Put(const std::string& name, std::string_view line) const {
    std::filesystem::create_directory(SituationFolderPath(Program.Folder()));
    std::ofstream(FileOf(name), std::ios::binary) << line;
  }
  void SaveAs(const std::string& name, const std::string& proposed = "") {
    ExpectInputBox({kAskName.prompt, kAskName.title, proposed}, name);
    ExpectMessageBox(Told("The situation \"" + name + "\" was saved successfully!"));
    PressSave();
  }
  /// After the expected box, the window is in front again.
  void PressSave() { PressAndLook(Qt::Key_S); }
  void PressOpen() { PressAndLook(Qt::Key_O); }
  void PressAndLook(Qt::Key key) {
    Press(key, Qt::ControlModifier);
    VerifyExpectedBoxes();
    ComeToFront();
  }
  /// Opens the situation of that name in the list by keys.
  void OpenByKeys(const std::string& name) {
    ExpectDialog([name](QDialog& dialog) {
      QTest::keyClick(&ListOf(dialog), Qt::Key_Home);
      while (Current(dialog) != name && ListOf(dialog).currentRow() + 1 < ListOf(dialog).count())
        QTest::keyClick(&ListOf(dialog), Qt::Key_Down);
      EXPECT_EQ(Current(dialog), name);
      QTest::keyClick(&ListOf(dialog), Qt::Key_Return);
    });
    PressOpen();
  }

  [[nodiscard]] static QListWidget& ListOf(QDialog& dialog) { return *dialog.findChild<QListWidget*>(); }
  [[nodiscard]] static std::string Current(QDialog& dialog) {
    const QListWidgetItem* const item = ListOf(dialog).currentItem();
    return item == nullptr ? std::string() : FromQt(item->text());
  }
  [[nodiscard]] static std::vector<std::string> Names(QDialog& dialog) {
    std::vector<std::string> names;
    for (int row = 0; row < ListOf(dialog).count(); ++row)
      names.push_back(FromQt(ListOf(dialog).item(row)->text()));
    return names;
  }
  static void ClickButton(QDialog& dialog, const QString& text) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text().remove(QLatin1Char('&')) == text) return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << "there is no button " << FromQt(text);
  }
  [[nodiscard]] std::string Chosen(std::int16_t list) {
    return FromQt(Get<QComboBox>("cmboRanges", list).currentText());
  }
};

// ---- saving

TEST_F(SituationsInWindow, EachInputScreenIsSavedAndComesBack) {
  EnterCall("150", "$50", "Tight");
  ExpectInputBoxCancelled(kAskName);
  PressSave();
  EXPECT_FALSE(std::filesystem::exists(SituationFolderPath(Program.Folder())));
  SaveAs("Call");
  EnterRaise("1.5", "0.5", "9", "Everything", "Pairs");
  SaveAs("Raise", "Call");
  EnterEquity("Pairs");
  const HeardAnnouncements heard;
  SaveAs("Equity", "Raise");
  EXPECT_THAT(heard.Texts(), ElementsAre("The situation \"Equity\" was saved successfully!"));
  EXPECT_EQ(BytesOf(FileOf("Call")), "{\"mode\":\"call\",\"pot\":\"150\",\"call\":\"$50\",\"range\":\"Tight\"}\n");
  EXPECT_EQ(BytesOf(FileOf("Raise")),
            "{\"mode\":\"raise\",\"pot\":\"1.5\",\"call\":\"0.5\",\"shove\":\"9\",\"range\":\"Everything\",\"calling_"
            "range\":\"Pairs\"}\n");
  EXPECT_EQ(BytesOf(FileOf("Equity")), "{\"mode\":\"equity\",\"range\":\"Pairs\"}\n");

  EnterCall("1", "2", "");
  EnterRaise("3", "4", "5", "", "");
  EnterEquity("");
  OpenByKeys("Call");
  EXPECT_EQ(Screen(), "Preflop Call");
  EXPECT_EQ(BoxText(0), "150");
  EXPECT_EQ(BoxText(1), "$50");
  EXPECT_EQ(Chosen(0), "Tight");
  EXPECT_EQ(BoxText(2), "3") << "what is on other screens stays";
  OpenByKeys("Raise");
  EXPECT_EQ(Screen(), "Preflop Raise");
  EXPECT_EQ(BoxText(2), "1.5");
  EXPECT_EQ(BoxText(3), "0.5");
  EXPECT_EQ(BoxText(4), "9");
  EXPECT_EQ(Chosen(1), "Everything");
  EXPECT_EQ(Chosen(2), "Pairs");
  EXPECT_EQ(Caption("lblHisOdds"), "1.22 : 1");
  OpenByKeys("Equity");
  EXPECT_EQ(Screen(), "Equity Only");
  EXPECT_EQ(Chosen(3), "Pairs");
}

TEST_F(SituationsInWindow, ASumIsSavedAsItIsTyped) {
  EnterCall("150", "50", "Tight");
  Type(0, "=735+220-178");
  SaveAs("Sum");
  EXPECT_EQ(BoxText(0), "=735+220-178") << "the box is still being edited";
  EXPECT_THAT(BytesOf(FileOf("Sum")), testing::HasSubstr("\"pot\":\"=735+220-178\""));
  OpenByKeys("Sum");
  EXPECT_EQ(BoxText(0), "777");
}

TEST_F(SituationsInWindow, OtherScreensSayWhereToSave) {
  ExpectMessageBox(
      Told("Ctrl+S saves the situation on the screen where you enter it: Preflop Call, Preflop Raise or Equity Only."));
  PressSave();
}

// ---- opening

TEST_F(SituationsInWindow, ResultsOfAnotherSituationGo) {
  Put("Call", R"({"mode":"call","pot":3,"call":1,"range":"Tight"})");
  RunCall("150", "50", "Tight");
  ASSERT_TRUE(Shows("lblNav", 3));
  OpenByKeys("Call");
  EXPECT_EQ(Screen(), "Preflop Call");
  EXPECT_FALSE(Shows("lblNav", 3));
  EXPECT_TRUE(Shows("lblEditRange", 0)) << "the links of a list with a range";
  EXPECT_EQ(Form.focusWidget(), &Get("txtNumber", 0)) << "ready for typing";
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(Form.State().Amounts.PotSize, 3);
}

TEST_F(SituationsInWindow, ARangeThatCameToTheFolderSinceIsChosen) {
  Put("New", R"({"mode":"equity","range":"Since"})");
  Program.Write("Since.txt", TextWith("AA"));
  OpenByKeys("New");
  EXPECT_EQ(Chosen(3), "Since");
}

TEST_F(SituationsInWindow, ALineOfABatchIsTakenAsFarAsTheScreenGoes) {
  EnterRaise("3", "4", "5", "Tight", "Tight");
  Put("Sent", R"({"mode":"raise","pot":1.5,"shove":9,"hands":"any","calling_range":"Pairs"})");
  const HeardAnnouncements heard;
  ExpectDialog([](QDialog& dialog) { dialog.accept(); });
  ExpectMessageBox({"Quillon",
                    "The situation \"Sent\" is open. Some of the file cannot be used:\r\n"
                    "\r\n- \"call\" is missing"
                    "\r\n- \"hands\" is a notation, and the list takes only ranges with a name: any",
                    MessageIcon::kExclamation, MessageButtons::kOk});
  PressOpen();
  EXPECT_EQ(BoxText(2), "1.5");
  EXPECT_EQ(BoxText(3), "");
  EXPECT_EQ(BoxText(4), "9");
  EXPECT_EQ(Chosen(1), "");
  EXPECT_EQ(Chosen(2), "Pairs");
  EXPECT_THAT(heard.Texts(), Contains("The situation \"Sent\" is open."));
}

// The messages are tested without a window.
TEST_F(SituationsInWindow, AFileThatCannotBeReadOpensNothing) {
  Put("Bad", "AA (1), ");
  EnterCall("150", "50", "Tight");
  for (int boxes = 0; boxes < 2; ++boxes)
    ExpectDialog([](QDialog& dialog) { dialog.accept(); });
  PressOpen();
  EXPECT_EQ(Screen(), "Preflop Call");
  EXPECT_EQ(BoxText(0) + " " + BoxText(1) + " " + Chosen(0), "150 50 Tight");
}

TEST_F(SituationsInWindow, OddsThatCannotBeWorkedOutEndNothing) {
  Put("Odd", R"({"mode":"raise","pot":100,"call":0,"shove":"=-50","range":"Tight","calling_range":"Tight"})");
  OpenByKeys("Odd");
  EXPECT_EQ(BoxText(4), "-50");
  EXPECT_EQ(Caption("lblHisOdds"), "N/A");
}

TEST_F(SituationsInWindow, NoneIsOpenedDuringARun) {
  Put("Call", R"({"mode":"call","pot":3,"call":1,"range":"Tight"})");
  DuringRun("50%", [this] {
    ExpectMessageBox(Told(
        "An analysis is going on. Wait until it has ended, or stop it with \"< Back\", and open the situation then."));
    Press(Qt::Key_O, Qt::ControlModifier);
  });
  RunCall("150", "50", "Tight");
  VerifyExpectedBoxes();
  EXPECT_EQ(BoxText(0), "150");
  EXPECT_EQ(Screen(), "ALL IN Grid");
}

// ---- the menu

TEST_F(SituationsInWindow, AreSavedAndOpenedWithTheMouseAlone) {
  EnterEquity("Tight");
  const QPoint place(Form.width() - 20, Form.height() - 60);
  OpenMenu(Form, place);
  EXPECT_THAT(MenuEntries(Form), ElementsAre("Save situation...Ctrl+S", "Open situation...Ctrl+O", "", "StudyCtrl+T"));
  CloseMenu(Form);
  ExpectInputBox(kAskName, "By mouse");
  ExpectMessageBox(Told("The situation \"By mouse\" was saved successfully!"));
  ChooseInMenu(Form, place, "Save situation...");
  ComeToFront();
  Click("picLogo");
  OpenMenu(Form, place);
  EXPECT_THAT(MenuEntries(Form), Contains("Save situation...Ctrl+S (off)"));
  ExpectDialog([](QDialog& dialog) { ClickButton(dialog, QStringLiteral("Open")); });
  CloseMenu(Form);
  ChooseInMenu(Form, MiddleOf("imgBack"), "Open situation...");
  EXPECT_EQ(Screen(), "Equity Only");
}

TEST_F(SituationsInWindow, NoMenuComesWhileTheLeftButtonIsHeld) {
  const QPoint place(Form.width() - 20, Form.height() - 60);
  QTest::mousePress(Form.windowHandle(), Qt::LeftButton, {}, place);
  OpenMenu(Form, place);
  EXPECT_EQ(OpenedMenu(Form), nullptr);
  QTest::mouseRelease(Form.windowHandle(), Qt::LeftButton, {}, place);
  OpenMenu(Form, place);
  EXPECT_NE(OpenedMenu(Form), nullptr);
}

TEST_F(SituationsInWindow, TheMenuComesByTheKeyboardToo) {
  Open(kEquityNav);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {10, 10}, Form.mapToGlobal(QPoint(10, 10)));
  QCoreApplication::sendEvent(&Get("frameContent", kEquityScreen), &event);
  const QMenu* const menu = OpenedMenu(Form);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->activeAction(), menu->actions().constFirst()) << "Enter takes it";
}

// ---- the list

TEST_F(SituationsInWindow, WithoutAnyTheUserIsTold) {
  ExpectMessageBox(Told("There are no saved situations yet. Ctrl+S on an input screen saves one."));
  PressOpen();
}

TEST_F(SituationsInWindow, TheListIsReachedByTypingAndByTheMouse) {
  for (const char* name : {"Button 12", "Big blind", "Small blind"})
    Put(name, R"({"mode":"equity","range":"Tight"})");
  ExpectDialog([](QDialog& dialog) {
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Open Situation");
    EXPECT_THAT(Names(dialog), ElementsAre("Big blind", "Button 12", "Small blind"));
    EXPECT_EQ(Current(dialog), "Big blind");
    EXPECT_EQ(dialog.focusWidget(), &ListOf(dialog));
    QTest::keyClicks(&ListOf(dialog), QStringLiteral("sm"));
    EXPECT_EQ(Current(dialog), "Small blind");
    QTest::keyClick(&ListOf(dialog), Qt::Key_Escape);
  });
  PressOpen();
  EXPECT_EQ(Screen(), "About") << "Esc opens nothing";

  ExpectDialog([](QDialog& dialog) {
    QListWidget& list = ListOf(dialog);
    const QPoint middle = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Current(dialog), "Button 12");
  });
  PressOpen();
  EXPECT_EQ(Screen(), "Equity Only");

  ExpectDialog([](QDialog& dialog) {
    EXPECT_EQ(Current(dialog), "Button 12") << "the one that was opened last";
    ClickButton(dialog, QStringLiteral("Cancel"));
  });
  PressOpen();
}

TEST_F(SituationsInWindow, AreDeletedFromTheListAfterAQuestion) {
  for (const char* name : {"A", "B", "C"})
    Put(name, R"({"mode":"equity","range":"Tight"})");
  const auto ask = [](const std::string& name) {
    return Message{"Delete?", "Do you really want to delete \"" + name + "\"?", MessageIcon::kQuestion,
                   MessageButtons::kYesNoCancel};
  };
  const auto pressDelete = [](QDialog& dialog) {
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ListOf(dialog).hasFocus(); }));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Delete);
  };
  ExpectDialog([&](QDialog& dialog) {
    ExpectMessageBox(ask("A"), MessageAnswer::kNo);
    pressDelete(dialog);
    EXPECT_THAT(Names(dialog), ElementsAre("A", "B", "C"));
    ExpectMessageBox(ask("A"), MessageAnswer::kYes);
    pressDelete(dialog);
    EXPECT_THAT(Names(dialog), ElementsAre("B", "C"));
    EXPECT_EQ(Current(dialog), "B");
    QTest::keyClick(&ListOf(dialog), Qt::Key_End);
    ExpectMessageBox(ask("C"), MessageAnswer::kYes);
    ClickButton(dialog, QStringLiteral("Delete"));
    EXPECT_EQ(Current(dialog), "B") << "after the last one, the one before it";
    ExpectMessageBox(ask("B"), MessageAnswer::kYes);
    ClickButton(dialog, QStringLiteral("Delete"));
    EXPECT_FALSE(dialog.isVisible()) << "there is nothing left to open";
  });
  PressOpen();
  EXPECT_TRUE(std::filesystem::is_empty(SituationFolderPath(Program.Folder())));
}

}  // namespace
}  // namespace quillon
