#pragma once

// What is copied under X11 lives in the program that it was copied in, and is gone with it. Where the desktop runs a
// clipboard manager, that one takes it over (the target SAVE_TARGETS of the X clipboard manager convention).

namespace quillon {

/// Hands what was copied in this program to the clipboard manager, and returns when that has it, after a second at the
/// latest. Nothing happens where there is no manager, no X11, or where another program has copied since.
void HandOverClipboard();

}  // namespace quillon
