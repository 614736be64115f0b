#include "tests/window_session.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <thread>

#include "support/files.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr auto kLimit = std::chrono::seconds(60);
constexpr auto kBetweenQuestions = milliseconds(10);
constexpr auto kStill = milliseconds(150);
// Other programs' copies reach it after a delay, and would replace what its program has copied meanwhile.
constexpr auto kWineLooksAtTheClipboard = milliseconds(1000);

// The file in which Xvfb keeps screen 0, in xwd format: a header of big-endian numbers, the table of colours, and the
// pixels, line by line.
constexpr const char* kFrameBufferName = "Xvfb_screen0";
constexpr std::size_t kHeaderSizeField = 0;
constexpr std::size_t kWidthField = 4;
constexpr std::size_t kHeightField = 5;
constexpr std::size_t kLineSizeField = 12;
constexpr std::size_t kColorCountField = 19;
constexpr std::uint32_t kColorSize = 12;

// The window manager's fonts, the same on every machine; the program brings its own.
constexpr std::string_view kFonts = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <alias><family>Sans Serif</family><prefer><family>DejaVu Sans</family></prefer></alias>
  <alias><family>sans-serif</family><prefer><family>DejaVu Sans</family></prefer></alias>
  <alias><family>monospace</family><prefer><family>DejaVu Sans Mono</family></prefer></alias>
  <match target="font">
    <edit name="antialias" mode="assign"><bool>true</bool></edit>
    <edit name="hinting" mode="assign"><bool>true</bool></edit>
    <edit name="hintstyle" mode="assign"><const>hintslight</const></edit>
    <edit name="rgba" mode="assign"><const>none</const></edit>
  </match>
</fontconfig>
)";

std::uint32_t Field(const uchar* header, std::size_t field) {
  std::uint32_t value = 0;
  for (std::size_t byte = 0; byte < 4; ++byte)
    value = value << 8U | header[field * 4 + byte];
  return value;
}

int IntField(const uchar* header, std::size_t field) {
  return static_cast<int>(Field(header, field));
}

// For variables that are the user's own and not the test's.
void PassOn(std::vector<std::string>& environment, const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): there is one thread
  if (value != nullptr) environment.push_back(std::string(name) + "=" + value);
}

// The folder with the program for Windows, if set.
std::optional<fs::path> WindowsFolder() {
  const char* const folder =
      std::getenv("QUILLON_WINDOWS_FOLDER");  // NOLINT(concurrency-mt-unsafe): there is one thread
  return folder == nullptr ? std::nullopt : std::optional<fs::path>(folder);
}

// Puts the program into the folder, with everything that it needs and nothing else.
void PutProgram(const fs::path& folder) {
  if (!WindowsFolder()) {
    fs::copy_file(QUILLON_PROGRAM, folder / "quillon");
    return;
  }
  for (const fs::directory_entry& entry : fs::directory_iterator(*WindowsFolder())) {
    const std::string end = entry.path().extension().string();
    if (end == ".exe" || end == ".dll") fs::copy_file(entry.path(), folder / entry.path().filename());
  }
  fs::copy(*WindowsFolder() / "platforms", folder / "platforms");
  fs::copy(*WindowsFolder() / "Guide", folder / "Guide");
  fs::copy_file(*WindowsFolder() / "qt.conf", folder / "qt.conf");
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

// The number after `title` in a listing.
int NumberBehind(const std::string& listing, std::string_view title) {
  const std::size_t at = listing.find(title);
  if (at == std::string::npos) return 0;
  return std::atoi(listing.c_str() + at + title.size());  // NOLINT(cert-err34-c): a tool's own output
}

QPoint UpperLeft(const std::string& listing, const std::string& measured) {
  return {NumberBehind(listing, measured + " upper-left X:"), NumberBehind(listing, measured + " upper-left Y:")};
}

// Wine reports a mouse that enters from outside, but not its position until it moves on.
std::vector<std::string> To(QPoint point) {
  const std::string y = std::to_string(point.y());
  std::vector<std::string> actions = {"mousemove", std::to_string(point.x()), y};
  if (WindowsFolder()) actions.insert(actions.begin(), {"mousemove", std::to_string(point.x() - 1), y, "sleep", "0.2"});
  return actions;
}

}  // namespace

