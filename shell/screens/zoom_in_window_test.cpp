#include <QScreen>
#include <array>
#include <gtest/gtest.h>

#include "shell/window_zoom.h"
#include "testing/main_stage.h"
#include "toolkit/placement.h"

namespace quillon {
namespace {

constexpr TwipRect kDesign = {0, 0, 15300, 9045};

class ZoomInWindow : public testing::Test, public MainStage {
 protected:
  void TearDown() override {
    qunsetenv("QT_SCALE_FACTOR");
    ShowAtScale(1);
  }

  void ExpectZoom(int percent) {
    EXPECT_EQ(Form.Zoom().Percent(), percent);
    EXPECT_EQ(PixelScale(), percent / 100.0);
    EXPECT_EQ(Form.size(), PixelPlace(kDesign).size()) << percent;
  }
};

TEST_F(ZoomInWindow, IsChangedByKeysStepByStepAndKept) {
  struct Row {
    Qt::Key Key;
    int Percent;
  };
  constexpr std::array kRows = {
      Row{Qt::Key_Plus, 110},  Row{Qt::Key_Equal, 125}, Row{Qt::Key_Plus, 150}, Row{Qt::Key_Plus, 175},
      Row{Qt::Key_Plus, 200},  Row{Qt::Key_Plus, 250},  Row{Qt::Key_Plus, 300}, Row{Qt::Key_Plus, 300},
      Row{Qt::Key_Minus, 250}, Row{Qt::Key_0, 100},     Row{Qt::Key_Minus, 90}, Row{Qt::Key_Minus, 75},
      Row{Qt::Key_Minus, 75},  Row{Qt::Key_0, 100},
  };
  Start();
  ExpectZoom(100);
  EXPECT_EQ(Settings(), "") << "a zoom that nobody has chosen is not stored";
  for (const Row& row : kRows) {
    Press(row.Key, Qt::ControlModifier);
    ExpectZoom(row.Percent);
    EXPECT_EQ(StoredZoom(Program.Folder()), row.Percent);
    EXPECT_EQ(Get("txtNumber", 0).geometry(), PixelPlace({1440, 1980, 2535, 315})) << row.Percent;
  }
}

TEST_F(ZoomInWindow, TakesTheDialogsAlong) {
  Start();
  Click("lblRangeManager");
  ASSERT_TRUE(QTest::qWaitForWindowActive(Dialogs.LoadedManager()));
  QTest::keyClick(Dialogs.LoadedManager()->windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
  ExpectZoom(110);
  EXPECT_EQ(Dialogs.LoadedManager()->size(), PixelPlace({0, 0, 13665, 8880}).size());

  Dialogs.ShowNewRange();
  EXPECT_EQ(Dialogs.LoadedNewRange()->size(), PixelPlace({0, 0, 12195, 9105}).size()) << "a later one, too";

  Dialogs.LoadedManager()->hide();
  Dialogs.LoadedManager()->move(1000, 700);
  QTest::keyClick(Dialogs.LoadedNewRange()->windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
  ExpectZoom(125);
  const QRect room = Form.screen()->availableGeometry();
  EXPECT_TRUE(room.contains(Dialogs.LoadedManager()->frameGeometry())) << "and a hidden one";
}

TEST_F(ZoomInWindow, StartsWithOneThatFitsTheScreen) {
  struct Row {
    const char* DesktopScale;
    int Percent;
    double Pixels;
  };
  // 1400 by 1000 pixels, so 933 by 666 logical ones at 150%.
  constexpr std::array kRows = {Row{"1", 100, 1}, Row{"1.25", 100, 1.25}, Row{"1.5", 90, 1.35}, Row{"2", 75, 1.5}};
  for (const Row& row : kRows) {
    qputenv("QT_SCALE_FACTOR", row.DesktopScale);
    MainStage stage;
    stage.Start();
    EXPECT_EQ(stage.Form.Zoom().Percent(), row.Percent) << row.DesktopScale;
    EXPECT_EQ(PixelScale(), row.Pixels) << row.DesktopScale;
    EXPECT_GE(stage.Form.frameGeometry().top(), 0) << row.DesktopScale;
    EXPECT_EQ(stage.Settings(), "") << row.DesktopScale;
  }
}

TEST_F(ZoomInWindow, StartsWithTheTitleBarOnTheScreenWhereTheWindowIsLarger) {
  WriteSettings("[View]\r\nZoom=300\r\n");
  Start();
  ASSERT_GT(Form.width(), Form.screen()->availableGeometry().width());
  EXPECT_EQ(Form.frameGeometry().topLeft(), QPoint(0, 0));
  Dialogs.ShowManager();
  EXPECT_EQ(Dialogs.LoadedManager()->frameGeometry().topLeft(), QPoint(0, 0));
}

TEST_F(ZoomInWindow, BringsTheTitleBarOnToTheScreen) {
  Start();
  Form.move(300, 500);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Form.frameGeometry().bottom(), Form.screen()->availableGeometry().bottom())
      << "there is room for all of it";
  for (int i = 0; i < 10; ++i)
    Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Form.frameGeometry().topLeft(), QPoint(0, 0)) << "larger than the screen, it begins at the corner";
}

TEST_F(ZoomInWindow, LeavesARestoredPlaceAlone) {
  WriteSettings("[Main]\r\nLeft=15000\r\nTop=12000\r\n[View]\r\nZoom=200\r\n");
  Start();
  EXPECT_EQ(Form.pos(), QPoint(1000, 800));
  Form.close();
  EXPECT_NE(Settings().find("Left=15000\r\nTop=12000"), std::string::npos) << "twips of the screen, not of the form";
}

TEST_F(ZoomInWindow, KeepsWhatIsOnTheScreen) {
  Start();
  RunRaise("150", "50", "400", "Tight", "Pairs");
  const std::string explanation = Caption("lblResults");
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Minus}) {
    Press(key, Qt::ControlModifier);
    EXPECT_EQ(Screen(), "ALL IN Grid");
    EXPECT_EQ(Caption("lblResults"), explanation);
    EXPECT_EQ(Get("frameContent", kGridScreen).geometry(), PixelPlace({3300, 0, 12000, 8645}));
    EXPECT_EQ(Get("shapeBack").geometry(), PixelPlace({-10, 4120, 3330, 475}));
    EXPECT_EQ(Get("lblCards", 168).isVisible(), true);
    MoveOver("lblCards", 20);
    EXPECT_TRUE(Shows("frameHover"));
    EXPECT_EQ(Get("frameHover").size().width(), PixelPlace(PlaceOf(Get("frameHover"))).width());
  }
}

}  // namespace
}  // namespace quillon
