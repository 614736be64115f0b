#pragma once

// The main window with its dialogs on a program folder of its own, with real boxes ("testing/expected_boxes.h") and
// real mouse and keyboard events, and without web access except what a test provides.

#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "hand/hand_classes.h"
#include "shell/screens/main_form.h"
#include "shell/settings_file.h"
#include "shell/start_up.h"
#include "shell/user_guide.h"
#include "testing/bring_to_front.h"
#include "testing/dialog_stage.h"
#include "testing/expected_boxes.h"
#include "testing/fault_of.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {

/// The screens, frameContent, by index.
inline constexpr std::int16_t kCallScreen = 0;
inline constexpr std::int16_t kDetailsScreen = 2;
inline constexpr std::int16_t kProgressScreenIndex = 3;
inline constexpr std::int16_t kRaiseScreen = 4;
inline constexpr std::int16_t kAboutScreenIndex = 5;
inline constexpr std::int16_t kEquityScreen = 6;

/// The links of the input screens, lblNav, by index.
inline constexpr std::int16_t kCallNav = 0;
inline constexpr std::int16_t kRaiseNav = 1;
inline constexpr std::int16_t kEquityNav = 2;

/// A web client that returns a given answer, or asks another client, and records each address.
class RecordedWeb {
 public:
  std::string operator()(std::string_view address) {
    Asked.emplace_back(address);
    if (WhileAsked) WhileAsked();
    if (Behind) return Behind(address);
    if (Replies.empty()) return {};
    std::string reply = Replies.front();
    Replies.pop_front();
    return reply;
  }

  std::vector<std::string> Asked;
  std::deque<std::string> Replies;  // to the next requests, in order; further ones fail
  WebClient Behind;  // if set, answers instead of the replies
  std::function<void()> WhileAsked;  // called during a request
};

/// The ranges are "Everything", with each hand in full, "Nothing", with none, "Pairs", with AA and KK in full and QQ at
/// half, and "Tight", with AA, KK, AKs and AKo. The window is not started yet, so that a test can change the folder
/// first.
class MainStage {
 public:
  using ControlName = MainControls::Key<>;
  using LabelKey = MainControls::Key<Label>;

  explicit MainStage(NumberMarks marks = {})
      : Form({.Folder = Program.Folder(),
              .UserGuide = UserGuidePath(Program.Folder().Path),
              .Messages = Boxes,
              .Ask = AskForLine,
              .Web = std::ref(Web),
              .Shift = Shift,
              .EndProcess = [this] { End(); },
              .Marks = std::move(marks),
              .Clock = [this] { return Now += 700; }}) {
    Program.Write("Everything.txt", EveryHandAt(1));
    Program.Write("Nothing.txt", TextWith(""));
    Program.Write("Pairs.txt", TextWith("AA KK", "QQ"));
    Program.Write("Tight.txt", TextWith("AA KK AKs AKo"));
  }

  void Start() {
    Form.Start();
    ComeToFront();
    // A move to where an earlier test left the mouse would be no event.
    MoveTo({5, Form.height() - 5});
  }

  /// As when the user returns from another window.
  void ComeToFront() { BringToFront(Form); }

  template <typename Kind = QWidget>
  [[nodiscard]] Kind& Get(MainControls::Key<std::type_identity_t<Kind>> name, std::int16_t index = kNoIndex) {
    return Form.Controls().Get<Kind>(name, index);
  }
  [[nodiscard]] Label& LabelAt(LabelKey name, std::int16_t index = kNoIndex) { return Get<Label>(name, index); }
  [[nodiscard]] std::string Caption(LabelKey name, std::int16_t index = kNoIndex) {
    return LinesFromQt(LabelAt(name, index).Text());
  }
  [[nodiscard]] std::string BoxText(std::int16_t index) { return FromQt(Get<QLineEdit>("txtNumber", index).text()); }
  [[nodiscard]] bool Shows(ControlName name, std::int16_t index = kNoIndex) { return Get(name, index).isVisible(); }

  /// The caption of the visible screen; fails the test unless there is exactly one.
  [[nodiscard]] std::string Screen() {
    std::string shown;
    for (std::int16_t i = 0; i < Form.Controls().CountOf("frameContent"); ++i) {
      if (Shows("frameContent", i)) shown += FromQt(Get<Frame>("frameContent", i).accessibleName()) + ";";
    }
    EXPECT_FALSE(shown.empty()) << "no screen is visible";
    return shown.substr(0, shown.empty() ? 0 : shown.size() - 1);
  }

  /// Mouse events, sent to the window, so that whatever is in front gets them.
  void ClickAt(const QPoint& point) { QTest::mouseClick(Form.windowHandle(), Qt::LeftButton, {}, point); }
  void MoveTo(const QPoint& point) { QTest::mouseMove(Form.windowHandle(), point); }
  [[nodiscard]] QPoint MiddleOf(ControlName name, std::int16_t index = kNoIndex) {
    QWidget& control = Get(name, index);
    EXPECT_TRUE(control.isVisible()) << name.Name() << "(" << index << ") cannot be reached";
    return control.mapTo(&Form, control.rect().center());
  }
  void Click(ControlName name, std::int16_t index = kNoIndex) { ClickAt(MiddleOf(name, index)); }
  void MoveOver(ControlName name, std::int16_t index = kNoIndex) { MoveTo(MiddleOf(name, index)); }
  void Open(std::int16_t nav) { Click("lblNav", nav); }