WindowSession::WindowSession(Desk desk) : desk_(desk), programFolder_(home_ / "My Quillon ½ Ä 東京") {
  fs::create_directory(programFolder_);
  fs::create_directory(home_ / "bin");
  std::ofstream(home_ / "fonts.conf") << kFonts;
  PutProgram(programFolder_);
  StartScreen();
  StartWindowManager();
  if (desk_.IsHeard) StartBuses();
}

WindowSession::~WindowSession() {
  // Its helpers stay for a while, and would be useless on the next screen.
  if (WindowsFolder()) static_cast<void>(Ask("wineserver", {"--kill"}));
  if (!accessibilityBus_) return;
  // If killed, the launcher would leave its bus running.
  kill(accessibilityBus_->Id(), SIGTERM);
  const auto limit = steady_clock::now() + kLimit;
  while (!accessibilityBus_->Status() && steady_clock::now() < limit)
    std::this_thread::sleep_for(kBetweenQuestions);
}

// ---- the program and its folder

void WindowSession::AddExampleRanges() const {
  fs::copy(QUILLON_EXAMPLES_FOLDER "/Ranges", programFolder_ / "Ranges");
}

void WindowSession::Start(const std::vector<std::string>& arguments) {
  StartIn(programFolder_, arguments);
}

void WindowSession::StartIn(const fs::path& folder, const std::vector<std::string>& arguments) {
  const bool byWine = WindowsFolder().has_value();
  ProgramRun run =
      byWine ? Prepare("wine", {(folder / "quillon.exe").string()}) : Prepare((folder / "quillon").string(), {});
  run.Arguments.insert(run.Arguments.end(), arguments.begin(), arguments.end());
  programs_.push_back(std::make_unique<RunningProgram>(run));
}

std::unique_ptr<RunningProgram> WindowSession::StartBeside(const std::string& program,
                                                           const std::vector<std::string>& arguments) const {
  return std::make_unique<RunningProgram>(Prepare(program, arguments));
}

fs::path WindowSession::StartFromAnother(const std::string& folderName) {
  fs::path folder = programFolder_ / folderName;
  fs::create_directory(folder);
  PutProgram(folder);
  StartIn(folder, {});
  return folder;
}

int WindowSession::WaitForEnd() const {
  std::optional<int> status;
  const auto limit = steady_clock::now() + kLimit;
  while (!(status = Running().Status()) && steady_clock::now() < limit)
    std::this_thread::sleep_for(kBetweenQuestions);
  if (!status) throw std::runtime_error("the program does not end");
  return *status;
}

void WindowSession::AddCommand(const std::string& name) const {
  const fs::path command = home_ / "bin" / name;
  std::ofstream(command) << "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$0.new\" && mv \"$0.new\" \"$0.arguments\"\n";
  fs::permissions(command, fs::perms::owner_all);
  fs::remove(command.string() + ".arguments");
}

std::string WindowSession::CommandArguments(const std::string& name) const {
  const fs::path arguments = home_ / "bin" / (name + ".arguments");
  WaitUntil(name + " was called", [&] { return fs::exists(arguments); });
  return ReadAllBytes(arguments);
}

