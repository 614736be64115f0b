#pragma once

// The desktop's own scale: how many pixels of the screen there are to one of its logical pixels, 2 on a desktop of
// 200%. Left to itself Qt would keep every place to whole logical pixels and stretch what was drawn, so that at 150% a
// line is one pixel wide here and two there. The program counts in the screen's own pixels instead, and the desktop's
// scale is a factor of its own ("toolkit/twip_geometry.h"). Where a window system stretches windows itself, as Wayland
// does, the pixels are those that it lets be counted.

#include <QByteArray>
#include <array>

class QScreen;

namespace quillon {

/// The logical pixel of a screen in its own pixels: the screen's factor in QT_SCREEN_SCALE_FACTORS
/// ("eDP-1=1.5;HDMI-1=2" by their names, "1.5;2" in their order), or else its dots to the inch over 96, unless
/// QT_ENABLE_HIGHDPI_SCALING says 0; times QT_SCALE_FACTOR. Anything but a number above 0 counts as 1. A null screen
/// has 96 dots to the inch and no name.
[[nodiscard]] double DesktopScale(const QScreen* screen);

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
