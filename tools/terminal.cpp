#include "tools/terminal.h"

#include <string>

namespace quillon {

Terminal TerminalOf(bool outputIsTerminal, bool errorsIsTerminal, bool terminalsHaveColors,
                    const EnvironmentVariable& variable) {
  const bool dumb = variable("TERM") == "dumb";
  const std::string promise = variable("COLORTERM");
  const bool promised = terminalsHaveColors || promise == "truecolor" || promise == "24bit";
  const bool colors = promised && variable("NO_COLOR").empty();
  return {.ShowProgress = errorsIsTerminal && !dumb, .ShowColors = outputIsTerminal && !dumb && colors};
}

}  // namespace quillon