  /// Key events go to the focused control, as from the keyboard.
  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(Form.windowHandle(), key, held); }
  void TypeKeys(std::string_view text) {
    for (const char key : text)
      QTest::keyClick(Form.windowHandle(), key);
  }

  /// Clicks into an amount box and replaces its text, by keys. The box keeps the focus.
  void Type(std::int16_t box, std::string_view text) {
    Click("txtNumber", box);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    TypeKeys(text);
  }

  /// Selects an entry of a range list with the keyboard; an empty name selects the empty entry.
  void Choose(std::int16_t chooser, std::string_view name) {
    auto& box = Get<QComboBox>("cmboRanges", chooser);
    const int wanted = box.findText(ToQt(name));
    ASSERT_GE(wanted, 0) << name << " is not in the list";
    box.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&box, Qt::Key_Home);
    for (int i = 0; i < wanted; ++i)
      QTest::keyClick(&box, Qt::Key_Down);
    ASSERT_EQ(FromQt(box.currentText()), name);
  }

  /// Fills in an input screen and leaves it open.
  void EnterCall(std::string_view pot, std::string_view call, std::string_view range) {
    Open(kCallNav);
    Type(0, pot);
    Type(1, call);
    Choose(0, range);
  }
  void EnterRaise(std::string_view pot, std::string_view call, std::string_view shove, std::string_view range,
                  std::string_view callingRange) {
    Open(kRaiseNav);
    Type(2, pot);
    Type(3, call);
    Type(4, shove);
    Choose(1, range);
    Choose(2, callingRange);
  }
  void EnterEquity(std::string_view range) {
    Open(kEquityNav);
    Choose(3, range);
  }

  /// A whole run.
  void RunCall(std::string_view pot, std::string_view call, std::string_view range) {
    EnterCall(pot, call, range);
    Click("cmdPreflopEV", 0);
  }
  void RunRaise(std::string_view pot, std::string_view call, std::string_view shove, std::string_view range,
                std::string_view callingRange) {
    EnterRaise(pot, call, shove, range, callingRange);
    Click("cmdPreflopEV", 1);
  }
  void RunEquity(std::string_view range) {
    EnterEquity(range);
    Click("cmdPreflopEV", 2);
  }

  /// Calls `act` once, as soon as `ready` is true while the program runs or waits. Fails the test if that never
  /// happens.
  void Once(std::function<bool()> ready, std::function<void()> act) {
    ++ActsToCome;
    auto* timer = new QTimer(&Form);
    QObject::connect(timer, &QTimer::timeout, &Form,
                     [this, timer, isReady = std::move(ready), action = std::move(act)] {
                       if (!isReady()) return;
                       timer->stop();
                       --ActsToCome;
                       action();
                     });
    timer->start(0);
  }
  /// The same between two classes of a run, at this percentage.
  void DuringRun(std::string_view percent, std::function<void()> act) {
    Once([this, wanted = std::string(percent)] { return Form.State().Running && Caption("lblProgressPerc") == wanted; },
         std::move(act));
  }
  /// The same under the hourglass, before a note is sent.
  void DuringWait(std::function<void()> act) {
    Once([] { return QGuiApplication::overrideCursor() != nullptr; }, std::move(act));
  }

  /// The grid screen, showing a made-up analysis.
  void ShowGridOf(const Analysis& state) {
    RunEquity("Tight");
    static_cast<Analysis&>(Form.State()) = state;
  }

  /// Expects the dialog for a file name, and types one.
  static void ExpectFileName(const std::string& typed) {
    ExpectDialog([typed](QDialog& dialog) {
      NameLineOf(dialog).setText(ToQt(typed));
      dialog.accept();
    });
  }
  [[nodiscard]] static QLineEdit& NameLineOf(QDialog& dialog) {
    return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  }
  [[nodiscard]] std::filesystem::path SavedGrids() const { return SavedGridsFolderPath(Program.Folder()); }

  [[nodiscard]] std::string Settings() const { return BytesOf(SettingsFilePath(Program.Folder())); }
  void WriteSettings(std::string_view text) const { Put(SettingsFilePath(Program.Folder()), text); }

  TemporaryProgram Program;
  bool ShiftHeld = false;
  int Ends = 0;
  int ActsToCome = 0;
  std::function<void()> AtEnd;  // besides counting
  std::int32_t Now = 0;  // the clock: advances by 700 milliseconds whenever the window reads it
  MessageDialogs Boxes;
  RecordedWeb Web;
  ShiftWatch Shift{[this] { return ShiftHeld; }};
  MainForm Form;
  RangeDialogs& Dialogs = Form.Dialogs();

 private:
  void End() {
    ++Ends;
    if (AtEnd) AtEnd();
  }
};

/// A test of a window that has been started.
class MainFormTest : public testing::Test, public MainStage {
 protected:
  void SetUp() override { Start(); }
  void TearDown() override { EXPECT_EQ(ActsToCome, 0) << "an action planned for a run was not done"; }
};

/// Names each test of a table after its row.
template <typename Case>
std::string CaseName(const testing::TestParamInfo<Case>& info) {
  return std::string(info.param.Name);
}

/// A colour as "#rrggbb".
inline std::string ColorName(const QColor& color) {
  return FromQt(color.name());
}

}  // namespace quillon
