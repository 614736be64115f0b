#include "ranges/dialogs/form_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "toolkit/desktop_scale.h"

namespace quillon {
namespace {

// Positions span all screens, so one screen's scale must serve for all.
double ScreenTwipsPerPixel() {
  return static_cast<double>(kTwipsPerPixel) / DesktopScale(QGuiApplication::primaryScreen());
}

float TwipsOfPixels(int pixels) {
  return static_cast<float>(pixels * ScreenTwipsPerPixel());
}

int PixelOf(float twips) {
  return static_cast<int>(std::floor(static_cast<double>(twips) / ScreenTwipsPerPixel() + 0.5));
}

// If there is too little room, the upper left end wins.
int Within(int start, int length, int roomStart, int roomLength) {
  return std::max(roomStart, std::min(start, roomStart + roomLength - length));
}

}  // namespace

TwipSize ScreenTwips(const QSize& pixels) {
  return {.Width = TwipsOfPixels(pixels.width()), .Height = TwipsOfPixels(pixels.height())};
}

void RestorePlace(QWidget& form, std::string_view section, const ProgramFolder& folder) {
  const TwipSize screen = ScreenTwips(QGuiApplication::primaryScreen()->size());
  const TwipSize size = ScreenTwips(form.size());
  const TwipPoint corner = StoredCorner(section, size, screen, folder);
  form.move(PixelOf(corner.Left), PixelOf(corner.Top));
  if (corner == CenteredCorner(size, screen)) KeepOnScreen(form);
}

void KeepOnScreen(QWidget& form) {
  const QRect room = form.screen()->availableGeometry();
  const QRect frame = form.frameGeometry();
  form.move(Within(frame.left(), frame.width(), room.left(), room.width()),
            Within(frame.top(), frame.height(), room.top(), room.height()));
}

std::vector<IniSetting> PlaceSettings(std::string_view section, const QWidget& form) {
  return PlaceSettings(section, TwipPoint{.Left = TwipsOfPixels(form.x()), .Top = TwipsOfPixels(form.y())});
}

}  // namespace quillon
