#pragma once

// Copied data lives in the process that copied it, and is lost when it exits.

namespace quillon {

/// Hands what this program has copied to the system. Under X11 it goes to the clipboard manager if the desktop has one
/// (the target SAVE_TARGETS of the X clipboard manager convention), and the call returns once that has it, after a
/// second at most. Does nothing if there is no manager, or if another program has copied since.
void HandOverClipboard();

}  // namespace quillon
