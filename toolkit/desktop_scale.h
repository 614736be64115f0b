#pragma once

// The desktop's scale: the number of screen pixels per logical pixel, 2 on a desktop at 200%. By default Qt would snap
// every place to logical pixels and stretch the drawing, so that at 150% one line is one pixel wide and the next two.
// The program uses the screen's own pixels instead, and the desktop's scale is a separate factor
// ("toolkit/twip_geometry.h"). If the window system itself stretches windows, as Wayland does, the pixels are those
// that it offers.

#include <QByteArray>
#include <array>

class QScreen;

namespace quillon {

/// The screen's own pixels per logical pixel: the screen's factor in QT_SCREEN_SCALE_FACTORS ("eDP-1=1.5;HDMI-1=2" by
/// name, "1.5;2" in order), or else its dots to the inch over 96, unless QT_ENABLE_HIGHDPI_SCALING is 0; times
/// QT_SCALE_FACTOR. Anything but a number above 0 counts as 1. A null screen has 96 dots to the inch and no name.
[[nodiscard]] double DesktopScale(const QScreen* screen);

/// Keeps Qt from scaling windows itself, for an application created during its lifetime. Restores the environment
/// afterwards, for child processes and for DesktopScale.
class QtScalingOff {
 public:
  QtScalingOff();
  ~QtScalingOff();
  Q_DISABLE_COPY_MOVE(QtScalingOff)

 private:
  std::array<QByteArray, 3> before_;
};

}  // namespace quillon
