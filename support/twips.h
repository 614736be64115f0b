#pragma once

// Lengths on screen as the layouts give them: twips, 1,440 to the inch and 15 to a pixel of a screen of 96 dots to the
// inch. Left and top are measured from the upper left corner of what holds the rectangle.

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
