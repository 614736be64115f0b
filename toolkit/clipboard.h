#pragma once

// What is copied lives in the program that it was copied in, and would be gone with it.

namespace quillon {

/// Hands what was copied in this program to the system, which keeps it from then on. Under X11 it goes to the clipboard
/// manager where the desktop runs one (the target SAVE_TARGETS of the X clipboard manager convention), and the call
/// returns when that has it, after a second at the latest. Nothing happens where there is no manager, or where another
/// program has copied since.
void HandOverClipboard();

}  // namespace quillon
