// The ways in which the program ends other than its close box, and what remains afterwards.

#include <QByteArray>
#include <QImage>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

#include "shell/settings_file.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

class EndJourney : public WindowJourney {
 protected:
  [[nodiscard]] std::string Stored(std::string_view key) const {
    return ReadIniValue("Values", key, Session().Program());
  }

  void Send(int signal) { ASSERT_EQ(kill(Session().Running().Id(), signal), 0); }

  /// A clipboard manager that is already running when this returns.
  [[nodiscard]] std::unique_ptr<RunningProgram> StartManager(const std::string& kind) const {
    auto manager = Session().StartBeside(QUILLON_CLIPBOARD_MANAGER_PROGRAM, {kind});
    Session().WaitUntil("there is a clipboard manager", [&] { return manager->Output() == "ready\n"; });
    return manager;
  }
};

// The other signals work likewise and are tested without a window.
TEST_F(EndJourney, SignalClosesTheWindowAsItsCloseBoxDoes) {
  StartProgram();
  Click("lblNav(0)");
  Fill(0, "735");
  Session().MoveWindow(Main(), {75, 120});
  Send(SIGTERM);
  EXPECT_EQ(Session().WaitForEnd(), 0);
  EXPECT_EQ(Stored("0"), "735");
  EXPECT_EQ(ReadIniValue("Main", "Left", Session().Program()), "1125");
}

TEST_F(EndJourney, SignalEndsTheProgramInFrontOfABoxAndDuringARun) {
  StartProgramWithRanges();
  Click("lblNav(0)");
  Fill(0, "=2*3");
  Session().Press({"Return"});
  static_cast<void>(Session().WaitForWindow("Problem"));
  Send(SIGTERM);
  EXPECT_EQ(Session().WaitForEnd(), 0);
  EXPECT_EQ(Stored("0"), "=2*3");

  StartProgram();
  FillIn(kEquityRun, {{}, {}, {}, "Button Shove", {}});
  AnalyzeAndHoldUp(kEquityRun);
  Send(SIGTERM);
  Session().Running().LetGoOn();
  EXPECT_EQ(Session().WaitForEnd(), 0);
}

TEST_F(EndJourney, CopiedTextIsHandedToTheClipboardManager) {
  const auto manager = StartManager("UTF8_STRING");
  StartProgram();
  Click("lblNav(0)");
  Fill(0, "735");
  EXPECT_EQ(BoxText(0), "735");  // through the clipboard
  EXPECT_EQ(CloseProgram(), 0);
  EXPECT_EQ(manager->Output(), "ready\n735");
}

TEST_F(EndJourney, CopiedPictureIsHandedToTheClipboardManager) {
  const auto manager = StartManager("image/png");
  StartProgramWithRanges();
  Analyze(kEquityRun, {{}, {}, {}, "Button Shove", {}});
  const QImage shown = Look("GridContainer");
  const QPoint cell = OnScreen("shapeCardBack(0)").center();
  const Window menu = Session().OpenedBy([&] { Session().RightClickAt(cell); });
  Session().Press({"Down", "Return"});
  Session().WaitUntilGone(menu);
  EXPECT_EQ(CloseProgram(), 0);
  const QByteArray taken = QByteArray::fromStdString(manager->Output().substr(std::string_view("ready\n").size()));
  EXPECT_EQ(QImage::fromData(taken).convertToFormat(shown.format()), shown);
}

TEST_F(EndJourney, ClipboardManagerThatDoesNotAnswerHoldsTheEndUpForASecond) {
  const auto manager = StartManager("silent");
  StartProgram();
  Click("lblNav(0)");
  Fill(0, "735");
  EXPECT_EQ(BoxText(0), "735");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(CloseProgram(), 0);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_GE(taken.count(), 0.9);
  EXPECT_LT(taken.count(), 4) << "Qt's own patience is five seconds";
  EXPECT_EQ(Stored("0"), "735");
}

}  // namespace
}  // namespace quillon
