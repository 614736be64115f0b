#pragma once

// Which of the companion's output suits its terminal.

#include "support/this_process.h"

namespace quillon {

struct Terminal {
  bool ShowProgress = false;  // a bar on standard error
  bool ShowColors = false;  // the grid on standard output
};

/// What to show, given which of standard output and standard error are terminals. The bar is redrawn in place, which
/// TERM=dumb does not support. The grid also needs 24-bit colour: some systems' terminals all have it
/// (`terminalsHaveColors`); elsewhere COLORTERM must be "truecolor" or "24bit". A NO_COLOR of any text turns it off
/// (https://no-color.org).
[[nodiscard]] Terminal TerminalOf(bool outputIsTerminal, bool errorsIsTerminal, bool terminalsHaveColors,
                                  const EnvironmentVariable& variable);

}  // namespace quillon
