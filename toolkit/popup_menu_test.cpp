#include "toolkit/popup_menu.h"

#include <QAction>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/bring_to_front.h"
#include "toolkit/form_keys.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

class PopUpMenuTest : public testing::Test {
 protected:
  PopUpMenuTest() {
    BindKey(form_, Qt::SHIFT | Qt::Key_F10, [this] { Open(); });
    BringToFront(form_);
  }

  void Open() {
    const auto does = [this](const char* what) { return [this, what] { done_ += what; }; };
    PopUpMenu(form_, {10, 10},
              {{.Text = QStringLiteral("Copy"), .Action = does("copied"), .Enabled = false},
               {.Text = QStringLiteral("Paste"), .Action = does("pasted"), .Key = Qt::CTRL | Qt::Key_V},
               {},
               {.Text = QStringLiteral("This & that"), .Action = does("this and that")}});
  }

  [[nodiscard]] QMenu* Menu() const { return form_.findChild<QMenu*>(); }

  QWidget form_;
  std::string done_;
};

TEST_F(PopUpMenuTest, HasItsEntriesWithTheirKeysAndALineBetweenGroups) {
  Open();
  std::vector<std::string> shown;
  for (const QAction* action : Menu()->actions())
    shown.push_back(FromQt(action->text() + action->shortcut().toString()) + (action->isSeparator() ? "---"
                                                                              : action->isEnabled() ? ""
                                                                                                    : " (off)"));
  EXPECT_EQ(shown, (std::vector<std::string>{"Copy (off)", "PasteCtrl+V", "---", "This && that"}));
  EXPECT_EQ(Menu()->activeAction(), nullptr) << "nothing is selected for the mouse";
}

TEST_F(PopUpMenuTest, MarksTheFirstEntryThatCanBeChosenWhereAKeyHasBroughtItUp) {
  QTest::keyClick(form_.windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_NE(Menu(), nullptr);
  QTest::keyClick(Menu(), Qt::Key_Return);
  EXPECT_EQ(done_, "pasted");
}

TEST_F(PopUpMenuTest, MarksNothingWhereNothingCanBeChosen) {
  BindKey(form_, Qt::Key_F2, [this] {
    PopUpMenu(form_, {10, 10}, {{.Text = QStringLiteral("Copy"), .Action = [] {}, .Enabled = false}});
  });
  QTest::keyClick(form_.windowHandle(), Qt::Key_F2);
  ASSERT_NE(Menu(), nullptr);
  EXPECT_EQ(Menu()->activeAction(), nullptr);
}

TEST_F(PopUpMenuTest, DoesOneEntryAndIsGone) {
  Open();
  QMenu& menu = *Menu();
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions().constLast()).center());
  EXPECT_EQ(done_, "this and that");
  QTest::qWait(0);
  EXPECT_EQ(Menu(), nullptr);
}

TEST_F(PopUpMenuTest, LeavesTheKeysThatItShowsToTheForm) {
  BindKey(form_, Qt::CTRL | Qt::Key_V, [this] { done_ += "pasted by the form"; });
  Open();
  QTest::keyClick(Menu(), Qt::Key_Escape);
  QTest::qWait(0);
  BringToFront(form_);
  QTest::keyClick(form_.windowHandle(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(done_, "pasted by the form");
}

TEST_F(PopUpMenuTest, DoesNothingWhereItIsLeft) {
  Open();
  QTest::keyClick(Menu(), Qt::Key_Escape);
  EXPECT_EQ(done_, "");
  QTest::qWait(0);
  EXPECT_EQ(Menu(), nullptr);
}

}  // namespace
}  // namespace quillon