// A minimal environment, so that no setting of the user's desktop gets in, with no signal ignored. The kernel ends the
// program with the test, however that ends.
ProgramRun WindowSession::Prepare(const std::string& program, const std::vector<std::string>& arguments) const {
  const std::string home = home_.string();
  ProgramRun run;
  run.Program = "/usr/bin/env";
  run.CurrentFolder = home_;
  run.Arguments = {"-i", "--default-signal", "HOME=" + home, "TMPDIR=" + home, "XDG_RUNTIME_DIR=" + home,
                   "PATH=" + (home_ / "bin").string() + ":/usr/bin:/bin", "LANG=C.UTF-8", "DISPLAY=" + display_,
                   "FONTCONFIG_FILE=" + (home_ / "fonts.conf").string(), "QT_QPA_PLATFORM=xcb",
                   "QT_SCALE_FACTOR=" + std::to_string(desk_.Scale),
                   // Wine hides variables of such names from its programs unless they have its prefix.
                   "WINEQT_SCALE_FACTOR=" + std::to_string(desk_.Scale)};
  if (!busAddress_.empty()) run.Arguments.push_back("DBUS_SESSION_BUS_ADDRESS=" + busAddress_);
  for (const char* const name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "LD_LIBRARY_PATH", "WINEPREFIX",
                                 "WINEDEBUG", "WINEDLLOVERRIDES"})
    PassOn(run.Arguments, name);
  run.Arguments.insert(run.Arguments.end(), {"setpriv", "--pdeathsig", "KILL", "--", program});
  run.Arguments.insert(run.Arguments.end(), arguments.begin(), arguments.end());
  return run;
}

// ---- windows

std::optional<Window> WindowSession::FindWindow(std::string_view title) const {
  for (const std::string& id : FindIds()) {
    if (TitleOf(id) == title) return Window{id, PlaceOf(id)};
  }
  return std::nullopt;
}

Window WindowSession::WaitForWindow(std::string_view title) const {
  std::optional<Window> window;
  WaitUntil("a window called \"" + std::string(title) + "\" with the keyboard", [&] {
    window = FindWindow(title);
    const std::string active = Ask("xdotool", {"getactivewindow"});
    // If two of Wine's windows close in quick succession, the window manager activates the second.
    if (window && WindowsFolder() && TitleOf(active).empty()) Use({"windowactivate", window->Id});
    return window && active == window->Id + "\n";
  });
  // The window manager may have moved it before activating it.
  window->Place = PlaceOf(window->Id);
  return *window;
}

// The window manager puts the inner area into a window of its own, the frame.
QPoint WindowSession::CornerOf(const Window& window) const {
  const std::string listing = Ask("xwininfo", {"-id", window.Id});
  return UpperLeft(listing, "Absolute") - UpperLeft(listing, "Relative");
}

std::size_t WindowSession::WindowCount() const {
  return FindIds().size();
}

Window WindowSession::OpenedBy(const std::function<void()>& open) const {
  const std::vector<std::string> before = FindIds();
  open();
  std::string opened;
  WaitUntil("a window comes up", [&] {
    for (const std::string& id : FindIds()) {
      if (std::ranges::find(before, id) == before.end()) opened = id;
    }
    return !opened.empty();
  });
  return {opened, PlaceOf(opened)};
}

void WindowSession::WaitUntilGone(const Window& window) const {
  WaitUntil("the window has gone", [&] { return std::ranges::count(FindIds(), window.Id) == 0; });
}

void WindowSession::MoveWindow(const Window& window, QPoint corner) const {
  // Wine's windows are moved by the corner of their inner area.
  const QPoint moved = WindowsFolder() ? corner + window.Place.topLeft() - CornerOf(window) : corner;
  Use({"windowmove", window.Id, std::to_string(moved.x()), std::to_string(moved.y())});
  WaitUntil("the window has been moved", [&] { return CornerOf(window) == corner; });
}

// Within the few pixels by which Wine's idea of the frame differs from the window manager's.
bool WindowSession::IsAt(QPoint place, QPoint wanted) {
  constexpr int kFrames = 5;
  return (place - wanted).manhattanLength() <= (WindowsFolder() ? kFrames : 0);
}

