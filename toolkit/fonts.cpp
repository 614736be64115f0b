#include "toolkit/fonts.h"

#include <array>
#include <cmath>

#include "toolkit/text.h"

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

QStringList FontFamilies(std::string_view family) {
  QStringList families{ToQt(family)};
  for (const StandIn& row : kStandIns) {
    if (row.Family == family) families << ToQt(row.Substitute);
  }
  return families;
}

int FontPixels(float points) {
  return static_cast<int>(std::lround(points * 96 / 72));
}

QFont FormFont(const FontSpec& font, const FontSpec& inherited) {
  const FontSpec& used = font.Family.empty() ? inherited : font;
  QFont made;
  made.setFamilies(FontFamilies(used.Family));
  made.setPixelSize(FontPixels(used.Points));
  made.setBold(used.Bold);
  made.setUnderline(used.Underlined);
  return made;
}

}  // namespace quillon
