#pragma once

// A user session: a screen of its own with a window manager, the program in a folder of its own, and a simulated user
// with mouse, keyboard, clipboard and eyes. The screen is a virtual one by Xvfb with nothing else on it; the window
// manager is openbox; xdotool moves the mouse and presses the keys.
//
// Lengths are the screen's own pixels, unless stated otherwise. There are no fixed delays: every wait is for a
// condition, and if that is not met within half a minute, or the program ends, std::runtime_error names it. Everything
// started ends with the session, even if the test is killed.
//
// The program is the one just built, or with QUILLON_WINDOWS_FOLDER in the environment the one for Windows in that
// folder, run by Wine ("tools/windows/check_window.sh").

#include <QFile>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ranges/range_files.h"
#include "testing/temporary_folder.h"
#include "tests/program_run.h"

namespace quillon {

/// The screen, the scale of its desktop, 2 for 200%, and whether there is an accessibility bus for a screen reader.
struct Desk {
  int Width = 1400;
  int Height = 1000;
  double Scale = 1;
  bool IsHeard = false;
};

/// A window of the program: its number in the window system, and the place of its inner area on the screen.
struct Window {
  std::string Id;
  QRect Place;
};

class WindowSession {
 public:
  explicit WindowSession(Desk desk = {});
  WindowSession(const WindowSession&) = delete;
  WindowSession(WindowSession&&) = delete;
  WindowSession& operator=(const WindowSession&) = delete;
  WindowSession& operator=(WindowSession&&) = delete;
  ~WindowSession();

  [[nodiscard]] const Desk& Screen() const { return desk_; }

  /// The session bus that leads to the accessibility bus; empty if there is none.
  [[nodiscard]] const std::string& BusAddress() const { return busAddress_; }

  // ---- the program and its folder

  /// The folder of the executable, with nothing else in it at first.
  [[nodiscard]] ProgramFolder Program() const { return {programFolder_}; }

  /// Puts the example ranges next to the executable.
  void AddExampleRanges() const;

  /// Starts the program. If started several times, the last one is watched.
  void Start(const std::vector<std::string>& arguments = {});

  /// Starts it from a folder of that name in the executable's own, with a copy of the executable. Returns the folder.
  std::filesystem::path StartFromAnother(const std::string& folderName);
  [[nodiscard]] RunningProgram& Running() const { return *programs_.back(); }

  /// Waits for the program to end and returns its exit status.
  [[nodiscard]] int WaitForEnd() const;

  /// Commands for the program, by name, and their recorded arguments. They only record the call; adding one again
  /// clears its record.
  void AddCommand(const std::string& name) const;
  [[nodiscard]] std::string CommandArguments(const std::string& name) const;

  /// Starts another program on the same screen, which ends with the returned object.
  [[nodiscard]] std::unique_ptr<RunningProgram> StartBeside(const std::string& program,
                                                            const std::vector<std::string>& arguments) const;

  // ---- windows

  /// The only visible window of the running program with this title; nothing if there is none.
  [[nodiscard]] std::optional<Window> FindWindow(std::string_view title) const;
  /// The window once it is visible and active.
  [[nodiscard]] Window WaitForWindow(std::string_view title) const;
  /// The outer corner of a window, including its frame.
  [[nodiscard]] QPoint CornerOf(const Window& window) const;
  /// The number of visible windows of the program, including open lists.
  [[nodiscard]] std::size_t WindowCount() const;
  void WaitUntilGone(const Window& window) const;
  /// The window that `open` opens: a menu, which has no title.
  [[nodiscard]] Window OpenedBy(const std::function<void()>& open) const;
  /// Places a small window of another program there, in front of all, leaving the keyboard with `keeper`. Returns its
  /// inner area.
  QRect LayNote(QPoint corner, const Window& keeper);
  /// Moves the outer corner of the window.
  void MoveWindow(const Window& window, QPoint corner) const;
  /// Whether a window at `place` is where it should be.
  [[nodiscard]] static bool IsAt(QPoint place, QPoint wanted);

  // ---- mouse, keyboard and clipboard

  /// Moves the mouse there.
  void MoveTo(QPoint point) const;
  void ClickAt(QPoint point) const { Click(point, "1"); }
  void RightClickAt(QPoint point) const { Click(point, "3"); }
  /// Presses the left button there and releases it here.
  void Drag(QPoint from, QPoint to) const;
  /// Presses keys one after the other, by their names in the window system: "ctrl+a", "Return".
  void Press(const std::vector<std::string>& keys) const;
  /// Holds a key down until it is released.
  void HoldKey(const std::string& key) const { Use({"keydown", key}); }
  void ReleaseKey(const std::string& key) const { Use({"keyup", key}); }
  void Type(std::string_view text) const;
  /// Moves the mouse out of the way.
  void PutMouseAside() const;
  /// All the text of the focused control, through the clipboard.
  [[nodiscard]] std::string CopyAllText() const;
  void PutOnClipboard(std::string_view text) const;
  /// What `copy` puts on the clipboard, as that data type.
  [[nodiscard]] std::string CopiedBy(const std::function<void()>& copy, const std::string& kind = kText) const;
  static constexpr const char* kText = "UTF8_STRING";

  // ---- the screen

  [[nodiscard]] QImage Picture() const;
  [[nodiscard]] QImage Picture(const QRect& area) const;
  [[nodiscard]] QRgb Color(QPoint point) const;
  /// A picture of the area once it has stopped changing.
  [[nodiscard]] QImage StillPicture(const QRect& area) const;

  /// Waits until `happened` returns true, calling it repeatedly; `what` names the condition.
  void WaitUntil(std::string_view what, const std::function<bool()>& happened) const;

 private:
  [[nodiscard]] ProgramRun Prepare(const std::string& program, const std::vector<std::string>& arguments) const;
  void StartIn(const std::filesystem::path& folder, const std::vector<std::string>& arguments);
  [[nodiscard]] std::string Ask(const std::string& program, const std::vector<std::string>& arguments) const;
  void Use(const std::vector<std::string>& actions) const;
  void Click(QPoint point, const std::string& button) const;
  [[nodiscard]] std::vector<std::string> FindIds() const;
  [[nodiscard]] std::string TitleOf(const std::string& id) const;
  [[nodiscard]] QRect PlaceOf(const std::string& id) const;
  void StartScreen();
  void StartWindowManager();
  void StartBuses();
  [[nodiscard]] QImage MappedPicture() const;

  Desk desk_;
  TemporaryFolder temporary_{"quillon-window"};
  std::filesystem::path home_ = temporary_.Path();
  std::filesystem::path programFolder_;
  std::string display_;
  std::string busAddress_;
  // Destroyed in reverse order: the screen goes last.
  std::unique_ptr<RunningProgram> screen_;
  std::unique_ptr<RunningProgram> windowManager_;
  std::unique_ptr<RunningProgram> sessionBus_;
  std::unique_ptr<RunningProgram> accessibilityBus_;
  std::vector<std::unique_ptr<RunningProgram>> programs_;
  std::unique_ptr<RunningProgram> note_;
  std::unique_ptr<QFile> frameBuffer_;
  const uchar* pixels_ = nullptr;
};

}  // namespace quillon