QRect WindowSession::LayNote(QPoint corner, const Window& keeper) {
  const std::string place = "+" + std::to_string(corner.x()) + "+" + std::to_string(corner.y());
  note_ = StartBeside("xmessage", {"-geometry", place, "-bg", "yellow", "Back at nine."});
  std::vector<std::string> ids;
  WaitUntil("the note lies on the screen", [&] {
    ids = Lines(Ask("xdotool", {"search", "--onlyvisible", "--class", "xmessage"}));
    return !ids.empty();
  });
  Use({"windowfocus", "--sync", keeper.Id});
  return PlaceOf(ids.front());
}

// Of this process only: the programs of several starts have windows of the same titles.
std::vector<std::string> WindowSession::FindIds() const {
  return Lines(Ask("xdotool", {"search", "--onlyvisible", "--all", "--pid", std::to_string(Running().Id())}));
}

std::string WindowSession::TitleOf(const std::string& id) const {
  const std::string answer = Ask("xdotool", {"getwindowname", id});
  return answer.substr(0, answer.find('\n'));
}

QRect WindowSession::PlaceOf(const std::string& id) const {
  const std::string listing = Ask("xwininfo", {"-id", id});
  return {UpperLeft(listing, "Absolute"), QSize(NumberBehind(listing, "Width:"), NumberBehind(listing, "Height:"))};
}

// ---- mouse, keyboard and clipboard

void WindowSession::MoveTo(QPoint point) const {
  Use(To(point));
}

void WindowSession::Click(QPoint point, const std::string& button) const {
  std::vector<std::string> actions = To(point);
  actions.insert(actions.end(), {"click", button});
  Use(actions);
}

void WindowSession::Drag(QPoint from, QPoint to) const {
  Use(To(from));
  Use({"mousedown", "1"});
  // In steps: the first begins the drag, and the last ends it.
  for (const QPoint& step : {from + QPoint(20, 0), (from + to) / 2, to - QPoint(1, 1), to})
    Use(To(step));
  Use({"mouseup", "1"});
}

void WindowSession::Press(const std::vector<std::string>& keys) const {
  std::vector<std::string> actions = {"key", "--delay", "0"};
  actions.insert(actions.end(), keys.begin(), keys.end());
  Use(actions);
}

void WindowSession::Type(std::string_view text) const {
  Use({"type", "--delay", "0", "--", std::string(text)});
}

void WindowSession::PutMouseAside() const {
  MoveTo({desk_.Width - 1, desk_.Height - 1});
}

std::string WindowSession::CopyAllText() const {
  return CopiedBy([this] { Press({"ctrl+a", "ctrl+c"}); });
}

void WindowSession::PutOnClipboard(std::string_view text) const {
  const fs::path file = home_ / "copied";
  std::ofstream(file) << text;
  static_cast<void>(Ask("xclip", {"-selection", "clipboard", "-in", file.string()}));
}

// The clipboard first gets a marker, so that an old text is not taken for the new one.
std::string WindowSession::CopiedBy(const std::function<void()>& copy, const std::string& kind) const {
  constexpr std::string_view kMark = "nothing has been copied yet";
  PutOnClipboard(kMark);
  if (WindowsFolder()) std::this_thread::sleep_for(kWineLooksAtTheClipboard);
  copy();
  const auto ask = [this](const std::string& target) {
    // If asked while the clipboard changes hands, Wine never answers.
    return Ask("timeout", {"5", "xclip", "-selection", "clipboard", "-out", "-target", target});
  };
  std::string copied;
  WaitUntil("something has been copied", [&] {
    // Wine offers a picture only after being asked for the targets.
    if (WindowsFolder()) static_cast<void>(ask("TARGETS"));
    copied = ask(kind);
    return copied != kMark && !copied.empty();
  });
  // Wine leaves some CRs of Windows line ends.
  if (WindowsFolder() && kind == kText) std::erase(copied, '\r');
  return copied;
}

std::string WindowSession::Ask(const std::string& program, const std::vector<std::string>& arguments) const {
  return RunProgram(Prepare(program, arguments)).Output;
}

