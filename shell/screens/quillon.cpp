// The desktop program. It takes no arguments other than Qt's, as from a session manager that restores the window, and
// keeps everything in the program's folder ("shell/program_folder.h").

#include <cstdlib>
#include <memory>

#include "shell/program_folder.h"
#include "shell/screens/main_form.h"
#include "shell/screens/web_client.h"
#include "shell/user_guide.h"
#include "support/this_process.h"
#include "toolkit/application.h"
#include "toolkit/clipboard.h"
#include "toolkit/end_signals.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/start_failure.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

constexpr int kWrongUsage = 2;

int RunWindow() {
  const std::filesystem::path executableFolder = ExecutableFolder();
  const ProgramFolder folder{ProgramFolderPath(executableFolder, ProcessVariable)};
  MessageDialogs boxes;
  ShiftWatch shift;
  MainForm window({.Folder = folder,
                   .UserGuide = UserGuidePath(SharedFolderPath(executableFolder)),
                   .Messages = boxes,
                   .Ask = AskForLine,
                   .Web = [](std::string_view address) { return WaitForHttp(address, kWebTimeLimit); },
                   .Shift = shift,
                   .EndProcess =
                       [] {
                         HandOverClipboard();
                         std::_Exit(EXIT_SUCCESS);
                       },
                   .Marks = MarksOf(QLocale::system())});
  const EndSignals signals([&window] { window.close(); });
  window.Start();
  return QApplication::exec();
}

int RunProgram(int argc, char** argv) {
  const std::unique_ptr<Application> application = StartApplication(argc, argv);
  // Qt has removed its own.
  if (argc > 1) {
    TellStartFailure("Quillon takes no arguments. quillon-cli works out a situation given on the command line.");
    return kWrongUsage;
  }

  // Caught inside: a failed start can be shown only while the application exists.
  try {
    return RunWindow();
  } catch (...) {
    EndWithFault(CurrentFaultText());
  }
}

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
  return quillon::RunProgram(argc, argv);
}
