#pragma once

// The pictures of the window, compiled into the program: as SVG sources, or pre-rendered by the build.
// "toolkit/artwork_painting.h" finds a picture among Qt's resources; its default size is that at 96 dots to the inch.
// README.md in this folder explains their common style.

namespace quillon {

/// Registers the pictures. Call it once before the first of them is opened; further calls have no effect. Without it a
/// picture may be missing, since a linker may drop unreferenced data.
void InitArtwork();

}  // namespace quillon
