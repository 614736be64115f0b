#pragma once

// What of the companion's output suits the terminal that it is printed on.

#include "support/this_process.h"

namespace quillon {

struct Terminal {
  bool ShowProgress = false;  // a bar on standard error
  bool ShowColors = false;  // the grid on standard output
};

/// What to show where standard output and standard error are terminals or not. A bar is drawn over itself, which a
/// terminal with TERM=dumb cannot do. The grid also needs 24-bit colour, which every terminal of some systems has
/// (`terminalsHaveColors`) and which elsewhere COLORTERM promises as "truecolor" or "24bit", and a NO_COLOR of any text
/// forbids it (https://no-color.org).
[[nodiscard]] Terminal TerminalOf(bool outputIsTerminal, bool errorsIsTerminal, bool terminalsHaveColors,
                                  const EnvironmentVariable& variable);

}  // namespace quillon