void WindowSession::Use(const std::vector<std::string>& actions) const {
  const ProgramOutcome outcome = RunProgram(Prepare("xdotool", actions));
  if (outcome.Status != 0) throw std::runtime_error("xdotool failed: " + outcome.Errors);
}

// ---- the screen

// Without a pointer, so that pictures have none.
void WindowSession::StartScreen() {
  const std::string size = std::to_string(desk_.Width) + "x" + std::to_string(desk_.Height) + "x24";
  screen_ =
      std::make_unique<RunningProgram>(Prepare("Xvfb", {"-displayfd", "1", "-screen", "0", size, "-fbdir",
                                                        home_.string(), "-nolisten", "tcp", "-nocursor", "-noreset"}));
  WaitUntil("there is a screen", [this] { return screen_->Output().ends_with('\n'); });
  display_ = ":" + Lines(screen_->Output()).front();

  frameBuffer_ = std::make_unique<QFile>(QString::fromStdString((home_ / kFrameBufferName).string()));
  if (!frameBuffer_->open(QIODevice::ReadOnly)) throw std::runtime_error("the screen has no frame buffer");
  pixels_ = frameBuffer_->map(0, frameBuffer_->size());
  if (pixels_ == nullptr) throw std::runtime_error("the frame buffer cannot be read");
}

void WindowSession::StartWindowManager() {
  windowManager_ = std::make_unique<RunningProgram>(Prepare("openbox", {"--sm-disable"}));
  WaitUntil("there is a window manager", [this] {
    return Ask("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).find("window id") != std::string::npos;
  });
}

void WindowSession::StartBuses() {
  sessionBus_ = std::make_unique<RunningProgram>(
      Prepare("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"}));
  WaitUntil("there is a session bus", [this] { return sessionBus_->Output().ends_with('\n'); });
  busAddress_ = Lines(sessionBus_->Output()).front();
  accessibilityBus_ = std::make_unique<RunningProgram>(
      Prepare("/usr/libexec/at-spi-bus-launcher", {"--launch-immediately", "--a11y=1"}));
  WaitUntil("there is an accessibility bus", [this] {
    // Asking the bus itself would start another launcher, without a screen reader.
    return RunProgram(Prepare("dbus-send", {"--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
                                            "org.freedesktop.DBus.GetNameOwner", "string:org.a11y.Bus"}))
               .Status == 0;
  });
}

QImage WindowSession::MappedPicture() const {
  const std::uint32_t start = Field(pixels_, kHeaderSizeField) + Field(pixels_, kColorCountField) * kColorSize;
  return {pixels_ + start, IntField(pixels_, kWidthField), IntField(pixels_, kHeightField),
          IntField(pixels_, kLineSizeField), QImage::Format_RGB32};
}

QImage WindowSession::Picture() const {
  return MappedPicture().copy();
}

QImage WindowSession::Picture(const QRect& area) const {
  return MappedPicture().copy(area);
}

QRgb WindowSession::Color(QPoint point) const {
  return MappedPicture().pixel(point) | 0xFF000000;
}

QImage WindowSession::StillPicture(const QRect& area) const {
  QImage picture = Picture(area);
  auto since = steady_clock::now();
  WaitUntil("the screen has come to rest", [&] {
    QImage next = Picture(area);
    if (next != picture) {
      picture = std::move(next);
      since = steady_clock::now();
    }
    return steady_clock::now() - since >= kStill;
  });
  return picture;
}

void WindowSession::WaitUntil(std::string_view what, const std::function<bool()>& happened) const {
  const auto limit = steady_clock::now() + kLimit;
  while (!happened()) {
    if (steady_clock::now() > limit) throw std::runtime_error("timed out waiting until " + std::string(what));
    if (!programs_.empty() && Running().Status()) {
      throw std::runtime_error("the program ended while waiting until " + std::string(what) + ": " +
                               Running().Errors());
    }
    std::this_thread::sleep_for(kBetweenQuestions);
  }
}

}  // namespace quillon
