#pragma once

// The pictures of the window, compiled into the program: as SVG sources, or as the build has drawn them. A picture is
// found among Qt's resources by "toolkit/artwork_painting.h", and its default size is the one that it has on a screen
// of 96 dots to the inch. README.md beside this header tells what makes them one family.

namespace quillon {

/// Makes the pictures findable. To be called once before the first of them is opened; calling it again changes nothing
/// that can be seen. Without the call a picture's name may lead nowhere: a linker may drop data that nobody asks for.
void InitArtwork();

}  // namespace quillon
