#pragma once

// The desktop's own scale: how many pixels of the screen there are to one of its logical pixels, 2 on a desktop of
// 200%. Left to itself Qt would keep every place to whole logical pixels and stretch what was drawn, so that at 150% a
// line is one pixel wide here and two there. The program counts in the screen's own pixels instead, and the desktop's
// scale is a factor of its own ("toolkit/twip_geometry.h"). Where a window system stretches windows itself, as Wayland
// does, the pixels are those that it lets be counted.

#include <QByteArray>
#include <array>

namespace quillon {

/// The logical pixel of the primary screen in pixels of the screen: the factor in QT_SCREEN_SCALE_FACTORS (the first
/// one) or else the screen's dots to the inch over 96, unless QT_ENABLE_HIGHDPI_SCALING says 0; times QT_SCALE_FACTOR.
/// What is no number above 0 counts as 1.
[[nodiscard]] double DesktopScale();

/// Keeps Qt from scaling windows itself: an application that is made while it lives does not. The environment is as it
/// was afterwards, for programs that are started and for DesktopScale.
class QtScalingOff {
 public:
  QtScalingOff();
  ~QtScalingOff();
  QtScalingOff(const QtScalingOff&) = delete;
  QtScalingOff& operator=(const QtScalingOff&) = delete;
  QtScalingOff(QtScalingOff&&) = delete;
  QtScalingOff& operator=(QtScalingOff&&) = delete;

 private:
  std::array<QByteArray, 3> before_;
};

}  // namespace quillon
