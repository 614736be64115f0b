#include <QGuiApplication>
#include <QIcon>
#include <QMessageBox>
#include <QScreen>
#include <initializer_list>

#include "testing/main_stage.h"

namespace quillon {
namespace {

// In twips, then to the nearest pixel.
QPoint Centred(const QWidget& form) {
  const QSize room = QGuiApplication::primaryScreen()->size() - form.size();
  const auto half = [](int pixels) { return PixelEdge(static_cast<float>(pixels) * kTwipsPerPixel / 2); };
  return {half(room.width()), half(room.height())};
}

class StartInWindow : public testing::Test, public MainStage {};

TEST_F(StartInWindow, MakesBothFoldersInAnEmptyOne) {
  std::filesystem::remove_all(Program.Folder().Path / "Ranges");

  Start();

  EXPECT_TRUE(std::filesystem::is_directory(Program.Folder().Path / "Ranges"));
  EXPECT_TRUE(std::filesystem::is_directory(Program.Folder().Path / "Saved Grids"));
  EXPECT_TRUE(std::filesystem::is_empty(Program.Folder().Path / "Ranges"));
  EXPECT_FALSE(std::filesystem::exists(Program.Folder().Path / "settings.ini")) << "created by the first write";
  for (std::int16_t i = 0; i < kChooserCount; ++i) {
    EXPECT_EQ(Get<QComboBox>("cmboRanges", i).count(), 1);
    EXPECT_EQ(Get<QComboBox>("cmboRanges", i).currentText(), QString());
  }
}

TEST_F(StartInWindow, ShowsTheAboutScreenWithNoLinkSelected) {
  Start();

  EXPECT_TRUE(Form.isVisible());
  EXPECT_EQ(FromQt(Form.windowTitle()), "Quillon 0.9");
  EXPECT_EQ(Form.size(), QSize(1020, 603));
  EXPECT_EQ(Form.minimumSize(), Form.maximumSize());
  EXPECT_EQ(Form.pos(), Centred(Form));
  EXPECT_EQ(Screen(), "About");
  EXPECT_TRUE(Shows("frameAboutContent"));
  EXPECT_EQ(Get("frameAboutContent").geometry(), PixelPlace({0, 300, 12000, 8645}));
  EXPECT_EQ(Caption("lblNumRanges"), "0") << "the lists are filled later";
  for (std::int16_t i = 0; i < 5; ++i) {
    EXPECT_EQ(BoxText(i), "");
    EXPECT_FALSE(LabelAt("lblNav", i).HasUnderline());
  }
  EXPECT_TRUE(Shows("lblNav", kCallNav));
  EXPECT_FALSE(Shows("lblNav", kGridNav));
  EXPECT_FALSE(Shows("lblNav", kDetailsNav));
  EXPECT_TRUE(Shows("lblNoResults"));
  EXPECT_EQ(Caption("lblNoResults"), "There are no results to display at this time.");
  EXPECT_FALSE(Form.rect().intersects(Get("shapeBack").geometry())) << "the selection bar waits out of sight";
}

TEST_F(StartInWindow, ShowsTheWindowBeforeItLooksForUpgrades) {
  WriteSettings("[Upgrade]\r\nAuto=1\r\n");
  Web.WhileAsked = [this] {
    EXPECT_TRUE(Form.isVisible());
    EXPECT_EQ(Screen(), "About");
    EXPECT_EQ(Caption("lblCurrentVersion"), "Checking website...");
  };
  Start();
  EXPECT_EQ(Web.Asked.size(), 2U);
}

TEST_F(StartInWindow, HasTheProgramsIconOnEveryWindow) {
  Start();
  const QImage icon = QIcon(QStringLiteral(":/artwork/icon.svg")).pixmap(64).toImage();
  ASSERT_FALSE(icon.isNull());
  Dialogs.ShowManager();
  Dialogs.ShowNewRange();
  const QMessageBox box(&Form);
  for (const QWidget* window :
       std::initializer_list<const QWidget*>{&Form, Dialogs.LoadedManager(), Dialogs.LoadedNewRange(), &box})
    EXPECT_EQ(window->windowIcon().pixmap(64).toImage(), icon) << qPrintable(window->windowTitle());
}

TEST_F(StartInWindow, ComesUpInTheStoredPlace) {
  WriteSettings("[main]\r\n left = 300\r\nTOP=150");
  Start();
  EXPECT_EQ(Form.pos(), QPoint(20, 10));
}

TEST_F(StartInWindow, RestoresTheBoxTextsAsTheyStood) {
  WriteSettings("[Values]\r\n0=abc\r\n1==735+220-178\r\n2=100\r\n4=50\r\n");
  Start();
  EXPECT_EQ(BoxText(0), "abc");
  EXPECT_EQ(BoxText(1), "=735+220-178") << "unevaluated";
  EXPECT_EQ(BoxText(2), "100");
  EXPECT_EQ(BoxText(3), "");
  EXPECT_EQ(BoxText(4), "50");
  EXPECT_EQ(Caption("lblHisOdds"), "3 : 1") << "restoring a text is a change like any other";
  EXPECT_EQ(Caption("lblHisBEP"), "25%");
}

TEST_F(StartInWindow, ClosingStoresPlaceAndAllBoxes) {
  Start();
  Form.move(30, 40);
  Open(kRaiseNav);
  Type(2, "=1+2");

  EXPECT_TRUE(Form.close());

  EXPECT_EQ(Ends, 1);
  EXPECT_FALSE(Form.isVisible());
  EXPECT_EQ(Settings(), "[Main]\r\nLeft=450\r\nTop=600\r\n[Values]\r\n0=\r\n1=\r\n2==1+2\r\n3=\r\n4=\r\n");
}

TEST_F(StartInWindow, ClosingAsksNoOtherWindow) {
  Start();
  Click("lblRangeManager");
  ClickCell(Dialogs.LoadedManager()->Controls(), "72o");  // an unsaved change
  Open(kCallNav);
  Click("lblNewRange", 0);

  EXPECT_TRUE(Form.close());

  EXPECT_EQ(Ends, 1);
  EXPECT_EQ(Settings().find("[Manager]"), std::string::npos);
  EXPECT_EQ(Settings().find("[New]"), std::string::npos);
}

TEST_F(StartInWindow, ClosingDuringARunEndsTheProgram) {
  Start();
  EnterEquity("Tight");
  DuringRun("10%", [this] { Form.close(); });
  Click("cmdPreflopEV", 2);
  EXPECT_EQ(ActsToCome, 0);
  EXPECT_EQ(Ends, 1);
}

}  // namespace
}  // namespace quillon
