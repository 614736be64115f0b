#include "toolkit/desktop_scale.h"

#include <QGuiApplication>
#include <QScreen>

namespace quillon {
namespace {

constexpr const char* kFactor = "QT_SCALE_FACTOR";
constexpr const char* kScreenFactors = "QT_SCREEN_SCALE_FACTORS";
constexpr const char* kSwitch = "QT_ENABLE_HIGHDPI_SCALING";
constexpr std::array kNames = {kFactor, kScreenFactors, kSwitch};
constexpr double kUnscaledDots = 96;  // to the inch

double FactorOr(const QByteArray& text, double otherwise) {
  const double factor = text.toDouble();
  return factor > 0 ? factor : otherwise;
}

double ScreenScale() {
  // "eDP-1=1.5;HDMI-1=1" or "1.5;1"
  const QByteArray first = qgetenv(kScreenFactors).split(';').constFirst();
  const double named = FactorOr(first.mid(first.indexOf('=') + 1), 0);
  if (named > 0) return named;
  if (qgetenv(kSwitch) == "0") return 1;
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? 1 : screen->logicalDotsPerInch() / kUnscaledDots;
}

}  // namespace

double DesktopScale() {
  return ScreenScale() * FactorOr(qgetenv(kFactor), 1);
}

QtScalingOff::QtScalingOff() {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    before_.at(i) = qgetenv(kNames.at(i));
    qunsetenv(kNames.at(i));
  }
  qputenv(kSwitch, "0");
}

QtScalingOff::~QtScalingOff() {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (before_.at(i).isNull()) {
      qunsetenv(kNames.at(i));
    } else {
      qputenv(kNames.at(i), before_.at(i));
    }
  }
}

}  // namespace quillon
