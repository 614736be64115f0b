#pragma once

// Screen lengths in layouts: twips, 1,440 to the inch and 15 to a pixel at 96 dpi. Left and top are relative to the
// parent's upper left corner.

namespace quillon {

inline constexpr float kTwipsPerPixel = 15;

struct TwipPoint {
  float Left = 0;
  float Top = 0;

  bool operator==(const TwipPoint&) const = default;
};

struct TwipSize {
  float Width = 0;
  float Height = 0;

  bool operator==(const TwipSize&) const = default;
};

struct TwipRect {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  bool operator==(const TwipRect&) const = default;
};

}  // namespace quillon
