#include "toolkit/fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <algorithm>
#include <array>
#include <cmath>

#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

// The macro declares a function in the global namespace, so it cannot be used inside ours.
static void InitResources() {
  Q_INIT_RESOURCE(quillon_fonts);
}

namespace quillon {
namespace {

struct StandIn {
  std::string_view Family;
  std::string_view Substitute;
};

constexpr std::array kStandIns = {
    StandIn{"Arial", "Liberation Sans"},        StandIn{"MS Sans Serif", "Liberation Sans"},
    StandIn{"Tahoma", "DejaVu Sans Condensed"}, StandIn{"Verdana", "DejaVu Sans"},
    StandIn{"Courier New", "Liberation Mono"},
};

}  // namespace

void LoadFonts() {
  InitResources();
  const QDir folder(QStringLiteral(":/fonts"));
  for (const QString& file : folder.entryList(QDir::Files))
    QFontDatabase::addApplicationFont(folder.filePath(file));
}

QStringList FontFamilies(std::string_view family) {
  for (const StandIn& row : kStandIns) {
    if (row.Family == family) return {ToQt(row.Substitute)};
  }
  return {ToQt(family)};
}

int FontPixels(float points) {
  return static_cast<int>(std::lround(points * 96 / 72));
}

// Rounded down: a text that grew more than its place would overlap its neighbours. Hinted vertically only, so that
// letters are alike on every system.
void SizeFont(QFont& font, float points) {
  font.setPixelSize(std::max(1, static_cast<int>(std::floor(FontPixels(points) * PixelScale()))));
  font.setHintingPreference(PixelScale() == 1 ? QFont::PreferVerticalHinting : QFont::PreferNoHinting);
}

QFont FormFont(const FontSpec& font, const FontSpec& inherited) {
  const FontSpec& used = font.Family.empty() ? inherited : font;
  QFont made;
  made.setFamilies(FontFamilies(used.Family));
  SizeFont(made, used.Points);
  made.setBold(used.Bold);
  made.setUnderline(used.Underlined);
  return made;
}

}  // namespace quillon
