#include "toolkit/desktop_scale.h"

#include <QGuiApplication>
#include <QList>
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

// 0 if the user has set none for the screen.
double FactorOf(const QScreen* screen) {
  const qsizetype order = QGuiApplication::screens().indexOf(screen);
  const QByteArray name = screen == nullptr ? QByteArray() : screen->name().toUtf8();
  const QList<QByteArray> factors = qgetenv(kScreenFactors).split(';');
  for (qsizetype i = 0; i < factors.size(); ++i) {
    const qsizetype sign = factors[i].lastIndexOf('=');
    const bool meant = sign < 0 ? i == order : factors[i].first(sign) == name;
    if (meant) return FactorOr(factors[i].sliced(sign + 1), 0);
  }
  return 0;
}

double ScreenScale(const QScreen* screen) {
  const double chosen = FactorOf(screen);
  if (chosen > 0) return chosen;
  if (screen == nullptr || qgetenv(kSwitch) == "0") return 1;
  return screen->logicalDotsPerInch() / kUnscaledDots;
}

}  // namespace

double DesktopScale(const QScreen* screen) {
  return ScreenScale(screen) * FactorOr(qgetenv(kFactor), 1);
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
